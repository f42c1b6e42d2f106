#pragma once

#include "platform/DesktopNotifications.h"

#include <QHash>
#include <QObject>

#include <memory>

/// Notifications by the Desktop Notifications Specification 1.2 of freedesktop.org, over the
/// session bus. A server that is missing, slow or restarted changes nothing else: calls are sent
/// and never waited for.
class FreedesktopNotifications final : public QObject, public DesktopNotifications
{
    Q_OBJECT

public:
    FreedesktopNotifications() = default;

    void notify(const QObject &sender, const DesktopNotification &notification) override;

private:
    struct Conversation;

    void askCapabilities(const std::shared_ptr<Conversation> &conversation);
    void send(const std::shared_ptr<Conversation> &conversation, bool markup);

    QHash<const QObject *, std::shared_ptr<Conversation>> _conversations;
};
