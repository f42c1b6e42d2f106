#pragma once

#include <QObject>

#include <functional>
#include <memory>

class HomeWindow;
class QWidget;

/// Sees to it that the program is never running without a way in: while none of its other windows
/// is open the home window is, and when the user closes that one the program ends.
class HomeKeeper final : public QObject
{
    Q_OBJECT

public:
    /// The window is made when it is first needed.
    explicit HomeKeeper(std::function<std::unique_ptr<HomeWindow>()> make);
    ~HomeKeeper() override;

    /// Shows the home window if no window is open.
    void look();

    /// A window that is open, whichever; null when there is none.
    [[nodiscard]] static QWidget *openWindow();

private:
    void windowShown(QWidget &window);

    std::function<std::unique_ptr<HomeWindow>()> _make;
    std::unique_ptr<HomeWindow> _home;
};
