#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>

#include <memory>

class QScreen;

/// The light panel behind a timer's texts. Its colours do not depend on the theme, so that black,
/// red and blue texts are always readable. It can leave its window to fill a screen, and returns to
/// exactly its old place.
class DisplayBox final : public QFrame
{
    Q_OBJECT

public:
    explicit DisplayBox(QWidget *parent = nullptr);
    ~DisplayBox() override;

    /// Fills the screen. The box must be in a layout, and not in full-screen mode. If its own
    /// window is destroyed meanwhile, so is the box.
    void enterFullScreenMode(QScreen &screen);

    /// Returns the box to its window. It must be in full-screen mode.
    void exitFullScreenModeWithOptions();

    [[nodiscard]] bool isInFullScreenMode() const { return _fullScreenWindow != nullptr; }

Q_SIGNALS:
    /// The user has asked the window manager to close the full-screen window.
    void fullScreenCloseRequested();
    /// The window that holds the box, its own or the full-screen one, has become active.
    void windowActivated();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    class FullScreenWindow;

    void destroyPlaceholder();

    std::unique_ptr<FullScreenWindow> _fullScreenWindow;
    /// Holds the box's place in its window during full-screen mode. The window owns it.
    QPointer<QWidget> _placeholder;
    /// The tab order of the box's window before the box left it.
    QList<QPointer<QWidget>> _tabOrder;
};
