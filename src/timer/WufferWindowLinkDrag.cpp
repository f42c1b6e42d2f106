#include "controls/ReadableColor.h"
#include "platform/DragShape.h"
#include "platform/Keyboard.h"
#include "platform/WindowOrder.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QIcon>
#include <QMimeData>
#include <QWindow>

namespace
{
/// The format of a dragged link. Its data is empty: the source of the drag is the window of the
/// dragged timer.
const QString kDragType = QStringLiteral("WufferWindow");

/// Width and height of the dragged picture, in device-independent pixels.
constexpr int kPictureSize = 32;

/// The background of a highlighted window, with texts that can be read on it. In a dark theme the
/// texts in its controls are dark, too, so the controls are light.
QPalette highlight(const QColor &color, const QPalette &theme)
{
    constexpr QColor lightButton(0xEF, 0xEF, 0xEF);
    constexpr QColor greyText(0x6B, 0x6B, 0x6B);
    QPalette palette;
    if (isDark(theme)) {
        palette = QPalette(lightButton, color);
        palette.setColor(QPalette::PlaceholderText, greyText);
    }
    palette.setColor(QPalette::Window, color);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}
} // namespace

void WufferWindow::mousePressEvent(QMouseEvent *event)
{
    _pressedAt = event->globalPosition().toPoint();
}

void WufferWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!_pressedAt)
        return;
    const QPoint way = event->globalPosition().toPoint() - *_pressedAt;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    if (event->buttons() == Qt::LeftButton)
        mouseDragged(*event);
    else if (event->buttons() == Qt::RightButton)
        rightMouseDragged();
}

void WufferWindow::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    _pressedAt.reset();
}

void WufferWindow::mouseDragged(const QMouseEvent &event)
{
    if (event.modifiers().testFlag(Keyboard::kControl)) {
        chainDrag();
        return;
    }
    _pressedAt.reset();
    windowHandle()->startSystemMove();
}

void WufferWindow::rightMouseDragged()
{
    chainDrag();
}

void WufferWindow::chainDrag()
{
    _pressedAt.reset();
    _drag = new QDrag(this);
    auto *contents = new QMimeData;
    contents->setData(kDragType, {});
    _drag->setMimeData(contents);
    const QPixmap picture = QIcon(QStringLiteral(":/images/chain.png"))
                                .pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatio());
    _drag->setPixmap(picture);
    const DragShape shape(picture);
    // Beside the pointer, not under it.
    _drag->setHotSpot({0, kPictureSize});
    // Wayland has no drags that link: it would refuse every drop of a drag that offers nothing
    // else.
    _drag->exec(Qt::LinkAction | Qt::CopyAction, Qt::LinkAction);

    // Use static members only from here on: the window may have been destroyed during the drag.
    // Reset all windows, because the chain may have lost a highlighted member.
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<WufferWindow *>(widget))
            window->setBackgroundColor(normalColor());
    }
}

WufferWindow *WufferWindow::windowFromSource(const QDropEvent &drag) const
{
    // A drag from another program has no source, whatever format it claims.
    auto *window = qobject_cast<WufferWindow *>(drag.source());
    const bool fits = window != this && drag.mimeData()->hasFormat(kDragType);
    return fits ? window : nullptr;
}

void WufferWindow::dragEnterEvent(QDragEnterEvent *event)
{
    draggingEnteredOrUpdated(*event);
}

void WufferWindow::dragMoveEvent(QDragMoveEvent *event)
{
    draggingEnteredOrUpdated(*event);
}

void WufferWindow::draggingEnteredOrUpdated(QDropEvent &drag)
{
    WufferWindow *source = windowFromSource(drag);
    if (!source) {
        drag.ignore();
        return;
    }
    _hovering = source;
    highlightChain(true);
    source->highlightChain(true);
    drag.setDropAction(Qt::LinkAction);
    drag.accept();
}

void WufferWindow::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    draggingExited();
}

void WufferWindow::draggingExited()
{
    highlightChain(false);
    if (_hovering)
        _hovering->highlightChain(false);
    _hovering.clear();
}

void WufferWindow::dropEvent(QDropEvent *event)
{
    if (performDragOperation(*event)) {
        event->setDropAction(Qt::LinkAction);
        event->accept();
    } else {
        event->ignore();
    }
}

bool WufferWindow::performDragOperation(const QDropEvent &drag)
{
    WufferWindow *source = windowFromSource(drag);
    if (!source)
        return false;
    source->highlightChain(false);
    highlightChain(false);
    _hovering.clear();
    delegate().setTargetWuffer(&source->delegate());
    bringToFront(*this);
    return true;
}

void WufferWindow::highlightChain(bool on) const
{
    const QColor color = on ? QColor(Qt::white) : normalColor();
    for (const Wuffer *timer : delegate().chainedWuffers())
        timer->window()->setBackgroundColor(color);
}

QColor WufferWindow::normalColor()
{
    return QApplication::palette("QMainWindow").color(QPalette::Window);
}

void WufferWindow::setBackgroundColor(const QColor &color)
{
    if (palette().color(QPalette::Window) == color)
        return;
    setPalette(color == normalColor() ? QPalette() : highlight(color, QApplication::palette()));
}
