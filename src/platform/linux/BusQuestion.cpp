#include "platform/linux/BusQuestion.h"

#include "platform/linux/BusConnection.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

bool BusQuestion::isPossible()
{
    return BusConnection::instance().isPossible();
}

void BusQuestion::ask(const QDBusMessage &question, QObject &context, int timeout,
                      std::function<void(const QDBusMessage &answer)> answered)
{
    auto *call = new QDBusPendingCallWatcher(
        BusConnection::instance().current().asyncCall(question, timeout), &context);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call, &QObject::deleteLater);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, &context,
                     [answered = std::move(answered)](QDBusPendingCallWatcher *finished) {
                         answered(finished->reply());
                     });
}
