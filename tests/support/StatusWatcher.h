#pragma once

#include "support/BusObject.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QObject>
#include <QStringList>

/// A watcher for status items on the session bus. It owns the well-known name while this object
/// lives, and records which services register with it.
class StatusWatcher final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    enum Place {
        /// The watcher owns the name at once.
        First,
        /// The watcher gets the name when the current owner leaves.
        Next,
    };

    explicit StatusWatcher(const QString &busAddress, Place place = First) :
        _bus(QDBusConnection::connectToBus(
            busAddress, QStringLiteral("watcher %1").arg(static_cast<int>(place))))
    {
        const auto queueing = place == First ? QDBusConnectionInterface::DontQueueService
                                             : QDBusConnectionInterface::QueueService;
        const auto wanted = place == First ? QDBusConnectionInterface::ServiceRegistered
                                           : QDBusConnectionInterface::ServiceQueued;
        if (!_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                 QDBusConnection::ExportAllSlots |
                                     QDBusConnection::ExportAllProperties) ||
            _bus.interface()->registerService(QStringLiteral("org.kde.StatusNotifierWatcher"),
                                              queueing) != wanted)
            qFatal("the watcher could not be registered");
    }
    ~StatusWatcher() override { leaveBus(*this, _bus); }
    Q_DISABLE_COPY_MOVE(StatusWatcher)

    [[nodiscard]] int protocolVersion()
    {
        ownedWhenAsked << _bus.interface()->isServiceRegistered(registered.constLast()).value();
        return 0;
    }

    QStringList registered;

    /// For each question of the program, whether the latest item still had its name.
    QList<bool> ownedWhenAsked;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service) { registered << service; }

private:
    QDBusConnection _bus;
};
