#pragma once

#include <QCoreApplication>

class Wuffer;

/// Tells users of screen readers about the alarm of a timer, wherever the focus is.
class AlarmAnnouncement final
{
    Q_DECLARE_TR_FUNCTIONS(AlarmAnnouncement)

public:
    /// The alarm begins, and the display shows this text.
    static void began(const Wuffer &timer, const QString &finishedText);
    /// The alarm is over, or the user has stopped it.
    static void ended(const Wuffer &timer);

private:
    static void say(const Wuffer &timer, const QString &event);
};
