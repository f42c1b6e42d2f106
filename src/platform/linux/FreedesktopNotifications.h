#pragma once

#include "base/DesktopNotifications.h"

#include <QHash>
#include <QObject>

#include <memory>

class QDBusMessage;

/// Notifications by the Desktop Notifications Specification 1.2 of freedesktop.org, over the
/// session bus. Calls never wait for their answers, so a server that is missing, slow or restarted
/// does not hold up the program.
class FreedesktopNotifications final : public QObject, public DesktopNotifications
{
    Q_OBJECT

public:
    FreedesktopNotifications() = default;

    void notify(const QObject &sender, const DesktopNotification &notification) override;
    void withdraw(const QObject &sender) override;

private Q_SLOTS:
    void receive(const QDBusMessage &signal);

private:
    struct Conversation;

    [[nodiscard]] std::shared_ptr<Conversation> conversationWith(const QObject &sender);
    [[nodiscard]] std::shared_ptr<Conversation> conversationAbout(uint id,
                                                                  const QString &server) const;
    void forget(const QObject *sender);
    void listen();
    void askCapabilities(const std::shared_ptr<Conversation> &conversation);
    void send(const std::shared_ptr<Conversation> &conversation, const QStringList &capabilities);
    void sent(const std::shared_ptr<Conversation> &conversation, const QDBusMessage &answer);

    QHash<const QObject *, std::shared_ptr<Conversation>> _conversations;
    bool _listening = false;
};
