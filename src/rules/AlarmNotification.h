#pragma once

#include "base/ClockTimer.h"
#include "base/Date.h"
#include "base/DesktopNotifications.h"

#include <functional>
#include <optional>

/// The notification of a timer's alarm, from the beginning of the alarm until the user has answered
/// it.
///
/// While the alarm is on, the user can stop it from the notification. A notification that the
/// desktop has removed by itself is therefore shown again, silently and every few seconds at most.
/// When the alarm ends by itself, the notification stays, without Stop, for as long as the desktop
/// keeps it. The timer decides what counts as an answer; this class only distinguishes whether the
/// user or the program has activated a window. A member of the timer; main thread.
class AlarmNotification final
{
public:
    /// The function says whether a removed notification may be shown again. Once it says no, the
    /// notification stays away until the next alarm.
    AlarmNotification(const QObject &timer, std::function<bool()> mayComeBack);

    /// The alarm begins: shows the notification, which replaces one left from an earlier alarm.
    void alarmBegan(DesktopNotification notification);

    /// The alarm has ended by itself: the notification no longer offers Stop.
    void alarmEnded();

    /// The user has answered: withdraws the notification, which does not come back.
    void answer();

    /// The program is about to activate a window of the timer. The window system will report that
    /// later; it is no answer by the user.
    void expectActivation();

    /// The window with the timer's display has been activated. This is an answer by the user,
    /// unless the program has expected it.
    void windowActivated();

private:
    void show(DesktopNotification::Occasion occasion);
    void closed(DesktopNotification::End end);
    void comeBack();

    const QObject &_timer;
    const std::function<bool()> _mayComeBack;
    /// The notification shown last.
    DesktopNotification _notification;
    std::optional<Date> _shownAt;
    /// Whether the desktop still shows it, as far as is known.
    bool _isShown = false;
    /// Whether its alarm is on and not yet answered.
    bool _alarmIsOn = false;
    std::optional<Date> _activationExpectedUntil;
    ClockTimer _comeBackTimer{[this] { comeBack(); }};
};
