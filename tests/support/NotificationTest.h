#pragma once

#include "platform/linux/FreedesktopNotifications.h"
#include "support/NotificationServer.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/TestMain.h"

#include <optional>

/// A test of notifications with buttons, on a private session bus where it plays the server.
class NotificationTest : public Test
{
protected:
    explicit NotificationTest(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

    /// A notification that enters in the diary what is done to it.
    [[nodiscard]] DesktopNotification withActions()
    {
        return {.title = QStringLiteral("Tea"),
                .text = QStringLiteral("done"),
                .name = QStringLiteral("wuff"),
                .show = [this] { _diary << QStringLiteral("shown"); },
                .stop = [this] { _diary << QStringLiteral("stopped"); },
                .closed =
                    [this](DesktopNotification::End end) {
                        const bool expired = end == DesktopNotification::End::Expired;
                        _diary << (expired ? QStringLiteral("expired") : QStringLiteral("closed"));
                    }};
    }
    /// Shows a notification, and waits until the program knows its id, 100.
    void show(FreedesktopNotifications &notifications, const QObject &sender)
    {
        notifications.notify(sender, withActions());
        QTRY_VERIFY(!_server->shown.empty());
        settle();
    }
    /// Waits until all messages to and from the notification server have arrived.
    static void settle() { settleWith(QStringLiteral("org.freedesktop.Notifications")); }

    const QString _address;
    std::optional<NotificationServer> _server;
    QStringList _diary;
};
