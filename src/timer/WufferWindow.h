#pragma once

#include <QMainWindow>
#include <QPointer>

#include <optional>

class QDrag;
class QDropEvent;
class QShortcut;
class Wuffer;

/// The window of one timer, which is its delegate. The window only handles what the user does to
/// the window itself; the timer handles the contents.
///
/// The user moves it by dragging any spot where no control takes the mouse. With the Control key or
/// the right button, this drags a link instead: dropped onto the window of another timer, it makes
/// that timer start the dragged one. The drawer is a part of the window for all of this.
class WufferWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit WufferWindow(Wuffer &delegate);

    [[nodiscard]] Wuffer &delegate() const { return _delegate; }

    /// Whether Return and Enter press the default button of the window.
    void setReturnShortcutEnabled(bool enabled);

    /// Names a control in this window that does not receive the focus when the focused control is
    /// disabled or hidden.
    void skipWhenFocusIsLost(const QWidget &control) { _skippedForFocus = &control; }

    /// Gives the window its final size before it is shown. Resizing it between the creation of the
    /// native window and its first appearance would lose the place of the frame.
    void setVisible(bool visible) override;

    /// Moves the upper left corner of the frame to this point of the screen and returns the point
    /// for the next window: one step to the right and down.
    QPoint cascadeTopLeftFromPoint(QPoint topLeft);

    /// The place of the next window of a cascade on a screen with this much room: one step from the
    /// point, or the upper left corner of the room if a window of this size would not fit there.
    [[nodiscard]] static QPoint nextCascadePoint(QPoint topLeft, QSize window, const QRect &room);

    /// Stores the place of the frame in the settings under this name, unless only the window system
    /// knows places: the stored one then stays for a desktop on which it can be used.
    void saveFrameUsingName(const QString &name) const;

    /// Moves the frame to the place stored under this name, or to the nearest reachable place if
    /// its screen is gone. Does nothing if no place is stored.
    void setFrameUsingName(const QString &name);

    /// Highlights all windows of this timer's chain, or restores their normal colour.
    void highlightChain(bool on) const;

Q_SIGNALS:
    /// The window is about to close; nothing can prevent it.
    void willClose();
    /// Return or Enter was pressed.
    void returnPressed();

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void fitToContents();

    void mouseDragged(const QMouseEvent &event);
    void rightMouseDragged();
    void chainDrag();
    /// The window whose link is dragged over this one, if it may be dropped here; otherwise null.
    [[nodiscard]] WufferWindow *windowFromSource(const QDropEvent &drag) const;
    void draggingEnteredOrUpdated(QDropEvent &drag);
    void draggingExited();
    [[nodiscard]] bool performDragOperation(const QDropEvent &drag);
    [[nodiscard]] static QColor normalColor();
    void setBackgroundColor(const QColor &color);

    Wuffer &_delegate;
    /// Where the mouse button was pressed, in coordinates of the screen, until it is released or a
    /// drag begins.
    std::optional<QPoint> _pressedAt;
    /// The link drag that comes from this window, if any.
    QPointer<QDrag> _drag;
    /// The window whose link is dragged over this one, if any.
    QPointer<WufferWindow> _hovering;
    const QWidget *_skippedForFocus = nullptr;
    QShortcut *_return;
    QShortcut *_enter;
};
