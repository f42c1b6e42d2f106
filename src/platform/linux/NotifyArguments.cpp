#include "platform/linux/NotifyArguments.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QVariantMap>

#include <algorithm>
#include <array>

namespace
{
using Action = std::function<void()> DesktopNotification::*;

struct Button
{
    QLatin1String key;
    const char *label;
    Action action;
};

/// The key of a click on the notification itself.
constexpr QLatin1String kDefault("default");
/// The key of the button that does the same as the click.
constexpr QLatin1String kShow("show");

constexpr std::array kButtons{
    //: A button of a notification: brings the timer to the front.
    Button{kDefault, QT_TRANSLATE_NOOP("FreedesktopNotifications", "Show"),
           &DesktopNotification::show},
    Button{kShow, QT_TRANSLATE_NOOP("FreedesktopNotifications", "Show"),
           &DesktopNotification::show},
    //: A button of a notification: ends the alarm.
    Button{QLatin1String("stop"), QT_TRANSLATE_NOOP("FreedesktopNotifications", "Stop"),
           &DesktopNotification::stop},
};

/// The servers that draw a button for the click, too, by the names that they give themselves.
constexpr std::array kDrawDefault{"Xfce Notify Daemon", "lxqt-notificationd"};

bool isOffered(const Button &button, const DesktopNotification &notification,
               const QString &serverName)
{
    const auto isServer = [&](const char *name) { return serverName == QLatin1String(name); };
    const bool isTwice = button.key == kShow && std::ranges::any_of(kDrawDefault, isServer);
    return notification.*button.action && !isTwice;
}

/// The keys and labels of the buttons, alternating.
QStringList buttons(const DesktopNotification &notification, const QString &serverName)
{
    QStringList keysAndLabels;
    for (const Button &button : kButtons) {
        if (isOffered(button, notification, serverName))
            keysAndLabels << button.key
                          << QCoreApplication::translate("FreedesktopNotifications", button.label);
    }
    return keysAndLabels;
}

/// The icon is installed under the name of the program.
QString iconName()
{
    return QGuiApplication::applicationName();
}

QVariantMap hintsFor(const DesktopNotification &notification)
{
    QVariantMap hints{
        {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()},
        {QStringLiteral("category"), QString(QStringLiteral("x-wuffer.") + notification.name)},
        // The program plays its own alarm.
        {QStringLiteral("suppress-sound"), true},
    };
    // With low urgency the desktop does not list every reminder as a missed notification.
    constexpr uchar low = 0;
    if (notification.occasion == DesktopNotification::Occasion::Reminder)
        hints[QStringLiteral("urgency")] = QVariant::fromValue(low);
    return hints;
}
} // namespace

QVariantList NotifyArguments::of(const DesktopNotification &notification, uint replacedId,
                                 const Server &server)
{
    const bool markup = server.capabilities.contains(QStringLiteral("body-markup"));
    const bool actions = server.capabilities.contains(QStringLiteral("actions"));
    constexpr int serversOwnTimeout = -1;
    return {QGuiApplication::applicationDisplayName(),
            replacedId,
            iconName(),
            notification.title,
            markup ? notification.text.toHtmlEscaped() : notification.text,
            actions ? buttons(notification, server.name) : QStringList(),
            hintsFor(notification),
            serversOwnTimeout};
}

std::function<void()> NotifyArguments::actionOf(const DesktopNotification &notification,
                                                const QString &key)
{
    const auto *button = std::ranges::find(kButtons, key, &Button::key);
    return button != std::end(kButtons) ? notification.*button->action : nullptr;
}
