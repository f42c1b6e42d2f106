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
/// What a dragged link is offered as. It carries nothing: which timer is dragged is told by where
/// the drag comes from.
const QString kDragType = QStringLiteral("WufferWindow");

/// Width and height of the picture under the pointer, in device-independent pixels.
constexpr int kPictureSize = 32;
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
    _drag->setPixmap(QIcon(QStringLiteral(":/images/chain.png"))
                         .pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatio()));
    // Beside the pointer, not under it.
    _drag->setHotSpot({0, kPictureSize});
    _drag->exec(Qt::LinkAction);

    // Only what is static from here on: the window may have been closed meanwhile. A chain that
    // lost a member during the drag has windows that no longer hang together.
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<WufferWindow *>(widget))
            window->setBackgroundColor(normalColor());
    }
}

WufferWindow *WufferWindow::windowFromSource(const QDropEvent &drag) const
{
    // What another program drags has no source, whatever it claims to be.
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
    QPalette palette;
    if (color != normalColor()) {
        palette.setColor(QPalette::Window, color);
        // What is written on it must stay readable in a dark theme.
        palette.setColor(QPalette::WindowText, Qt::black);
    }
    setPalette(palette);
}
