#include "platform/FreedesktopNotifications.h"

#include "platform/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QVariantMap>

#include <optional>

/// What has been said to the server, and is still to say, on behalf of one sender.
struct FreedesktopNotifications::Conversation
{
    /// The server's number for the notification shown last; 0 when there is none.
    uint id = 0;
    /// The unique name of the server that gave the number. To another one it means nothing.
    QString server;
    /// True from the first question until the server has numbered the notification.
    bool underWay = false;
    /// The latest that has not been sent. Whatever came before it would only be replaced.
    std::optional<DesktopNotification> next;
};

namespace
{
QDBusMessage serverCall(const QString &method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                          QStringLiteral("/org/freedesktop/Notifications"),
                                          QStringLiteral("org.freedesktop.Notifications"), method);
}

/// The icon is installed under the name of the program.
QString iconName()
{
    return QGuiApplication::applicationName();
}

/// The arguments of Notify, in the order of the protocol.
QVariantList notifyArguments(const DesktopNotification &notification, uint replacedId, bool markup)
{
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()},
        {QStringLiteral("category"), QString(QStringLiteral("x-wuffer.") + notification.name)},
        // The program plays its own alarm.
        {QStringLiteral("suppress-sound"), true},
    };
    const QString text = markup ? notification.text.toHtmlEscaped() : notification.text;
    constexpr int serversOwnTimeout = -1;
    return {QGuiApplication::applicationDisplayName(),
            replacedId,
            iconName(),
            notification.title,
            text,
            QStringList(),
            hints,
            serversOwnTimeout};
}

template<class Function>
void whenAnswered(const QDBusMessage &call, QObject &context, Function &&function)
{
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), &context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, &QObject::deleteLater);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context,
                     std::forward<Function>(function));
}
} // namespace

void FreedesktopNotifications::notify(const QObject &sender,
                                      const DesktopNotification &notification)
{
    if (!SessionBus::isPresent() || !QDBusConnection::sessionBus().isConnected())
        return;
    std::shared_ptr<Conversation> &conversation = _conversations[&sender];
    if (!conversation) {
        conversation = std::make_shared<Conversation>();
        connect(&sender, &QObject::destroyed, this,
                [this](QObject *gone) { _conversations.remove(gone); });
    }
    conversation->next = notification;
    if (!conversation->underWay)
        askCapabilities(conversation);
}

void FreedesktopNotifications::askCapabilities(const std::shared_ptr<Conversation> &conversation)
{
    conversation->underWay = true;
    whenAnswered(serverCall(QStringLiteral("GetCapabilities")), *this,
                 [this, conversation](QDBusPendingCallWatcher *call) {
                     const QDBusPendingReply<QStringList> capabilities = *call;
                     // A server that was restarted counts anew: its number for ours is another's.
                     if (call->reply().service() != conversation->server)
                         conversation->id = 0;
                     send(conversation,
                          capabilities.isValid() &&
                              capabilities.value().contains(QStringLiteral("body-markup")));
                 });
}

void FreedesktopNotifications::send(const std::shared_ptr<Conversation> &conversation, bool markup)
{
    QDBusMessage call = serverCall(QStringLiteral("Notify"));
    call.setArguments(notifyArguments(*conversation->next, conversation->id, markup));
    conversation->next.reset();
    whenAnswered(call, *this, [this, conversation](QDBusPendingCallWatcher *answer) {
        const QDBusPendingReply<uint> id = *answer;
        conversation->id = id.isValid() ? id.value() : 0;
        conversation->server = answer->reply().service();
        conversation->underWay = false;
        if (conversation->next)
            askCapabilities(conversation);
    });
}
