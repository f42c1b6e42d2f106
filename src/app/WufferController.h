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
class MainMenu;
class PresetsMenu;
class Preferences;
class QMainWindow;
class QWidget;
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

    /// The work of the start, once: opens what the user has chosen for it, or what this launch is
    /// for. Preferences and converter are then all that opens, and a new timer is like the one that
    /// opens without a choice.
    void awakeFromNib(LaunchOrder order = LaunchOrder::Activate);

    /// Does what somebody who launches the running program once more wants of it, and brings the
    /// program to the front.
    void carryOut(LaunchOrder order);

    /// Makes a timer, its window one step right of and below that of the newest timer. The window
    /// is not shown yet.
    void createNewWuffer();

    // What the menus do.

    void newWuffer();
    /// Starts every timer that is not running.
    void startAllWuffers();
    /// Mutes every timer, or lets them all be heard again.
    void toggleMute();
    void showPreferences();
    void showConverter();
    void showMeasurements();
    /// Opens the help at its first page.
    void showHelp();
    /// Shows what the program is, and what it is made of.
    void showAbout();
    /// Opens the web page of the program.
    void donate();
    /// Closes every window and ends the program.
    void quit();

    /// What a menu item does to the controller.
    using Operation = void (WufferController::*)();
    /// Whether the menu item with this operation is enabled now.
    [[nodiscard]] bool validateMenuItem(Operation action) const;
    /// What an item of the Presets menu does that saves a timer.
    using SaveOperation = void (WufferController::*)(const QAction &sender);
    [[nodiscard]] bool validateMenuItem(SaveOperation action) const;

    /// Brings the Presets menu up to date.
    void populatePresetsMenu();
    /// Opens the preset of the menu item in a new timer, and starts it if the user wishes so.
    /// Nothing happens without an item.
    void preset(const QAction *sender);
    /// Saves the timer of the active window into the preset of the menu item. Nothing happens
    /// when the active window is not a timer's.
    void setPreset(const QAction &sender);
    /// Brings the status item up to date with the timers.
    void refreshStatusItem();
    /// Empties the status item.
    void removeStatusBar();

private:
    [[nodiscard]] static Wuffer *newestWuffer();
    void openAtLaunch(LaunchOrder order);
    /// Brings the window to the front that was active last, or else one that is open.
    void orderFront();
    [[nodiscard]] std::unique_ptr<HomeWindow> makeHome();
    /// Makes the preferences, not shown, and loads them, unless that is done.
    void makePreferences();
    void showHelpPage(const QString &page);
    /// Opens the list of the timers that this one may start, below the button.
    void offerTargets(Wuffer *timer, QWidget *button);
    /// Shows one of the windows beside the timers, which is made and filled when it is first asked
    /// for.
    void show(std::unique_ptr<AuxiliaryWindow> &window, const QString &title,
              void (*fill)(QMainWindow &window));

    std::unique_ptr<PresetsMenu> _presetsMenu;
    std::unique_ptr<MainMenu> _mainMenu;
    std::unique_ptr<StatusPresenter> _statusItem;
    std::unique_ptr<AuxiliaryWindow> _preferencesWindow;
    std::unique_ptr<Preferences> _preferences;
    std::unique_ptr<AuxiliaryWindow> _converterWindow;
    std::unique_ptr<AuxiliaryWindow> _measurementsWindow;
    std::unique_ptr<AuxiliaryWindow> _helpWindow;
    std::unique_ptr<AboutDialog> _about;
    std::unique_ptr<HomeKeeper> _home;
    QPointer<QWidget> _lastActive;
};
