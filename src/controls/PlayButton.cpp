#include "controls/PlayButton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

PlayButton::PlayButton(QWidget *parent) : QToolButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void PlayButton::setPlayText(const QString &text)
{
    _playText = text;
    describe();
}

void PlayButton::setStopText(const QString &text)
{
    _stopText = text;
    describe();
}

void PlayButton::setPlaying(bool playing)
{
    if (playing == _playing)
        return;
    _playing = playing;
    describe();
    update();
}

QSize PlayButton::sizeHint() const
{
    constexpr int room = 10;
    const int side = fontMetrics().height() + room;
    return {side, side};
}

void PlayButton::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const double side = fontMetrics().ascent() * 0.7;
    QRectF sign(0, 0, side, side);
    sign.moveCenter(QRectF(rect()).center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(foregroundRole()));
    if (_playing) {
        painter.drawRect(sign);
    } else {
        // Moved a little to the right, so that the triangle looks centred.
        sign.translate(side / 12, 0);
        const QPointF tip(sign.right(), sign.center().y());
        painter.drawPolygon(QPolygonF({sign.topLeft(), tip, sign.bottomLeft()}));
    }
}

void PlayButton::describe()
{
    const QString &text = _playing ? _stopText : _playText;
    setAccessibleName(text);
    setToolTip(text);
}
