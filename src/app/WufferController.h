#pragma once

#include "app/LaunchOrder.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QAction;
class AboutDialog;
class AuxiliaryWindow;
class HomeKeeper;
class HomeWindow;
class LauncherPresenter;
class MainMenu;
class PresetsMenu;
class Preferences;
class QMainWindow;
class QWidget;
class StatusPresenter;
class Wuffer;

/// The controller of the program: decides what opens at launch, makes timers and places their
/// windows, starts them all at once, and brings the other windows to the front. The list of timers
/// belongs to the application.
class WufferController final : public QObject
{
    Q_OBJECT

public:
    WufferController();
    ~WufferController() override;

    /// Call once, at the start. Opens what the user has chosen to open at launch and carries out
    /// the order. With Preferences or Converter nothing else opens; NewTimer opens one timer with
    /// the default settings.
    void awakeFromNib(LaunchOrder order = LaunchOrder::Activate);

    /// Carries out the order of a launch while the program runs, and brings it to the front.
    void carryOut(LaunchOrder order);

    /// Makes a timer. Its window lies one step right of and below that of the newest timer, and is
    /// not shown yet.
    void createNewWuffer();

    // What the menus do.

    void newWuffer();
    /// Starts every timer that is not running.
    void startAllWuffers();
    /// Mutes or unmutes every timer.
    void toggleMute();
    void showPreferences();
    void showConverter();
    void showMeasurements();
    /// Opens the help at its first page.
    void showHelp();
    /// Shows the About dialog.
    void showAbout();
    /// Opens the web page of the program.
    void donate();
    /// Closes every window and ends the program.
    void quit();

    /// What a menu item does to the controller.
    using Operation = void (WufferController::*)();
    /// Whether the menu item with this operation is enabled now.
    [[nodiscard]] bool validateMenuItem(Operation action) const;
    /// What an item of the Presets menu that saves a timer does to the controller.
    using SaveOperation = void (WufferController::*)(const QAction &sender);
    [[nodiscard]] bool validateMenuItem(SaveOperation action) const;

    /// Updates the Presets menu.
    void populatePresetsMenu();
    /// Opens the preset of the menu item in a new timer, and starts it if the settings say so.
    /// Does nothing if the item is null.
    void preset(const QAction *sender);
    /// Saves the timer of the active window into the preset of the menu item. Does nothing if the
    /// active window is not a timer's.
    void setPreset(const QAction &sender);
    /// Updates the status item from the timers.
    void refreshStatusItem();
    /// Empties the status item.
    void removeStatusBar();

private:
    [[nodiscard]] static Wuffer *newestWuffer();
    void openAtLaunch(LaunchOrder order);
    /// Brings the last active window to the front or, if that is gone, another open one.
    void orderFront();
    [[nodiscard]] std::unique_ptr<HomeWindow> makeHome();
    /// Makes and loads the preferences without showing them, unless they exist.
    void makePreferences();
    void showHelpPage(const QString &page);
    /// Opens below the button the list of timers that this one can start.
    void offerTargets(Wuffer *timer, QWidget *button);
    /// Shows one of the windows beside the timers; makes and fills it the first time.
    void show(std::unique_ptr<AuxiliaryWindow> &window, const QString &title,
              void (*fill)(QMainWindow &window));

    std::unique_ptr<PresetsMenu> _presetsMenu;
    std::unique_ptr<MainMenu> _mainMenu;
    std::unique_ptr<StatusPresenter> _statusItem;
    std::unique_ptr<LauncherPresenter> _launcherEntry;
    std::unique_ptr<AuxiliaryWindow> _preferencesWindow;
    std::unique_ptr<Preferences> _preferences;
    std::unique_ptr<AuxiliaryWindow> _converterWindow;
    std::unique_ptr<AuxiliaryWindow> _measurementsWindow;
    std::unique_ptr<AuxiliaryWindow> _helpWindow;
    std::unique_ptr<AboutDialog> _about;
    std::unique_ptr<HomeKeeper> _home;
    QPointer<QWidget> _lastActive;
};
