#pragma once

#include <QtGlobal>

class QWidget;
class Wuffer;
class WufferWindow;

/// What a timer needs from the application, which outlives it. The timer reports its events to the
/// application by signals.
class TimerHost
{
public:
    TimerHost() = default;
    virtual ~TimerHost() = default;
    Q_DISABLE_COPY_MOVE(TimerHost)

    /// Ends full-screen mode of every timer but this one. True if another timer was in it.
    virtual bool cancelFullScreenModeForOthers(const Wuffer &timer) = 0;

    /// The oldest other timer window whose frame has exactly the same origin as that of this
    /// window; null if there is none.
    [[nodiscard]] virtual WufferWindow *windowSharingOrigin(const QWidget &window) const = 0;
};
