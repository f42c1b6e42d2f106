#pragma once

#include <QtGlobal>

class QWidget;
class Wuffer;
class WufferWindow;

/// What a timer asks of the program around it, which outlives it. What it only tells the program,
/// it tells by its signals.
class TimerHost
{
public:
    TimerHost() = default;
    virtual ~TimerHost() = default;
    Q_DISABLE_COPY_MOVE(TimerHost)

    /// Ends full-screen mode of every timer but this one. True when another was in it.
    virtual bool cancelFullScreenModeForOthers(const Wuffer &timer) = 0;

    /// Another timer window whose frame has exactly the same origin as this one's, the oldest
    /// first; null when there is none.
    [[nodiscard]] virtual WufferWindow *windowSharingOrigin(const QWidget &window) const = 0;
};
