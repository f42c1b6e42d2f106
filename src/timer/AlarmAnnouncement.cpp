#include "timer/AlarmAnnouncement.h"

#include "base/Desktop.h"
#include "base/Service.h"
#include "rules/NotificationText.h"
#include "rules/TimerTexts.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

void AlarmAnnouncement::began(const Wuffer &timer, const QString &finishedText)
{
    say(timer, finishedText);
}

void AlarmAnnouncement::ended(const Wuffer &timer)
{
    //: Screen readers say it after the name of a timer.
    say(timer, tr("Alarm ended"));
}

void AlarmAnnouncement::say(const Wuffer &timer, const QString &event)
{
    Service<Desktop>::current().announce(
        *timer.window(), TimerTexts::nameAndStatus(NotificationText::line(timer.title()),
                                                   NotificationText::line(event)));
}
