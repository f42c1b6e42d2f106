#include "platform/PlatformServices.h"

#include "platform/ProcessTuning.h"
#include "platform/linux/FreedesktopNotifications.h"
#include "platform/linux/FreedesktopScreenBlanking.h"
#include "platform/linux/FreedesktopStatusItem.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/UnityLauncherEntry.h"

void PlatformServices::prepareProcess()
{
    tuneProcess();
    SessionBus::disableUnlessItAnswers();
    // Timers position their windows, which Wayland does not allow.
    const bool hasX11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (hasX11 && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

std::unique_ptr<DesktopNotifications> PlatformServices::desktopNotifications()
{
    return std::make_unique<FreedesktopNotifications>();
}

std::unique_ptr<ScreenBlanking> PlatformServices::screenBlanking()
{
    return std::make_unique<FreedesktopScreenBlanking>();
}

std::unique_ptr<StatusItem> PlatformServices::statusItem()
{
    return std::make_unique<FreedesktopStatusItem>();
}

std::unique_ptr<LauncherEntry> PlatformServices::launcherEntry()
{
    return std::make_unique<UnityLauncherEntry>();
}
