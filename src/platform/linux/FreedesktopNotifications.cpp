#include "platform/linux/FreedesktopNotifications.h"

#include "platform/linux/ActivationToken.h"
#include "platform/linux/BusQuestion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QGuiApplication>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <optional>

/// The state of the exchange with the server about one sender's notification.
struct FreedesktopNotifications::Conversation
{
    /// The server's id for the notification shown last; 0 for none.
    uint id = 0;
    /// The unique name of the server that gave the id, which is valid for no other server.
    QString server;
    /// True from the call of GetCapabilities until the answer to Notify.
    bool underWay = false;
    /// The latest notification not yet sent. It supersedes earlier ones, which are never sent.
    std::optional<DesktopNotification> next;
    /// The latest notification sent; nothing once it has been withdrawn or closed.
    std::optional<DesktopNotification> shown;
};

namespace
{
const QString kInterface = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");

using Action = std::function<void()> DesktopNotification::*;

/// A button; the key "default" stands for a click on the notification itself.
struct Button
{
    QLatin1String key;
    const char *label;
    Action action;
};

constexpr std::array kButtons{
    //: A button of a notification: brings the timer to the front.
    Button{QLatin1String("default"), QT_TRANSLATE_NOOP("FreedesktopNotifications", "Show"),
           &DesktopNotification::show},
    Button{QLatin1String("show"), QT_TRANSLATE_NOOP("FreedesktopNotifications", "Show"),
           &DesktopNotification::show},
    //: A button of a notification: ends the alarm.
    Button{QLatin1String("stop"), QT_TRANSLATE_NOOP("FreedesktopNotifications", "Stop"),
           &DesktopNotification::stop},
};

QDBusMessage call(const QString &server, const QString &method, const QVariantList &arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(server, kPath, kInterface, method);
    message.setArguments(arguments);
    return message;
}

/// The keys and labels of the buttons, alternating.
QStringList buttons(const DesktopNotification &notification)
{
    QStringList keysAndLabels;
    for (const Button &button : kButtons) {
        if (notification.*button.action)
            keysAndLabels << button.key << FreedesktopNotifications::tr(button.label);
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

/// The arguments of Notify, in the order of the protocol.
QVariantList notifyArguments(const DesktopNotification &notification, uint replacedId,
                             const QStringList &capabilities)
{
    const bool markup = capabilities.contains(QStringLiteral("body-markup"));
    const bool actions = capabilities.contains(QStringLiteral("actions"));
    constexpr int serversOwnTimeout = -1;
    return {QGuiApplication::applicationDisplayName(),
            replacedId,
            iconName(),
            notification.title,
            markup ? notification.text.toHtmlEscaped() : notification.text,
            actions ? buttons(notification) : QStringList(),
            hintsFor(notification),
            serversOwnTimeout};
}

/// How a notification was closed, by the reason number of the server.
DesktopNotification::End endForReason(const QVariant &reason)
{
    constexpr uint expired = 1;
    return reason.typeId() == QMetaType::UInt && reason.toUInt() == expired
               ? DesktopNotification::End::Expired
               : DesktopNotification::End::Dismissed;
}
} // namespace

void FreedesktopNotifications::notify(const QObject &sender,
                                      const DesktopNotification &notification)
{
    if (!BusQuestion::isPossible())
        return;
    listen();
    const std::shared_ptr<Conversation> conversation = conversationWith(sender);
    conversation->next = notification;
    if (!conversation->underWay)
        askCapabilities(conversation);
}

void FreedesktopNotifications::withdraw(const QObject &sender)
{
    const std::shared_ptr<Conversation> conversation = _conversations.value(&sender);
    if (!conversation)
        return;
    conversation->next.reset();
    conversation->shown.reset();
    const uint id = std::exchange(conversation->id, 0);
    if (id != 0) {
        QDBusConnection::sessionBus().asyncCall(
            call(conversation->server, QStringLiteral("CloseNotification"), {id}));
    }
}

std::shared_ptr<FreedesktopNotifications::Conversation>
FreedesktopNotifications::conversationWith(const QObject &sender)
{
    std::shared_ptr<Conversation> &conversation = _conversations[&sender];
    if (!conversation) {
        conversation = std::make_shared<Conversation>();
        connect(&sender, &QObject::destroyed, this, &FreedesktopNotifications::forget);
    }
    return conversation;
}

void FreedesktopNotifications::forget(const QObject *sender)
{
    withdraw(*sender);
    _conversations.remove(sender);
}

void FreedesktopNotifications::listen()
{
    if (_listening)
        return;
    // From any sender: for one name only, Qt would ask the bus for its owner and block meanwhile.
    _listening = QDBusConnection::sessionBus().connect({}, kPath, kInterface, {}, this,
                                                       SLOT(receive(QDBusMessage)));
}

void FreedesktopNotifications::receive(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.size() != 2 || arguments.front().typeId() != QMetaType::UInt)
        return;
    const auto conversation = conversationAbout(arguments.front().toUInt(), signal.service());
    if (!conversation)
        return;
    std::function<void()> action;
    if (signal.member() == QLatin1String("ActionInvoked")) {
        const auto *button = std::ranges::find(kButtons, arguments.back().toString(), &Button::key);
        if (button != std::end(kButtons))
            action = (*conversation->shown).*(button->action);
    } else if (signal.member() == QLatin1String("ActivationToken")) {
        // The server sends the token right before the ActionInvoked that it belongs to.
        useActivationToken(arguments.back().toString());
    } else if (signal.member() == QLatin1String("NotificationClosed")) {
        conversation->id = 0;
        if (const auto closed = std::exchange(conversation->shown, {})->closed)
            action = [closed, end = endForReason(arguments.back())] { closed(end); };
    }
    if (action)
        action();
}

std::shared_ptr<FreedesktopNotifications::Conversation>
FreedesktopNotifications::conversationAbout(uint id, const QString &server) const
{
    const auto found =
        std::find_if(_conversations.begin(), _conversations.end(), [&](const auto &each) {
            return each->id != 0 && each->id == id && each->server == server && !each->underWay &&
                   each->shown;
        });
    return found == _conversations.end() ? nullptr : *found;
}

void FreedesktopNotifications::askCapabilities(const std::shared_ptr<Conversation> &conversation)
{
    conversation->underWay = true;
    const auto answered = [this, conversation](const QDBusMessage &answer) {
        const QDBusReply<QStringList> capabilities(answer);
        // A restarted server counts from the beginning, so it may give our id to another program.
        if (answer.service() != conversation->server)
            conversation->id = 0;
        if (conversation->next)
            send(conversation, capabilities.isValid() ? capabilities.value() : QStringList());
        else
            conversation->underWay = false;
    };
    BusQuestion::ask(call(kInterface, QStringLiteral("GetCapabilities")), *this,
                     BusQuestion::kNoTimeout, answered);
}

void FreedesktopNotifications::send(const std::shared_ptr<Conversation> &conversation,
                                    const QStringList &capabilities)
{
    const uint replacedId = std::exchange(conversation->id, 0);
    conversation->shown = std::exchange(conversation->next, {});
    const QVariantList arguments = notifyArguments(*conversation->shown, replacedId, capabilities);
    // A server that was frozen shows the notification late; its late answer still has to be read
    // for the id, which is needed to withdraw the notification.
    BusQuestion::ask(
        call(kInterface, QStringLiteral("Notify"), arguments), *this, BusQuestion::kNoTimeout,
        [this, conversation](const QDBusMessage &answer) { sent(conversation, answer); });
}

void FreedesktopNotifications::sent(const std::shared_ptr<Conversation> &conversation,
                                    const QDBusMessage &answer)
{
    conversation->underWay = false;
    conversation->server = answer.service();
    const bool numbered =
        answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("u");
    const uint id = numbered ? answer.arguments().constFirst().toUInt() : 0;
    if (conversation->next || conversation->shown)
        conversation->id = id;
    else if (id != 0)
        QDBusConnection::sessionBus().asyncCall(
            call(conversation->server, QStringLiteral("CloseNotification"), {id}));
    if (conversation->next)
        askCapabilities(conversation);
}
