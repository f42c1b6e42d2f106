#include "platform/linux/BusQuestion.h"

#include "platform/linux/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

bool BusQuestion::isPossible()
{
    return SessionBus::isPresent() && QDBusConnection::sessionBus().isConnected();
}

void BusQuestion::ask(const QDBusMessage &question, QObject &context, int timeout,
                      std::function<void(const QDBusMessage &answer)> answered)
{
    auto *call = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(question, timeout), &context);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call, &QObject::deleteLater);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, &context,
                     [answered = std::move(answered)](QDBusPendingCallWatcher *finished) {
                         answered(finished->reply());
                     });
}
