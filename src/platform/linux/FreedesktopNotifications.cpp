#include "platform/linux/FreedesktopNotifications.h"

#include "platform/linux/ActivationToken.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/BusQuestion.h"
#include "platform/linux/NotifyArguments.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

/// The state of the exchange with the server about one sender's notification.
struct FreedesktopNotifications::Conversation
{
    /// The server's id for the notification shown last; 0 for none.
    uint id = 0;
    /// The unique name of the server that gave the id, which is valid for no other server.
    QString server;
    /// What the server calls itself; empty if it does not say.
    QString serverName;
    /// What the server is to answer.
    enum class Awaited { Nothing, Capabilities, Id } awaited = Awaited::Nothing;
    /// Whether a server has come since then. The calls before may have missed it.
    bool serverCame = false;
    /// Whether the bus may start a server for the calls. Not for those that are repeated because a
    /// server has come: it may crash each time.
    bool mayStartServer = true;
    /// The latest notification not yet sent. It supersedes earlier ones, which are never sent.
    std::optional<DesktopNotification> next;
    /// The latest notification sent; nothing once it has been withdrawn or closed.
    std::optional<DesktopNotification> shown;
    /// The conversations whose notifications the server has merged into the one that is being sent.
    std::vector<std::weak_ptr<Conversation>> merged = {};

    /// Whether this notification is on the screen, as the one with this id of this server.
    [[nodiscard]] bool isAbout(uint otherId, const QString &otherServer) const
    {
        return id != 0 && id == otherId && server == otherServer && awaited == Awaited::Nothing &&
               shown;
    }
    /// Whether a notification with the same texts has been sent that the server has not answered.
    [[nodiscard]] bool isSending(const DesktopNotification &equal) const
    {
        return awaited == Awaited::Id && shown && shown->title == equal.title &&
               shown->text == equal.text;
    }
};

namespace
{
const QString kInterface = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");

QDBusMessage call(const QString &server, const QString &method, const QVariantList &arguments = {},
                  bool mayStartServer = false)
{
    QDBusMessage message = QDBusMessage::createMethodCall(server, kPath, kInterface, method);
    message.setArguments(arguments);
    message.setAutoStartService(mayStartServer);
    return message;
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

FreedesktopNotifications::FreedesktopNotifications()
{
    const BusConnection &bus = BusConnection::instance();
    connect(&bus, &BusConnection::lost, this, &FreedesktopNotifications::busLost);
    connect(&bus, &BusConnection::found, this, [this] {
        listen();
        showAgain(true);
    });
    connect(&_watch, &BusNameWatch::appeared, this, [this] { showAgain(false); });
}

void FreedesktopNotifications::notify(const QObject &sender,
                                      const DesktopNotification &notification)
{
    const std::shared_ptr<Conversation> conversation = conversationWith(sender);
    conversation->next = notification;
    conversation->mayStartServer = true;
    if (!BusQuestion::isPossible())
        return;
    listen();
    if (conversation->awaited == Conversation::Awaited::Nothing)
        askAboutServer(conversation);
}

void FreedesktopNotifications::withdraw(const QObject &sender)
{
    const std::shared_ptr<Conversation> conversation = _conversations.value(&sender);
    if (!conversation)
        return;
    conversation->next.reset();
    conversation->shown.reset();
    const uint id = std::exchange(conversation->id, 0);
    // A notification into which others have been merged goes with the last of them.
    if (id != 0 && conversationsAbout(id, conversation->server).empty()) {
        BusConnection::instance().current().asyncCall(
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
    _watch.watch(kInterface);
    // From any sender: for one name only, Qt would ask the bus for its owner and block meanwhile.
    _listening = BusConnection::instance().current().connect({}, kPath, kInterface, {}, this,
                                                             SLOT(receive(QDBusMessage)));
}

void FreedesktopNotifications::busLost()
{
    _listening = false;
    // A new bus gives the names of its servers anew.
    for (const std::shared_ptr<Conversation> &conversation : std::as_const(_conversations)) {
        conversation->id = 0;
        conversation->server.clear();
    }
}

void FreedesktopNotifications::showAgain(bool mayStartServer)
{
    for (const std::shared_ptr<Conversation> &conversation : std::as_const(_conversations)) {
        const bool isUnderWay = conversation->awaited != Conversation::Awaited::Nothing;
        if (!isUnderWay && !conversation->next && conversation->id == 0)
            conversation->next = conversation->shown;
        conversation->serverCame = isUnderWay;
        conversation->mayStartServer = mayStartServer;
        if (conversation->next && !isUnderWay)
            askAboutServer(conversation);
    }
}

void FreedesktopNotifications::receive(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.size() != 2 || arguments.front().typeId() != QMetaType::UInt)
        return;
    // An answer may destroy senders or send notifications, so all answers are found before the
    // first one is given.
    std::vector<std::function<void()>> answers;
    for (const auto &each : conversationsAbout(arguments.front().toUInt(), signal.service()))
        answers.push_back(answerTo(signal.member(), arguments.back(), each));
    for (const auto &answer : answers) {
        if (answer)
            answer();
    }
}

std::function<void()> FreedesktopNotifications::answerTo(const QString &signal,
                                                         const QVariant &argument,
                                                         const std::shared_ptr<Conversation> &about)
{
    // Another answer to the same signal may withdraw the notification first.
    if (signal == QLatin1String("ActionInvoked")) {
        return [about, action = NotifyArguments::actionOf(*about->shown, argument.toString())] {
            if (about->shown && action)
                action();
        };
    }
    if (signal == QLatin1String("ActivationToken")) {
        // The server sends the token right before the ActionInvoked that it belongs to.
        return [token = argument.toString()] { useActivationToken(token); };
    }
    if (signal != QLatin1String("NotificationClosed"))
        return {};
    about->id = 0;
    if (mergedByServer(about))
        return {};
    return [about, end = endForReason(argument)] {
        const auto ended = std::exchange(about->shown, {});
        if (ended && ended->closed)
            ended->closed(end);
    };
}

bool FreedesktopNotifications::mergedByServer(const std::shared_ptr<Conversation> &closed)
{
    const auto equal =
        std::find_if(_conversations.begin(), _conversations.end(),
                     [&](const auto &each) { return each->isSending(*closed->shown); });
    if (equal == _conversations.end())
        return false;
    (*equal)->merged.push_back(closed);
    return true;
}

std::vector<std::shared_ptr<FreedesktopNotifications::Conversation>>
FreedesktopNotifications::conversationsAbout(uint id, const QString &server) const
{
    std::vector<std::shared_ptr<Conversation>> found;
    std::copy_if(_conversations.begin(), _conversations.end(), std::back_inserter(found),
                 [&](const auto &each) { return each->isAbout(id, server); });
    return found;
}

void FreedesktopNotifications::askAboutServer(const std::shared_ptr<Conversation> &conversation)
{
    conversation->awaited = Conversation::Awaited::Capabilities;
    conversation->serverCame = false;
    const bool mayStart = conversation->mayStartServer;
    // Answered before the capabilities, so it is not waited for.
    BusQuestion::ask(call(kInterface, QStringLiteral("GetServerInformation"), {}, mayStart), *this,
                     BusQuestion::kNoTimeout, [conversation](const QDBusMessage &answer) {
                         conversation->serverName = answer.arguments().value(0).toString();
                     });
    const auto answered = [this, conversation](const QDBusMessage &answer) {
        const QDBusReply<QStringList> capabilities(answer);
        // A restarted server counts from the beginning, so it may give our id to another program.
        if (answer.service() != conversation->server)
            conversation->id = 0;
        if (conversation->next)
            send(conversation, capabilities.isValid() ? capabilities.value() : QStringList());
        else
            conversation->awaited = Conversation::Awaited::Nothing;
    };
    BusQuestion::ask(call(kInterface, QStringLiteral("GetCapabilities"), {}, mayStart), *this,
                     BusQuestion::kNoTimeout, answered);
}

void FreedesktopNotifications::send(const std::shared_ptr<Conversation> &conversation,
                                    const QStringList &capabilities)
{
    conversation->awaited = Conversation::Awaited::Id;
    const uint id = std::exchange(conversation->id, 0);
    conversation->shown = std::exchange(conversation->next, {});
    // A notification into which others have been merged stays for them.
    const bool isShared = !conversationsAbout(id, conversation->server).empty();
    const QVariantList arguments = NotifyArguments::of(*conversation->shown, isShared ? 0 : id,
                                                       {conversation->serverName, capabilities});
    // A server that was frozen shows the notification late; its late answer still has to be read
    // for the id, which is needed to withdraw the notification.
    BusQuestion::ask(
        call(kInterface, QStringLiteral("Notify"), arguments, conversation->mayStartServer), *this,
        BusQuestion::kNoTimeout,
        [this, conversation](const QDBusMessage &answer) { sent(conversation, answer); });
}

void FreedesktopNotifications::sent(const std::shared_ptr<Conversation> &conversation,
                                    const QDBusMessage &answer)
{
    conversation->awaited = Conversation::Awaited::Nothing;
    conversation->server = answer.service();
    const bool numbered =
        answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("u");
    const uint id = numbered ? answer.arguments().constFirst().toUInt() : 0;
    if (id == 0 && std::exchange(conversation->serverCame, false) && !conversation->next)
        conversation->next = conversation->shown;
    else
        conversation->mayStartServer = true;
    if (conversation->next || conversation->shown)
        conversation->id = id;
    // No merged one is under way again, because that would be a notification of its own.
    for (const auto &each : std::exchange(conversation->merged, {})) {
        const std::shared_ptr<Conversation> merged = each.lock();
        if (!merged || !merged->shown || merged->awaited != Conversation::Awaited::Nothing)
            continue;
        merged->id = id;
        merged->server = conversation->server;
    }
    if (id != 0 && conversation->id == 0 && conversationsAbout(id, conversation->server).empty()) {
        BusConnection::instance().current().asyncCall(
            call(conversation->server, QStringLiteral("CloseNotification"), {id}));
    }
    if (conversation->next)
        askAboutServer(conversation);
}
