#include "app/LauncherPresenter.h"

#include "app/WufferApplication.h"
#include "rules/RunningTimers.h"
#include "timer/Wuffer.h"

#include <cmath>

static LauncherState stateOf(const TimerRun &run)
{
    if (run.state() == TimerRun::State::Alarm)
        return {.percent = {}, .urgent = true};
    if (run.isStopwatch())
        return {};
    const double left = shareLeft(run.timesAt(Date::now()));
    return {.percent = static_cast<int>(std::floor(100 * (1 - left))), .urgent = false};
}

LauncherPresenter::LauncherPresenter(LauncherEntry &entry) : _entry(entry)
{
    _entry.setReadHandler([this] { refresh(); });
}

LauncherPresenter::~LauncherPresenter()
{
    _entry.setReadHandler({});
}

void LauncherPresenter::refresh()
{
    if (!_entry.isRead())
        return;
    const Wuffer *first =
        RunningTimers::soonestEnding(RunningTimers::among(WufferApplication::getWuffers()));
    _entry.show(first ? stateOf(first->run()) : LauncherState{});
}
