#pragma once

#include "platform/StatusMenu.h"
#include "rules/RunningTimers.h"

#include <QHash>

class Wuffer;

/// The list of all running timers, in the order in which they end. A timer keeps its id for as
/// long as it is open.
class RunningTimersMenu final : public StatusMenu
{
    Q_OBJECT

public:
    RunningTimersMenu() = default;

    /// Lists these timers from now on. lines() reads their texts when they are needed.
    void setTimers(const std::vector<RunningTimers::Running<Wuffer>> &running);

    [[nodiscard]] std::vector<Line> lines() override;
    /// Brings the window of the timer to the front.
    void choose(int id) override;

private:
    void assignId(Wuffer &timer);
    void forget(const QObject *timer);

    std::vector<RunningTimers::Running<Wuffer>> _running;
    QHash<const QObject *, int> _ids;
    QHash<int, Wuffer *> _timers;
    int _lastId = 0;
};
