#include "platform/PlatformServices.h"

#include "base/DesktopNotifications.h"
#include "base/ScreenBlanking.h"
#include "platform/LauncherEntry.h"
#include "platform/generic/TrayStatusItem.h"

namespace
{
class NoNotifications final : public DesktopNotifications
{
    void notify(const QObject & /*sender*/, const DesktopNotification & /*notification*/) override
    {}
    void withdraw(const QObject & /*sender*/) override {}
};

class NoScreenBlanking final : public ScreenBlanking
{
    void begin(const QString & /*reason*/) override {}
    void end() override {}
};

class NoLauncherEntry final : public LauncherEntry
{
    [[nodiscard]] bool isRead() override { return false; }
    void show(const LauncherState & /*state*/) override {}
};
} // namespace

void PlatformServices::prepareProcess() {}

std::unique_ptr<DesktopNotifications> PlatformServices::desktopNotifications()
{
    return std::make_unique<NoNotifications>();
}

std::unique_ptr<ScreenBlanking> PlatformServices::screenBlanking()
{
    return std::make_unique<NoScreenBlanking>();
}

std::unique_ptr<StatusItem> PlatformServices::statusItem()
{
    return std::make_unique<TrayStatusItem>();
}

std::unique_ptr<LauncherEntry> PlatformServices::launcherEntry()
{
    return std::make_unique<NoLauncherEntry>();
}
