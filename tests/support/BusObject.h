#pragma once

#include <QCoreApplication>
#include <QDBusConnection>

/// Takes the objects of a test off its connection, and drops the calls that were not delivered to
/// one of them yet. To be called in the object's destructor, while the connection still exists: Qt
/// D-Bus uses the connection when it destroys such a call, which QObject's destructor would do only
/// after the members have gone.
inline void leaveBus(QObject &object, QDBusConnection connection)
{
    connection.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    QCoreApplication::removePostedEvents(&object);
    QDBusConnection::disconnectFromBus(connection.name());
}
