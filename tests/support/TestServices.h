#pragma once

#include "base/Service.h"
#include "base/UserDefaults.h"
#include "support/Fakes.h"
#include "support/TestClock.h"

#include <QTemporaryDir>

/// The services of one test: a clock that the test moves, settings of its own, and fakes that
/// record what the program does. The destructor closes every timer that is still open.
class TestServices
{
public:
    TestServices();
    ~TestServices();
    Q_DISABLE_COPY_MOVE(TestServices)

    /// The path of the settings file.
    [[nodiscard]] QString settingsPath() const;

private:
    QTemporaryDir _folder;

public:
    TestClock clock;
    UserDefaults defaults;
    FakeSoundSystem sounds;
    FakeNotifications notifications;
    FakeScreenBlanking screenBlanking;
    FakeDesktop desktop;
    FakeOpenPanel openPanel;
    FakeStatusItem statusItem;
    FakeLauncherEntry launcherEntry;

private:
    Service<Clock> _clockService{clock};
    Service<UserDefaults> _defaultsService{defaults};
    Service<SoundSystem> _soundService{sounds};
    Service<DesktopNotifications> _notificationService{notifications};
    Service<ScreenBlanking> _screenBlankingService{screenBlanking};
    Service<Desktop> _desktopService{desktop};
    Service<OpenPanel> _openPanelService{openPanel};
    Service<StatusItem> _statusItemService{statusItem};
    Service<LauncherEntry> _launcherEntryService{launcherEntry};
};
