#include "app/WufferController.h"

#include "app/AboutDialog.h"
#include "app/AuxiliaryWindow.h"
#include "app/HomeKeeper.h"
#include "app/HomeWindow.h"
#include "app/LauncherPresenter.h"
#include "app/LinkMenu.h"
#include "app/MainMenu.h"
#include "app/PresetsMenu.h"
#include "app/StatusPresenter.h"
#include "app/WebPage.h"
#include "app/WufferApplication.h"
#include "base/Desktop.h"
#include "base/NotificationCenter.h"
#include "base/Service.h"
#include "base/UserDefaults.h"
#include "controls/WindowButtons.h"
#include "platform/LauncherEntry.h"
#include "platform/StatusItem.h"
#include "platform/WindowOrder.h"
#include "preferences/Preferences.h"
#include "rules/LaunchChoices.h"
#include "rules/PreferenceTexts.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "tools/Converter.h"
#include "tools/HelpPanel.h"
#include "tools/MeasurementsPanel.h"

#include <QScreen>
#include <QWindow>

WufferController::WufferController() :
    _presetsMenu(std::make_unique<PresetsMenu>(*this)),
    _mainMenu(std::make_unique<MainMenu>(*this, *_presetsMenu)),
    _statusItem(std::make_unique<StatusPresenter>(Service<StatusItem>::current())),
    _launcherEntry(std::make_unique<LauncherPresenter>(Service<LauncherEntry>::current())),
    _home(std::make_unique<HomeKeeper>([this] { return makeHome(); }))
{
    connect(&WufferApplication::instance(), &WufferApplication::helpRequested, this,
            &WufferController::showHelpPage);
    connect(&WufferApplication::instance(), &WufferApplication::targetsRequested, this,
            &WufferController::offerTargets);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] {
        if (QWidget *active = QApplication::activeWindow())
            _lastActive = active;
    });
}

WufferController::~WufferController() = default;

void WufferController::awakeFromNib(LaunchOrder order)
{
    NotificationCenter &center = NotificationCenter::defaultCenter();
    populatePresetsMenu();
    center.addObserver(*this, Notices::kPresetsChanged,
                       [this](QObject *) { populatePresetsMenu(); });
    openAtLaunch(order);
    // After the timer: its window is still on its way to the screen, so the user does not wait.
    makePreferences();
    // Last, so that a timer that starts at launch enters the status item at its first tick.
    center.addObserver(*this, Notices::kStatusChanged, [this](QObject *) { refreshStatusItem(); });
    center.addObserver(*this, Notices::kStatusChanged,
                       [this](QObject *) { _launcherEntry->refresh(); });
    // For Activate and NewTimer everything is open already.
    if (order != LaunchOrder::Activate && order != LaunchOrder::NewTimer)
        carryOut(order);
    _home->showIfNoWindowIsOpen();
}

/// Which windows open at a launch with this order.
static const LaunchChoices::Row &launchChoice(LaunchOrder order)
{
    switch (order) {
    case LaunchOrder::NewTimer:
        return LaunchChoices::fromStored(kLaunchTimer);
    case LaunchOrder::Preferences:
    case LaunchOrder::Converter:
        return LaunchChoices::fromStored(kLaunchNothing);
    default:
        return LaunchChoices::fromStored(
            UserDefaults::standardUserDefaults().value(Keys::kLaunchBehavior));
    }
}

void WufferController::openAtLaunch(LaunchOrder order)
{
    const LaunchChoices::Row &choice = launchChoice(order);
    if (!choice.opensTimer)
        return;
    createNewWuffer();
    newestWuffer()->loadSettingsFromDefaultsWithKey(
        choice.takesPreset ? Wuffer::keyForPreset(1) : Keys::kDefaultWufferSettings.text(), true);
    if (choice.starts)
        newestWuffer()->goPressed();
}

void WufferController::carryOut(LaunchOrder order)
{
    switch (order) {
    case LaunchOrder::Activate:
        return orderFront();
    case LaunchOrder::NewTimer:
        return newWuffer();
    case LaunchOrder::StartAll:
        startAllWuffers();
        return orderFront();
    case LaunchOrder::Preferences:
        return showPreferences();
    case LaunchOrder::Converter:
        return showConverter();
    }
}

void WufferController::orderFront()
{
    QWidget *front = _lastActive;
    if (!front || !front->isVisible())
        front = newestWuffer() ? newestWuffer()->window() : HomeKeeper::openWindow();
    if (front)
        bringToFront(*front);
}

std::unique_ptr<HomeWindow> WufferController::makeHome()
{
    return std::make_unique<HomeWindow>(
        *_mainMenu, _mainMenu->itemFor(&WufferController::newWuffer), _presetsMenu->openItems());
}

void WufferController::createNewWuffer()
{
    const Wuffer *previous = newestWuffer();
    WufferWindow &window = *WufferApplication::instance().openWuffer().window();
    _mainMenu->addTo(window);
    if (!previous)
        return;
    const QPoint next = window.cascadeTopLeftFromPoint(previous->window()->pos());
    window.cascadeTopLeftFromPoint(next);
}

void WufferController::newWuffer()
{
    createNewWuffer();
    newestWuffer()->showWufferWindow();
}

void WufferController::startAllWuffers()
{
    for (Wuffer *timer : WufferApplication::getWuffers()) {
        if (!timer->isRunning())
            timer->goPressed();
    }
}

void WufferController::toggleMute()
{
    makePreferences();
    _preferences->toggleMute();
}

void WufferController::makePreferences()
{
    if (_preferences)
        return;
    _preferencesWindow = std::make_unique<AuxiliaryWindow>(*_mainMenu, tr("Preferences"));
    _preferencesWindow->setWindowFlags(kWindowNotToMaximize);
    _preferences = std::make_unique<Preferences>(*_preferencesWindow,
                                                 _mainMenu->itemFor(&WufferController::toggleMute),
                                                 &WufferApplication::isQuitting);
}

void WufferController::showPreferences()
{
    makePreferences();
    _preferencesWindow->orderFront();
}

void WufferController::showConverter()
{
    show(_converterWindow, tr("Converter"), [](QMainWindow &window) {
        window.setWindowFlags(kWindowNotToMaximize);
        auto *converter = new Converter(&window);
        converter->setConverterWindow(&window);
        converter->awakeFromNib();
    });
}

void WufferController::showMeasurements()
{
    show(_measurementsWindow, tr("Measurements"), [](QMainWindow &window) {
        window.setCentralWidget(new MeasurementsPanel(&window));
        window.centralWidget()->setFocus();
        window.resize(window.sizeHint().boundedTo(window.screen()->availableSize()));
    });
}

void WufferController::showHelp()
{
    showHelpPage(QStringLiteral("index"));
}

void WufferController::showHelpPage(const QString &page)
{
    show(_helpWindow, tr("Wuffer Help"), [](QMainWindow &window) {
        window.setCentralWidget(new HelpPanel(MainMenu::keys(), &window));
        window.resize(window.sizeHint().boundedTo(window.screen()->availableSize()));
    });
    static_cast<HelpPanel &>(*_helpWindow->centralWidget()).showPage(page);
}

void WufferController::offerTargets(Wuffer *timer, QWidget *button)
{
    auto *menu = new LinkMenu(*timer, *button);
    // Deleted later, because the chosen action is triggered only after the menu has closed.
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    menu->popup(button->mapToGlobal(button->rect().bottomLeft()));
}

void WufferController::show(std::unique_ptr<AuxiliaryWindow> &window, const QString &title,
                            void (*fill)(QMainWindow &window))
{
    if (!window) {
        window = std::make_unique<AuxiliaryWindow>(*_mainMenu, title);
        fill(*window);
    }
    window->orderFront();
}

void WufferController::showAbout()
{
    if (!_about)
        _about = std::make_unique<AboutDialog>(*_mainMenu);
    _about->orderFront();
}

void WufferController::donate()
{
    Service<Desktop>::current().openUrl(WebPage::address());
}

void WufferController::quit()
{
    QCoreApplication::quit();
}

bool WufferController::validateMenuItem(Operation /*action*/) const
{
    return true;
}

bool WufferController::validateMenuItem(SaveOperation /*action*/) const
{
    return newestWuffer() != nullptr;
}

void WufferController::populatePresetsMenu()
{
    _presetsMenu->populate();
}

void WufferController::preset(const QAction *sender)
{
    if (!sender)
        return;
    createNewWuffer();
    const auto number = static_cast<quint32>(PresetsMenu::presetNumber(*sender));
    newestWuffer()->loadSettingsFromDefaultsWithKey(Wuffer::keyForPreset(number), true);
    if (UserDefaults::standardUserDefaults().value(Keys::kAutoStartPresets))
        newestWuffer()->goPressed();
}

void WufferController::setPreset(const QAction &sender)
{
    if (Wuffer *timer = WufferApplication::keyWuffer())
        timer->setPreset(PresetsMenu::presetNumber(sender));
}

void WufferController::refreshStatusItem()
{
    _statusItem->refreshStatusItem();
}

void WufferController::removeStatusBar()
{
    _statusItem->removeStatusBar();
}

Wuffer *WufferController::newestWuffer()
{
    const std::vector<Wuffer *> timers = WufferApplication::getWuffers();
    return timers.empty() ? nullptr : timers.back();
}
