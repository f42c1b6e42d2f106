#pragma once

#include <QObject>
#include <QVariant>

/// Makes the program one in its session: the first to start owns its name on the session bus, and
/// whoever starts later has only to tell it what it was started for.
///
/// It answers to the org.freedesktop.Application interface of the Desktop Entry Specification, by
/// which a desktop starts a program over the bus and runs the actions of its entry. What an action
/// means it leaves to others. Without a bus, and on systems that have none, every start is the
/// first. Main thread.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// What the desktop says of this launch, in the words of the bus. To be asked before there is
    /// an application object, which takes it out of the environment.
    [[nodiscard]] static QVariantMap thisLaunch();

    SingleInstance();

    /// Tries to own the name, which is that of the desktop entry; whether it does.
    [[nodiscard]] bool claim();

    /// Tells the one that owns the name what this one was started for; an empty action only
    /// brings it to the front. Whether it answered: one that hangs is given up after two seconds.
    [[nodiscard]] bool forward(const QString &action, const QVariantMap &launch) const;

    /// Has the name come to this one when its owner has gone, for one that runs on beside it.
    void inherit();

Q_SIGNALS:
    /// Somebody wants the program to do this; an empty action only brings it to the front. An
    /// action may be one that nobody knows.
    void asked(const QString &action);
};
