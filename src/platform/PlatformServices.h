#pragma once

#include <memory>

class DesktopNotifications;
class LauncherEntry;
class ScreenBlanking;
class StatusItem;

/// The services whose implementation depends on the system. linux/ and generic/ both define these
/// functions; the build takes one of the two.
namespace PlatformServices
{
/// Prepares the process for the system. Call it before the application object is made.
void prepareProcess();

[[nodiscard]] std::unique_ptr<DesktopNotifications> desktopNotifications();
[[nodiscard]] std::unique_ptr<ScreenBlanking> screenBlanking();
[[nodiscard]] std::unique_ptr<StatusItem> statusItem();
[[nodiscard]] std::unique_ptr<LauncherEntry> launcherEntry();
} // namespace PlatformServices
