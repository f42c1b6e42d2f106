#include "app/WufferController.h"

#include "app/AuxiliaryWindow.h"
#include "app/MainMenu.h"
#include "app/StatusPresenter.h"
#include "app/WebPage.h"
#include "app/WufferApplication.h"
#include "platform/Desktop.h"
#include "platform/NotificationCenter.h"
#include "platform/Service.h"
#include "platform/StatusItem.h"
#include "platform/UserDefaults.h"
#include "settings/WufferWindow.h"
#include "timer/Wuffer.h"

namespace
{
// What may open at launch, as the settings hold it. Anything else opens one timer.
constexpr QStringView kLaunchNothing = u"Do Nothing";
constexpr QStringView kLaunchPreset = u"Open Preset ⌘1";
constexpr QStringView kLaunchAndStartPreset = u"Open and Start Preset ⌘1";
} // namespace

WufferController::WufferController() :
    _mainMenu(std::make_unique<MainMenu>(*this)),
    _statusItem(std::make_unique<StatusPresenter>(Service<StatusItem>::current()))
{}

WufferController::~WufferController() = default;

void WufferController::awakeFromNib()
{
    NotificationCenter &center = NotificationCenter::defaultCenter();
    populatePresetsMenu();
    center.addObserver(*this, QStringLiteral("presetsChangedNotification"),
                       [this](QObject *) { populatePresetsMenu(); });
    openAtLaunch();
    // Last, so that what started at launch shows at its first tick and not before.
    center.addObserver(*this, QStringLiteral("statusChanged"),
                       [this](QObject *) { refreshStatusItem(); });
}

void WufferController::openAtLaunch()
{
    const QString choice = UserDefaults::standardUserDefaults()
                               .stringForKey(QStringLiteral("launchBehavior"))
                               .value_or(QString());
    if (choice == kLaunchNothing)
        return;
    const bool preset = choice == kLaunchPreset || choice == kLaunchAndStartPreset;
    createNewWuffer();
    newestWuffer()->loadSettingsFromDefaultsWithKey(
        preset ? Wuffer::keyForPreset(1) : QStringLiteral("defaultWufferSettings"), true);
    if (choice == kLaunchAndStartPreset)
        newestWuffer()->goPressed();
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

void WufferController::showPreferences()
{
    show(_preferencesWindow, tr("Preferences"));
}

void WufferController::showConverter()
{
    show(_converterWindow, tr("Converter"));
}

void WufferController::showMeasurements()
{
    show(_measurementsWindow, tr("Measurements"));
}

void WufferController::show(std::unique_ptr<AuxiliaryWindow> &window, const QString &title)
{
    if (!window)
        window = std::make_unique<AuxiliaryWindow>(*_mainMenu, title);
    window->orderFront();
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

void WufferController::populatePresetsMenu() {}

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
