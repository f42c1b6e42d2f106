#pragma once

#include <QDBusServiceWatcher>

/// Tells when a name on the session bus finds an owner, passes to another one or loses it. It
/// does not say whether the name has an owner already. Main thread.
class BusNameWatch final : public QObject
{
    Q_OBJECT

public:
    BusNameWatch();

    /// Watches this name from now on, and no other. Connects to the bus.
    void watch(const QString &name);

    /// Watches none any more.
    void stop();

Q_SIGNALS:
    /// The name has an owner, who has taken it over from another one or not.
    void appeared(bool takenOver);
    void vanished();

private:
    void tell(const QString &oldOwner, const QString &newOwner);

    QDBusServiceWatcher _watcher;
};
