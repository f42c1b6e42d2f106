#pragma once

#include "base/DesktopNotifications.h"

#include <QStringList>
#include <QVariantList>

/// The arguments of the method Notify in the Desktop Notifications Specification 1.2 of
/// freedesktop.org.
namespace NotifyArguments
{
/// What a notification server says about itself.
struct Server
{
    QString name;
    QStringList capabilities;
};

/// The arguments in the order of the protocol. The notification replaces the one with the id
/// replacedId, unless that is 0.
[[nodiscard]] QVariantList of(const DesktopNotification &notification, uint replacedId,
                              const Server &server);

/// What the button with this key does; an empty function for an unknown key.
[[nodiscard]] std::function<void()> actionOf(const DesktopNotification &notification,
                                             const QString &key);
} // namespace NotifyArguments
