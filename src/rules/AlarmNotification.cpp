#include "rules/AlarmNotification.h"

#include "base/Service.h"

#include <utility>

namespace
{
/// Seconds between the last appearance of a notification and its return.
constexpr double kPause = 5.0;
/// Seconds within which a window system, also a busy one, tells of an activation.
constexpr double kActivationTime = 2.0;
} // namespace

AlarmNotification::AlarmNotification(const QObject &timer, std::function<bool()> mayComeBack) :
    _timer(timer), _mayComeBack(std::move(mayComeBack))
{}

void AlarmNotification::alarmBegan(DesktopNotification notification)
{
    _notification = std::move(notification);
    _notification.closed = [this](DesktopNotification::End end) { closed(end); };
    _alarmIsOn = true;
    show(DesktopNotification::Occasion::News);
}

void AlarmNotification::alarmEnded()
{
    _comeBackTimer.invalidate();
    if (!std::exchange(_alarmIsOn, false) || !_standing)
        return;
    _notification.stop = {};
    // What came back quietly stays quiet.
    if (_notification.occasion != DesktopNotification::Occasion::Reminder)
        _notification.occasion = DesktopNotification::Occasion::Change;
    show(_notification.occasion);
}

void AlarmNotification::answer()
{
    _comeBackTimer.invalidate();
    _alarmIsOn = false;
    if (std::exchange(_standing, false))
        Service<DesktopNotifications>::current().withdraw(_timer);
}

void AlarmNotification::expectActivation()
{
    _activationExpectedUntil = Date::now().addingTimeInterval(kActivationTime);
}

void AlarmNotification::windowActivated()
{
    if (!_activationExpectedUntil || _activationExpectedUntil->timeIntervalSinceNow() < 0)
        answer();
}

void AlarmNotification::show(DesktopNotification::Occasion occasion)
{
    _comeBackTimer.invalidate();
    _standing = true;
    _shownAt = Date::now();
    _notification.occasion = occasion;
    Service<DesktopNotifications>::current().notify(_timer, _notification);
}

void AlarmNotification::closed(DesktopNotification::End end)
{
    _standing = false;
    if (_alarmIsOn && end == DesktopNotification::End::Expired)
        _comeBackTimer.startOnce(_shownAt->addingTimeInterval(kPause).timeIntervalSinceNow());
}

void AlarmNotification::comeBack()
{
    if (_mayComeBack())
        show(DesktopNotification::Occasion::Reminder);
}
