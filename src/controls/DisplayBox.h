#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>

#include <memory>

class QScreen;

/// The light panel that a timer's texts stand on. Its colours are its own, so that black, red and
/// blue texts can be read in every theme. It can leave its window to fill a screen, and comes
/// back into exactly its old place.
class DisplayBox final : public QFrame
{
    Q_OBJECT

public:
    explicit DisplayBox(QWidget *parent = nullptr);
    ~DisplayBox() override;

    /// Fills the screen. The box must be in a layout, and not in full-screen mode. If the window
    /// that it has left is destroyed meanwhile, the box goes too.
    void enterFullScreenMode(QScreen &screen);

    /// Comes back. The box must be in full-screen mode.
    void exitFullScreenModeWithOptions();

    [[nodiscard]] bool isInFullScreenMode() const { return _fullScreenWindow != nullptr; }

Q_SIGNALS:
    /// Somebody asked the window manager to close the window that fills the screen.
    void fullScreenCloseRequested();
    /// The window that the box is in, be it its own or the one that fills the screen, has become
    /// the active one.
    void windowActivated();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    class FullScreenWindow;

    void destroyPlaceholder();

    std::unique_ptr<FullScreenWindow> _fullScreenWindow;
    /// Keeps the box's place in its window, to which it belongs, while the box is away.
    QPointer<QWidget> _placeholder;
    /// The order in which the tab key walked through its window before the box left it.
    QList<QPointer<QWidget>> _tabOrder;
};
