#include "rules/KeepWuffing.h"

#include "rules/FinishActions.h"
#include "rules/TimerTexts.h"

#include <QCoreApplication>

namespace
{
class Texts final
{
    Q_DECLARE_TR_FUNCTIONS(KeepWuffing)
};
} // namespace

QString KeepWuffing::hint(bool stopwatch, bool somethingFollows, bool muted)
{
    if (stopwatch)
        return Texts::tr("A stopwatch has no alarm that could go on");
    if (somethingFollows)
        //: %1 is the finish action “Do Nothing”.
        return Texts::tr("Only a timer that is to “%1” when finished can go on wuffing")
            .arg(FinishActions::shownText(FinishActions::row(FinishAction::Nothing)));
    if (muted)
        return Texts::tr("The sound of all timers is off");
    //: %1 is the title of the button “Reset”.
    return Texts::tr("Repeat the alarm sound until you press %1").arg(TimerTexts::reset());
}
