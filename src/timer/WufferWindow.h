#pragma once

#include <QMainWindow>
#include <QPointer>

#include <optional>

class QDrag;
class QDropEvent;
class QShortcut;
class Wuffer;

/// The window of one timer, whose delegate the timer is. It only reports what the user does to it
/// as a window; what stands in it is the timer's.
///
/// It is moved by dragging it anywhere where nothing else takes the mouse. With the Control key
/// held, or with the right button, such a drag is that of a link instead: dropped onto the window
/// of another timer, it makes that one start the timer that was dragged. The drawer is a part of
/// the window for all of this.
class WufferWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit WufferWindow(Wuffer &delegate);

    [[nodiscard]] Wuffer &delegate() const { return _delegate; }

    /// Whether Return and Enter press the default button of the window.
    void setReturnShortcutEnabled(bool enabled);

    /// Names the control into which the focus never falls when the one that has it is disabled or
    /// hidden. The control must be in the window.
    void spareFromFocus(const QWidget &control) { _spared = &control; }

    /// Gives the window its final size before it is shown. One that is resized between the making
    /// of its native window and its first appearance loses the place of its frame.
    void setVisible(bool visible) override;

    /// Moves the upper left corner of the frame to this point of the screen and returns the point
    /// for the next window: one step to the right and down.
    QPoint cascadeTopLeftFromPoint(QPoint topLeft);

    /// Where the next window of a cascade goes on a screen with this much room: one step on from
    /// the point, or back at the room's upper left corner if a window of this size would leave
    /// the room there.
    [[nodiscard]] static QPoint nextCascadePoint(QPoint topLeft, QSize window, const QRect &room);

    /// Keeps the place of the frame in the settings under this name.
    void saveFrameUsingName(const QString &name) const;

    /// Moves the frame to the place kept under this name, or to the nearest that can be reached
    /// if its screen is gone. Nothing happens when there is none.
    void setFrameUsingName(const QString &name);

    /// Shows every window of this one's chain in the highlight, or in the colour that is normal
    /// for this window.
    void highlightChain(bool on) const;

Q_SIGNALS:
    /// The window is about to close. It cannot be refused.
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
    /// The window that is dragged over this one if it may be dropped here; else null.
    [[nodiscard]] WufferWindow *windowFromSource(const QDropEvent &drag) const;
    void draggingEnteredOrUpdated(QDropEvent &drag);
    void draggingExited();
    [[nodiscard]] bool performDragOperation(const QDropEvent &drag);
    [[nodiscard]] static QColor normalColor();
    void setBackgroundColor(const QColor &color);

    Wuffer &_delegate;
    /// Where the mouse was pressed, on the screen, until it is dragged or let go.
    std::optional<QPoint> _pressedAt;
    /// The drag of a link from this window, while there is one.
    QPointer<QDrag> _drag;
    /// The window that is dragged over this one.
    QPointer<WufferWindow> _hovering;
    const QWidget *_spared = nullptr;
    QShortcut *_return;
    QShortcut *_enter;
};
