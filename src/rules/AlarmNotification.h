#pragma once

#include "base/ClockTimer.h"
#include "base/Date.h"
#include "base/DesktopNotifications.h"

#include <functional>
#include <optional>

/// The notification of a timer's alarm, from the beginning of the alarm until the user has answered
/// it.
///
/// While the alarm is on it can be ended by the notification: one that the desktop has taken away
/// by itself comes back, quietly and every few seconds at most. An alarm that has ended by itself
/// leaves a trace, which the desktop keeps for as long as it likes. What is an answer is for the
/// timer to say; this only tells the user's activation of a window from the program's own. A
/// member of the timer, on the main thread.
class AlarmNotification final
{
public:
    /// For this timer. What would come back when the function says no does not, from then on.
    AlarmNotification(const QObject &timer, std::function<bool()> mayComeBack);

    /// The alarm begins: shows the notification, in place of what an earlier alarm has left.
    void alarmBegan(DesktopNotification notification);

    /// The alarm has ended by itself, and there is nothing to stop any more.
    void alarmEnded();

    /// The user has answered: whatever stands is withdrawn, and nothing comes back.
    void answer();

    /// The program itself is about to make a window of the timer the active one, of which the
    /// window system will tell a while later.
    void expectActivation();

    /// The window with the timer's display has become the active one: the user's answer, unless
    /// the program expects it.
    void windowActivated();

private:
    void show(DesktopNotification::Occasion occasion);
    void closed(DesktopNotification::End end);
    void comeBack();

    const QObject &_timer;
    const std::function<bool()> _mayComeBack;
    /// What was shown last.
    DesktopNotification _notification;
    std::optional<Date> _shownAt;
    /// Whether the desktop still shows it, as far as is known.
    bool _standing = false;
    /// Whether the alarm that it tells of is on, and not yet answered.
    bool _alarmIsOn = false;
    std::optional<Date> _activationExpectedUntil;
    ClockTimer _comeBackTimer{[this] { comeBack(); }};
};
