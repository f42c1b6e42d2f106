#include "platform/linux/BusNameWatch.h"

#include "platform/linux/BusConnection.h"

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
    BusConnection &bus = BusConnection::instance();
    connect(&bus, &BusConnection::lost, this, &BusNameWatch::busLost, Qt::UniqueConnection);
    connect(&bus, &BusConnection::found, this, &BusNameWatch::busFound, Qt::UniqueConnection);
    _watcher.setConnection(bus.current());
    _watcher.setWatchedServices({name});
}

void BusNameWatch::stop()
{
    _watcher.setWatchedServices({});
}

void BusNameWatch::busLost()
{
    if (!_watcher.watchedServices().isEmpty())
        Q_EMIT vanished();
}

void BusNameWatch::busFound()
{
    if (!_watcher.watchedServices().isEmpty())
        _watcher.setConnection(BusConnection::instance().current());
}

void BusNameWatch::report(const QString &oldOwner, const QString &newOwner)
{
    if (newOwner.isEmpty())
        Q_EMIT vanished();
    else
        Q_EMIT appeared(!oldOwner.isEmpty());
}
