#pragma once

#include <QObject>

#include <memory>

class AuxiliaryWindow;
class MainMenu;
class StatusPresenter;
class Wuffer;

/// The one controller of the program: decides what opens at launch, makes timers and places their
/// windows, starts them all at once, and brings the other windows to the front. It keeps no list
/// of timers: the application does.
class WufferController final : public QObject
{
    Q_OBJECT

public:
    WufferController();
    ~WufferController() override;

    /// The work of the start, once: opens what the user has chosen for it.
    void awakeFromNib();

    /// Makes a timer, its window one step right of and below that of the newest timer. The window
    /// is not shown yet.
    void createNewWuffer();

    // What the menus do.

    void newWuffer();
    /// Starts every timer that is not running.
    void startAllWuffers();
    void showPreferences();
    void showConverter();
    void showMeasurements();
    /// Opens the web page of the program.
    void donate();
    /// Closes every window and ends the program.
    void quit();

    /// What a menu item does to the controller.
    using Operation = void (WufferController::*)();
    /// Whether the menu item with this operation is enabled now.
    [[nodiscard]] bool validateMenuItem(Operation action) const;

    /// Fills the Presets menu; there are no presets yet.
    void populatePresetsMenu();
    /// Brings the status item up to date with the timers.
    void refreshStatusItem();
    /// Empties the status item.
    void removeStatusBar();

private:
    [[nodiscard]] static Wuffer *newestWuffer();
    void openAtLaunch();
    /// Shows one of the windows beside the timers, which is made when it is first asked for.
    void show(std::unique_ptr<AuxiliaryWindow> &window, const QString &title);

    std::unique_ptr<MainMenu> _mainMenu;
    std::unique_ptr<StatusPresenter> _statusItem;
    std::unique_ptr<AuxiliaryWindow> _preferencesWindow;
    std::unique_ptr<AuxiliaryWindow> _converterWindow;
    std::unique_ptr<AuxiliaryWindow> _measurementsWindow;
};
