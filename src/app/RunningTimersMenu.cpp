#include "app/RunningTimersMenu.h"

#include "app/StatusDescription.h"
#include "timer/Wuffer.h"

void RunningTimersMenu::setTimers(const std::vector<RunningTimers::Running<Wuffer>> &running)
{
    if (running == _running) {
        Q_EMIT textsChanged();
        return;
    }
    _running = running;
    for (const auto &each : _running)
        assignId(*each.timer);
    Q_EMIT linesChanged();
}

std::vector<StatusMenu::Line> RunningTimersMenu::lines()
{
    std::vector<Line> lines;
    lines.reserve(_running.size());
    for (const Wuffer *timer : RunningTimers::inOrderOfEnding(_running))
        lines.push_back({_ids.value(timer), StatusDescription<Wuffer>::line(*timer)});
    return lines;
}

void RunningTimersMenu::choose(int id)
{
    if (Wuffer *timer = _timers.value(id))
        timer->showWufferWindow();
}

void RunningTimersMenu::assignId(Wuffer &timer)
{
    if (_ids.contains(&timer))
        return;
    const int id = ++_lastId;
    _ids.insert(&timer, id);
    _timers.insert(id, &timer);
    connect(&timer, &QObject::destroyed, this, &RunningTimersMenu::forget);
}

void RunningTimersMenu::forget(const QObject *timer)
{
    _timers.remove(_ids.take(timer));
    // While the settings hide the status item nothing calls setTimers(), so the timer may still be
    // listed.
    std::erase_if(_running, [&](const auto &each) { return each.timer == timer; });
}
