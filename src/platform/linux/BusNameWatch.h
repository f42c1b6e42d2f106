#pragma once

#include <QDBusServiceWatcher>

/// Reports when a name on the session bus gets an owner, changes its owner or loses it. Does not
/// report whether the name has an owner at first, or when the bus has come back. Main thread.
class BusNameWatch final : public QObject
{
    Q_OBJECT

public:
    BusNameWatch();

    /// From now on watches this name and no other. Connects to the bus.
    void watch(const QString &name);

    /// Stops watching.
    void stop();

Q_SIGNALS:
    /// The name has a new owner, which may have taken it over from another one.
    void appeared(bool takenOver);
    /// The name has no owner any more, or the bus has gone.
    void vanished();

private:
    void busLost();
    void busFound();
    void report(const QString &oldOwner, const QString &newOwner);

    QDBusServiceWatcher _watcher;
};
