#include "rules/GatheredNotifications.h"

#include <QStringList>

#include <algorithm>

namespace
{
/// More notifications than this, at once or within kPause, are gathered into a summary.
constexpr std::size_t kMostSeparate = 3;
/// The summary names at most this many timers, one per line.
constexpr std::size_t kMostNamed = 8;
/// Seconds from the first gathered notification to the first summary.
constexpr double kGatheringTime = 0.1;
/// Seconds between two updates of the summary.
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
    if (before != _active.end() && notification.occasion == Occasion::Change)
        return change(*before, notification);
    if (before == _active.end()) {
        // One connection for each sender, no matter how often it notifies.
        disconnect(&sender, &QObject::destroyed, this, nullptr);
        connect(&sender, &QObject::destroyed, this, [this](QObject *gone) { withdraw(*gone); });
    } else {
        _active.erase(before);
    }
    _active.push_back({&sender, notification, false});
    const bool tooFast = notification.occasion == Occasion::News && isTooFast();
    if (_gathering)
        gatheredChanged();
    else if (tooFast || _active.size() > kMostSeparate)
        gather();
    else
        showAlone(_active.back());
}

void GatheredNotifications::withdraw(const QObject &sender)
{
    const auto found = find(sender);
    if (found == _active.end())
        return;
    _active.erase(found);
    if (_gathering)
        gatheredChanged();
    else
        _desktop.withdraw(sender);
}

std::vector<GatheredNotifications::Active>::iterator
GatheredNotifications::find(const QObject &sender)
{
    return std::ranges::find(_active, &sender, &Active::sender);
}

bool GatheredNotifications::isTooFast()
{
    const Date now = Date::now();
    const bool tooFast =
        _recent.size() == kMostSeparate && now.timeIntervalSinceDate(_recent.front()) < kPause;
    if (_recent.size() == kMostSeparate)
        _recent.pop_front();
    _recent.push_back(now);
    return tooFast;
}

void GatheredNotifications::change(Active &active, const DesktopNotification &notification)
{
    const bool offeredStop = offersStop();
    active.notification = notification;
    if (!_gathering)
        showAlone(active);
    else if (offersStop() != offeredStop)
        gatheredChanged();
}

void GatheredNotifications::showAlone(Active &active)
{
    active.sent = true;
    const QObject *sender = active.sender;
    DesktopNotification notification = active.notification;
    notification.closed = [this, sender](DesktopNotification::End end) { close(*sender, end); };
    _desktop.notify(*sender, notification);
}

void GatheredNotifications::gather()
{
    _gathering = true;
    for (Active &each : _active) {
        each.sent = false;
        _desktop.withdraw(*each.sender);
    }
    gatheredChanged();
}

void GatheredNotifications::gatheredChanged()
{
    _changed = true;
    if (_active.empty())
        _desktop.withdraw(*this);
    if (!_refreshTimer.isValid())
        _refreshTimer.startOnce(kGatheringTime);
}

void GatheredNotifications::refresh()
{
    if (!std::exchange(_changed, false)) {
        // Nothing has changed for a while. If no notification is left, the next ones are shown one
        // by one.
        _gathering = !_active.empty();
        return;
    }
    _refreshTimer.startOnce(kPause);
    if (_active.empty())
        return;
    for (Active &each : _active)
        each.sent = true;
    _desktop.notify(*this, summary());
}

DesktopNotification GatheredNotifications::summary()
{
    const auto isReminder = [](const Active &each) {
        return each.notification.occasion == DesktopNotification::Occasion::Reminder;
    };
    DesktopNotification summary = _active.back().notification;
    summary.show = [this] { showLatest(); };
    summary.stop = {};
    if (offersStop())
        summary.stop = [this] { stopAll(); };
    summary.closed = [this](DesktopNotification::End end) { closeAll(end); };
    if (!std::ranges::all_of(_active, isReminder))
        summary.occasion = DesktopNotification::Occasion::News;
    if (_active.size() == 1)
        return summary;
    summary.title = tr("%n timers have ended", nullptr, static_cast<int>(_active.size()));
    summary.subject = summary.title;
    QStringList lines;
    const std::size_t named = std::min(_active.size(), kMostNamed);
    std::for_each_n(_active.rbegin(), named,
                    [&](const Active &each) { lines << each.notification.subject; });
    if (_active.size() > named)
        lines << tr("and %n more", nullptr, static_cast<int>(_active.size() - named));
    summary.text = lines.join(QLatin1Char('\n'));
    return summary;
}

bool GatheredNotifications::offersStop() const
{
    const auto isThere = [](const Active &each) { return bool(each.notification.stop); };
    return std::ranges::any_of(_active, isThere);
}

void GatheredNotifications::close(const QObject &sender, DesktopNotification::End end)
{
    const auto found = find(sender);
    if (found == _active.end())
        return;
    const auto closed = found->notification.closed;
    _active.erase(found);
    if (closed)
        closed(end);
}

void GatheredNotifications::closeAll(DesktopNotification::End end)
{
    // Keep a notification that the closed summary did not contain; the next summary shows it.
    std::vector<const QObject *> sent;
    for (const Active &each : _active) {
        if (each.sent)
            sent.push_back(each.sender);
    }
    for (const QObject *sender : sent)
        close(*sender, end);
    gatheredChanged();
}

void GatheredNotifications::showLatest()
{
    if (_active.empty())
        return;
    const QObject *latest = _active.back().sender;
    const std::function<void()> show = _active.back().notification.show;
    // Keep the other alarms that can still be stopped; the next summary shows them.
    for (Active &each : _active)
        each.sent = each.sent && (each.sender == latest || !each.notification.stop);
    closeAll(DesktopNotification::End::Dismissed);
    call(show);
}

void GatheredNotifications::stopAll()
{
    std::vector<const QObject *> senders;
    for (const Active &each : _active)
        senders.push_back(each.sender);
    for (const QObject *sender : senders) {
        // A stop may withdraw other notifications and destroy their senders.
        const auto found = std::ranges::find(_active, sender, &Active::sender);
        if (found == _active.end())
            continue;
        const std::function<void()> stop = found->notification.stop;
        call(stop);
    }
    closeAll(DesktopNotification::End::Dismissed);
}
