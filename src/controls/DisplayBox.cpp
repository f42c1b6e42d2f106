#include "controls/DisplayBox.h"

#include "controls/PanelColors.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace
{
constexpr qreal kCornerRadius = 6.0;
/// The height of the bar in the window, and its distance from the foot of the panel.
constexpr int kBarHeight = 3;
constexpr int kBarBottom = 4;
/// The height of the bar on the full screen: this part of the screen.
constexpr int kScreensPerBar = 100;
/// What the margins of the texts have in addition on the full screen: this part of the screen.
constexpr int kScreensPerMargin = 20;

/// The widgets of the window in tab order.
QList<QPointer<QWidget>> tabOrder(const QWidget &window)
{
    QList<QPointer<QWidget>> order;
    for (QWidget *next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) != 0)
            order.append(next);
    }
    return order;
}

void setTabOrder(QList<QPointer<QWidget>> order)
{
    order.removeIf([](const QPointer<QWidget> &each) { return each.isNull(); });
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
}
} // namespace

/// The frameless window that covers the screen while the box is in it.
class DisplayBox::FullScreenWindow final : public QWidget
{
public:
    explicit FullScreenWindow(DisplayBox &box) :
        QWidget(nullptr, Qt::FramelessWindowHint), _box(box)
    {
        // The colour of the window until the box has been painted.
        QPalette panel;
        panel.setColor(QPalette::Window, box.palette().color(QPalette::Base));
        setPalette(panel);
        setWindowTitle(box.window()->windowTitle());
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(&box);
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        Q_EMIT _box.fullScreenCloseRequested();
        // The window must not close while the box is in it; it may close once the box is back.
        event->setAccepted(!_box.isInFullScreenMode());
    }

private:
    DisplayBox &_box;
};

DisplayBox::DisplayBox(QWidget *parent) : QFrame(parent)
{
    followTheme();
}

DisplayBox::~DisplayBox()
{
    if (!isInFullScreenMode())
        return;
    // The full-screen window, which is destroyed with this box, must not destroy it as its child.
    setParent(nullptr);
    destroyPlaceholder();
}

void DisplayBox::enterFullScreenMode(QScreen &screen)
{
    Q_ASSERT(!isInFullScreenMode());
    _tabOrder = tabOrder(*window());
    QLayout *home = parentWidget()->layout();
    _placeholder = new QWidget(parentWidget());
    _placeholder->setFixedSize(size());
    connect(_placeholder, &QObject::destroyed, this, &QObject::deleteLater);
    const std::unique_ptr<QLayoutItem> oldItem(home->replaceWidget(this, _placeholder));
    // Shown at once, because a layout reserves no space for a hidden widget.
    _placeholder->show();

    _fullScreenWindow = std::make_unique<FullScreenWindow>(*this);
    _fullScreenWindow->setGeometry(screen.geometry());
    _fullScreenWindow->showFullScreen();
    _fullScreenWindow->raise();
    _fullScreenWindow->activateWindow();
}

void DisplayBox::exitFullScreenModeWithOptions()
{
    Q_ASSERT(isInFullScreenMode());
    QLayout *home = _placeholder->parentWidget()->layout();
    const std::unique_ptr<QLayoutItem> oldItem(home->replaceWidget(_placeholder, this));
    setContentsMargins({});
    destroyPlaceholder();
    ::setTabOrder(std::exchange(_tabOrder, {}));
    show();
    // Deleted later, because one of the window's own events may have led here.
    _fullScreenWindow->hide();
    _fullScreenWindow.release()->deleteLater();
}

void DisplayBox::destroyPlaceholder()
{
    const std::unique_ptr<QWidget> placeholder(_placeholder);
    if (placeholder)
        disconnect(placeholder.get(), nullptr, this, nullptr);
}

void DisplayBox::setShareLeft(double share)
{
    const QRectF before = _bar.filledPart(barPlace());
    _bar.setShare(share);
    if (_bar.filledPart(barPlace()) != before)
        update(barPlace().track.toAlignedRect());
}

void DisplayBox::setBarColor(const QColor &color)
{
    if (color == _bar.color())
        return;
    _bar.setColor(color);
    update(barPlace().track.toAlignedRect());
}

RemainingBar::Place DisplayBox::barPlace() const
{
    RemainingBar::Place place;
    place.devicePixelRatio = devicePixelRatioF();
    place.direction = layoutDirection();
    if (isInFullScreenMode()) {
        const int thickness = height() / kScreensPerBar;
        place.track = QRect(0, height() - thickness, width(), thickness);
    } else {
        // In one line with the texts, and in the margin below them.
        const QMargins margins = layout() ? layout()->contentsMargins() : QMargins();
        place.track = QRect(margins.left(), height() - kBarBottom - kBarHeight,
                            width() - margins.left() - margins.right(), kBarHeight);
        place.cornerRadius = kBarHeight / 2.0;
    }
    return place;
}

bool DisplayBox::event(QEvent *event)
{
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::WindowActivate)
        Q_EMIT windowActivated();
    if (event->type() == QEvent::ParentChange)
        followTheme();
    return handled;
}

bool DisplayBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == _surroundings && event->type() == QEvent::PaletteChange)
        takeColors();
    return QFrame::eventFilter(watched, event);
}

void DisplayBox::followTheme()
{
    if (_surroundings)
        _surroundings->removeEventFilter(this);
    _surroundings = parentWidget();
    if (_surroundings)
        _surroundings->installEventFilter(this);
    takeColors();
}

void DisplayBox::takeColors()
{
    const PanelColors colors =
        PanelColors::of(_surroundings ? _surroundings->palette() : QApplication::palette());
    _edgeColor = colors.edge;
    setPalette(colors.palette());
    update();
    Q_EMIT colorsChanged();
}

void DisplayBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ink = PanelColors::inkFor(_bar.color(), palette());
    if (isInFullScreenMode()) {
        painter.fillRect(rect(), palette().color(QPalette::Base));
        _bar.paint(painter, barPlace(), ink);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().color(QPalette::Base));
    painter.setPen(_edgeColor);
    const QRectF panel = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(panel, kCornerRadius, kCornerRadius);
    _bar.paint(painter, barPlace(), ink);
}

void DisplayBox::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    // On its way back to the window, the box is still in full-screen mode.
    if (!isInFullScreenMode() || window() != _fullScreenWindow.get())
        return;
    const int across = width() / kScreensPerMargin;
    const int down = height() / kScreensPerMargin;
    setContentsMargins(across, down, across, down);
}
