#include "platform/linux/BusNameWatch.h"

#include <QDBusConnection>

BusNameWatch::BusNameWatch()
{
    _watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &oldOwner, const QString &newOwner) {
                report(oldOwner, newOwner);
            });
}

void BusNameWatch::watch(const QString &name)
{
    _watcher.setConnection(QDBusConnection::sessionBus());
    _watcher.setWatchedServices({name});
}

void BusNameWatch::stop()
{
    _watcher.setWatchedServices({});
}

void BusNameWatch::report(const QString &oldOwner, const QString &newOwner)
{
    if (newOwner.isEmpty())
        Q_EMIT vanished();
    else
        Q_EMIT appeared(!oldOwner.isEmpty());
}
