#include "controls/Drawer.h"

#include <QEvent>
#include <QStyle>

#include <cmath>

Drawer::Drawer(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    hide();
    _slide.setStartValue(0.0);
    _slide.setEndValue(1.0);
    _slide.setEasingCurve(QEasingCurve::InOutCubic);
    connect(&_slide, &QVariantAnimation::valueChanged, this, &QWidget::updateGeometry);
    connect(&_slide, &QVariantAnimation::finished, this, &Drawer::finishSlide);
}

void Drawer::toggle()
{
    if (_state == State::Closed || _state == State::Closing)
        slide(State::Opening, QVariantAnimation::Forward);
    else
        slide(State::Closing, QVariantAnimation::Backward);
}

QSize Drawer::sizeHint() const
{
    const QWidget *panel = content();
    if (!panel)
        return {};
    const QSize full = panel->sizeHint();
    const double open = _state == State::Open ? 1.0 : _slide.currentValue().toDouble();
    return {full.width(), static_cast<int>(std::lround(full.height() * open))};
}

QSize Drawer::minimumSizeHint() const
{
    return sizeHint();
}

bool Drawer::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        placeContent();
        updateGeometry();
    }
    return QWidget::event(event);
}

void Drawer::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeContent();
}

QWidget *Drawer::content() const
{
    return findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

void Drawer::slide(State state, QVariantAnimation::Direction direction)
{
    // A running slide that changes its direction goes on from where it is.
    _slide.setDuration(style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this));
    _slide.setDirection(direction);
    show();
    setState(state);
    if (_slide.state() != QVariantAnimation::Running)
        _slide.start();
}

void Drawer::setState(State state)
{
    _state = state;
    Q_EMIT stateChanged();
}

void Drawer::finishSlide()
{
    const bool opened = _slide.direction() == QVariantAnimation::Forward;
    setVisible(opened);
    updateGeometry();
    setState(opened ? State::Open : State::Closed);
}

void Drawer::placeContent()
{
    QWidget *panel = content();
    if (!panel)
        return;
    // The lower edge of the panel appears first and the upper edge last, as if the panel slid out
    // from behind the window.
    const int fullHeight = panel->sizeHint().height();
    panel->setGeometry(0, height() - fullHeight, width(), fullHeight);
}
