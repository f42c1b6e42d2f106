#pragma once

#include "base/DesktopNotifications.h"
#include "platform/linux/BusNameWatch.h"

#include <QHash>
#include <QObject>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

class QDBusMessage;

/// Notifications by the Desktop Notifications Specification 1.2 of freedesktop.org, over the
/// session bus. Calls never wait for their answers, so a server that is missing, slow or restarted
/// does not hold up the program. A notification that no server has taken is shown when one comes,
/// and all that are shown are shown again on a bus that has come back.
class FreedesktopNotifications final : public QObject, public DesktopNotifications
{
    Q_OBJECT

public:
    FreedesktopNotifications();

    void notify(const QObject &sender, const DesktopNotification &notification) override;
    void withdraw(const QObject &sender) override;

private Q_SLOTS:
    void receive(const QDBusMessage &signal);

private:
    struct Conversation;

    [[nodiscard]] std::shared_ptr<Conversation> conversationWith(const QObject &sender);
    /// All conversations whose notification has this id; several if the server has merged them.
    [[nodiscard]] std::vector<std::shared_ptr<Conversation>>
    conversationsAbout(uint id, const QString &server) const;
    [[nodiscard]] std::function<void()> answerTo(const QString &signal, const QVariant &argument,
                                                 const std::shared_ptr<Conversation> &about);
    /// Whether the server has closed the notification because it is about to show an equal one in
    /// its place, as some servers do of their own; then it becomes part of that one.
    [[nodiscard]] bool mergedByServer(const std::shared_ptr<Conversation> &closed);
    void forget(const QObject *sender);
    void listen();
    void busLost();
    /// To a server that has come, or on a new bus, which may start one.
    void showAgain(bool mayStartServer);
    void askAboutServer(const std::shared_ptr<Conversation> &conversation);
    void send(const std::shared_ptr<Conversation> &conversation, const QStringList &capabilities);
    void sent(const std::shared_ptr<Conversation> &conversation, const QDBusMessage &answer);

    QHash<const QObject *, std::shared_ptr<Conversation>> _conversations;
    bool _listening = false;
    BusNameWatch _watch;
};
