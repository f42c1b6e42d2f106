#include "rules/AlarmNotification.h"

#include "base/Service.h"

#include <utility>

namespace
{
/// Seconds from the moment a notification is shown until it may be shown again.
constexpr double kReturnDelay = 5.0;
/// A busy window system may report an activation this many seconds late.
constexpr double kActivationDelay = 2.0;
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
    if (!std::exchange(_alarmIsOn, false) || !_isShown)
        return;
    _notification.stop = {};
    // A reminder was shown silently, so its change is silent too.
    if (_notification.occasion != DesktopNotification::Occasion::Reminder)
        _notification.occasion = DesktopNotification::Occasion::Change;
    show(_notification.occasion);
}

void AlarmNotification::answer()
{
    _comeBackTimer.invalidate();
    _alarmIsOn = false;
    if (std::exchange(_isShown, false))
        Service<DesktopNotifications>::current().withdraw(_timer);
}

void AlarmNotification::expectActivation()
{
    _activationExpectedUntil = Date::now().addingTimeInterval(kActivationDelay);
}

void AlarmNotification::windowActivated()
{
    if (!_activationExpectedUntil || _activationExpectedUntil->timeIntervalSinceNow() < 0)
        answer();
}

void AlarmNotification::show(DesktopNotification::Occasion occasion)
{
    _comeBackTimer.invalidate();
    _isShown = true;
    _shownAt = Date::now();
    _notification.occasion = occasion;
    Service<DesktopNotifications>::current().notify(_timer, _notification);
}

void AlarmNotification::closed(DesktopNotification::End end)
{
    _isShown = false;
    if (_alarmIsOn && end == DesktopNotification::End::Expired)
        _comeBackTimer.startOnce(_shownAt->addingTimeInterval(kReturnDelay).timeIntervalSinceNow());
}

void AlarmNotification::comeBack()
{
    if (_mayComeBack())
        show(DesktopNotification::Occasion::Reminder);
}
