#pragma once

#include <QObject>
#include <QVariant>

/// Keeps the program to one instance in a session. The first instance owns the program's name on
/// the session bus; a later one tells the first what it was started for, and ends.
///
/// Implements the interface org.freedesktop.Application of the Desktop Entry Specification, with
/// which a desktop starts a program over the bus and runs the actions of its desktop entry. Does
/// not know what an action means. Without a session bus every instance counts as the first. Main
/// thread.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// The desktop's data about this launch, as the bus carries them. Call it before the
    /// application object is made, which removes them from the environment.
    [[nodiscard]] static QVariantMap thisLaunch();

    SingleInstance();

    /// Tries to own the bus name, which is that of the desktop entry. False when another instance
    /// owns it; true also when no instance can, because there is no bus or the bus refuses.
    [[nodiscard]] bool claim();

    /// Tells the owner of the name what this instance was started for; an empty action only brings
    /// the owner to the front. Returns whether the owner has answered within two seconds, be it
    /// that it refuses.
    [[nodiscard]] bool forward(const QString &action, const QVariantMap &launch) const;

    /// Makes this instance, which runs beside the owner of the name, the next owner.
    void inherit();

    /// Asks the program for an action; returns whether it has not refused.
    [[nodiscard]] bool ask(const QString &action)
    {
        _refused = false;
        Q_EMIT asked(action);
        return !_refused;
    }

    /// Refuses the action that is being asked for. Call it from a slot of asked().
    void refuse() { _refused = true; }

Q_SIGNALS:
    /// The desktop or a later instance has asked for this action, which may be unknown. An empty
    /// action only brings the program to the front.
    void asked(const QString &action);

private:
    bool _refused = false;
};
