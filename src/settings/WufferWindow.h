#pragma once

#include <QMainWindow>

class QShortcut;
class Wuffer;

/// The window of one timer, whose delegate the timer is. It only reports what the user does to it
/// as a window; what stands in it is the timer's.
class WufferWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit WufferWindow(Wuffer &delegate);

    [[nodiscard]] Wuffer &delegate() const { return _delegate; }

    /// Whether Return and Enter press the default button of the window.
    void setReturnShortcutEnabled(bool enabled);

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

Q_SIGNALS:
    /// The window is about to close. It cannot be refused.
    void willClose();
    /// Return or Enter was pressed.
    void returnPressed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void fitToContents();

    Wuffer &_delegate;
    QShortcut *_return;
    QShortcut *_enter;
};
