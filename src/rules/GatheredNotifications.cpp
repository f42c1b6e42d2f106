#include "rules/GatheredNotifications.h"

#include <QStringList>

#include <algorithm>

namespace
{
/// So many may stand at once, or come within a second, each by itself.
constexpr std::size_t kFew = 3;
/// So many are named, one a line.
constexpr std::size_t kNamed = 8;
/// Seconds in which those that come together are gathered before they show.
constexpr double kGatheringTime = 0.1;
/// Seconds between changes of what shows.
constexpr double kPause = 1.0;

void call(const std::function<void()> &action)
{
    if (action)
        action();
}
} // namespace

GatheredNotifications::GatheredNotifications(DesktopNotifications &desktop) : _desktop(desktop) {}

void GatheredNotifications::notify(const QObject &sender, const DesktopNotification &notification)
{
    using Occasion = DesktopNotification::Occasion;
    const auto before = find(sender);
    if (before != _standing.end() && notification.occasion == Occasion::Change)
        return change(*before, notification);
    if (before == _standing.end()) {
        // Once for each sender, however often it comes back.
        disconnect(&sender, &QObject::destroyed, this, nullptr);
        connect(&sender, &QObject::destroyed, this, [this](QObject *gone) { withdraw(*gone); });
    } else {
        _standing.erase(before);
    }
    _standing.push_back({&sender, notification, false});
    const bool tooFast = notification.occasion == Occasion::News && isTooFast();
    if (_gathering)
        gatheredChanged();
    else if (tooFast || _standing.size() > kFew)
        gather();
    else
        showAlone(_standing.back());
}

void GatheredNotifications::withdraw(const QObject &sender)
{
    const auto found = find(sender);
    if (found == _standing.end())
        return;
    _standing.erase(found);
    if (_gathering)
        gatheredChanged();
    else
        _desktop.withdraw(sender);
}

std::vector<GatheredNotifications::Standing>::iterator
GatheredNotifications::find(const QObject &sender)
{
    return std::ranges::find(_standing, &sender, &Standing::sender);
}

bool GatheredNotifications::isTooFast()
{
    const Date now = Date::now();
    const bool tooFast =
        _recent.size() == kFew && now.timeIntervalSinceDate(_recent.front()) < kPause;
    if (_recent.size() == kFew)
        _recent.pop_front();
    _recent.push_back(now);
    return tooFast;
}

void GatheredNotifications::change(Standing &standing, const DesktopNotification &notification)
{
    const bool offeredStop = offersStop();
    standing.notification = notification;
    if (!_gathering)
        showAlone(standing);
    else if (offersStop() != offeredStop)
        gatheredChanged();
}

void GatheredNotifications::showAlone(Standing &standing)
{
    standing.told = true;
    const QObject *sender = standing.sender;
    DesktopNotification notification = standing.notification;
    notification.closed = [this, sender](DesktopNotification::End end) { close(*sender, end); };
    _desktop.notify(*sender, notification);
}

void GatheredNotifications::gather()
{
    _gathering = true;
    for (Standing &each : _standing) {
        each.told = false;
        _desktop.withdraw(*each.sender);
    }
    gatheredChanged();
}

void GatheredNotifications::gatheredChanged()
{
    _changed = true;
    if (_standing.empty())
        _desktop.withdraw(*this);
    if (!_refreshTimer.isValid())
        _refreshTimer.startOnce(kGatheringTime);
}

void GatheredNotifications::refresh()
{
    if (!std::exchange(_changed, false)) {
        // Nothing has come for a while: the next few can stand by themselves.
        _gathering = !_standing.empty();
        return;
    }
    _refreshTimer.startOnce(kPause);
    if (_standing.empty())
        return;
    for (Standing &each : _standing)
        each.told = true;
    _desktop.notify(*this, summary());
}

DesktopNotification GatheredNotifications::summary()
{
    const auto isReminder = [](const Standing &each) {
        return each.notification.occasion == DesktopNotification::Occasion::Reminder;
    };
    DesktopNotification summary = _standing.back().notification;
    summary.show = [this] { showLatest(); };
    summary.stop = {};
    if (offersStop())
        summary.stop = [this] { stopAll(); };
    summary.closed = [this](DesktopNotification::End end) { closeAll(end); };
    if (!std::ranges::all_of(_standing, isReminder))
        summary.occasion = DesktopNotification::Occasion::News;
    if (_standing.size() == 1)
        return summary;
    summary.title = tr("%n timers have ended", nullptr, static_cast<int>(_standing.size()));
    summary.subject = summary.title;
    QStringList lines;
    const std::size_t named = std::min(_standing.size(), kNamed);
    std::for_each_n(_standing.rbegin(), named,
                    [&](const Standing &each) { lines << each.notification.subject; });
    if (_standing.size() > named)
        lines << tr("and %n more", nullptr, static_cast<int>(_standing.size() - named));
    summary.text = lines.join(QLatin1Char('\n'));
    return summary;
}

bool GatheredNotifications::offersStop() const
{
    const auto isThere = [](const Standing &each) { return bool(each.notification.stop); };
    return std::ranges::any_of(_standing, isThere);
}

void GatheredNotifications::close(const QObject &sender, DesktopNotification::End end)
{
    const auto found = find(sender);
    if (found == _standing.end())
        return;
    const auto closed = found->notification.closed;
    _standing.erase(found);
    if (closed)
        closed(end);
}

void GatheredNotifications::closeAll(DesktopNotification::End end)
{
    // One that the desktop has not been told of comes up anew with the next.
    std::vector<const QObject *> told;
    for (const Standing &each : _standing) {
        if (each.told)
            told.push_back(each.sender);
    }
    for (const QObject *sender : told)
        close(*sender, end);
    gatheredChanged();
}

void GatheredNotifications::showLatest()
{
    if (_standing.empty())
        return;
    const QObject *latest = _standing.back().sender;
    const std::function<void()> show = _standing.back().notification.show;
    // The alarms of others that ring on can still be stopped: with them, it comes up anew.
    for (Standing &each : _standing)
        each.told = each.told && (each.sender == latest || !each.notification.stop);
    closeAll(DesktopNotification::End::Dismissed);
    call(show);
}

void GatheredNotifications::stopAll()
{
    std::vector<const QObject *> senders;
    for (const Standing &each : _standing)
        senders.push_back(each.sender);
    for (const QObject *sender : senders) {
        // Each stop may end others, and their senders with them.
        const auto found = std::ranges::find(_standing, sender, &Standing::sender);
        if (found == _standing.end())
            continue;
        const std::function<void()> stop = found->notification.stop;
        call(stop);
    }
    closeAll(DesktopNotification::End::Dismissed);
}
