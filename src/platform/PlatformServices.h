#pragma once

#include <memory>

class DesktopNotifications;
class ScreenBlanking;
class StatusItem;

/// The list of services that each system has in its own way. linux/ and generic/ both define it;
/// the build takes one of them.
namespace PlatformServices
{
/// Sets the process up for the system. Comes before the application object.
void prepareProcess();

[[nodiscard]] std::unique_ptr<DesktopNotifications> desktopNotifications();
[[nodiscard]] std::unique_ptr<ScreenBlanking> screenBlanking();
[[nodiscard]] std::unique_ptr<StatusItem> statusItem();
} // namespace PlatformServices
