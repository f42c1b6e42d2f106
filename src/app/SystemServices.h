#pragma once

#include "base/DesktopNotifications.h"
#include "base/ScreenBlanking.h"
#include "base/Service.h"
#include "base/UserDefaults.h"
#include "platform/LauncherEntry.h"
#include "platform/LazySoundSystem.h"
#include "platform/PlatformServices.h"
#include "platform/StatusItem.h"
#include "platform/SystemClock.h"
#include "platform/SystemDesktop.h"
#include "platform/SystemOpenPanel.h"
#include "rules/GatheredNotifications.h"

/// The services of the platform that the running program uses, installed for as long as this
/// object lives.
class SystemServices final
{
public:
    SystemServices() = default;
    Q_DISABLE_COPY_MOVE(SystemServices)

private:
    SystemClock _clock;
    /// Declared before the services that use the clock.
    Service<Clock> _clockService{_clock};
    UserDefaults _defaults{UserDefaults::standardPath()};
    LazySoundSystem _sounds;
    const std::unique_ptr<DesktopNotifications> _notifications =
        PlatformServices::desktopNotifications();
    GatheredNotifications _gatheredNotifications{*_notifications};
    const std::unique_ptr<ScreenBlanking> _screenBlanking = PlatformServices::screenBlanking();
    SystemDesktop _desktop;
    SystemOpenPanel _openPanel;
    const std::unique_ptr<StatusItem> _statusItem = PlatformServices::statusItem();
    const std::unique_ptr<LauncherEntry> _launcherEntry = PlatformServices::launcherEntry();

    Service<UserDefaults> _defaultsService{_defaults};
    Service<SoundSystem> _soundService{_sounds};
    Service<DesktopNotifications> _notificationService{_gatheredNotifications};
    Service<ScreenBlanking> _screenBlankingService{*_screenBlanking};
    Service<Desktop> _desktopService{_desktop};
    Service<OpenPanel> _openPanelService{_openPanel};
    Service<StatusItem> _statusItemService{*_statusItem};
    Service<LauncherEntry> _launcherEntryService{*_launcherEntry};
};
