#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

/// A watcher for status items on the session bus, under its well-known name while this object
/// lives, that keeps who has registered with it.
class StatusWatcher final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    explicit StatusWatcher(const QString &busAddress) :
        _bus(QDBusConnection::connectToBus(busAddress, QStringLiteral("watcher")))
    {
        if (!_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                 QDBusConnection::ExportAllSlots) ||
            !_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")))
            qFatal("the watcher could not be registered");
    }
    ~StatusWatcher() override { QDBusConnection::disconnectFromBus(QStringLiteral("watcher")); }
    Q_DISABLE_COPY_MOVE(StatusWatcher)

    QStringList registered;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service) { registered << service; }

private:
    QDBusConnection _bus;
};
