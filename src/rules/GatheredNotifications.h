#pragma once

#include "base/ClockTimer.h"
#include "base/Date.h"
#include "base/DesktopNotifications.h"

#include <QObject>

#include <deque>
#include <vector>

/// Keeps many timers that end together from flooding the desktop.
///
/// A few notifications are passed on unchanged. If more would be shown at once, or arrive within a
/// second, they are replaced by one summary, which counts and names their senders and changes about
/// once a second at most. An answer to the summary answers all of them, and each sender's closed()
/// is called. There is one exception: when the user shows the latest timer, the summary stays for
/// the other alarms that can still be stopped. Main thread; wakes the process only while something
/// changes.
class GatheredNotifications final : public QObject, public DesktopNotifications
{
    Q_OBJECT

public:
    /// Shows everything through the desktop's notifications, which must outlive this object.
    explicit GatheredNotifications(DesktopNotifications &desktop);

    void notify(const QObject &sender, const DesktopNotification &notification) override;
    void withdraw(const QObject &sender) override;

private:
    /// A notification that has been neither withdrawn nor closed.
    struct Active
    {
        const QObject *sender;
        DesktopNotification notification;
        /// Whether the desktop has received it, by itself or in the summary.
        bool sent;
    };

    [[nodiscard]] std::vector<Active>::iterator find(const QObject &sender);
    [[nodiscard]] bool isTooFast();
    void change(Active &active, const DesktopNotification &notification);
    void showAlone(Active &active);
    void gather();
    void gatheredChanged();
    void refresh();
    [[nodiscard]] DesktopNotification summary();
    [[nodiscard]] bool offersStop() const;
    void close(const QObject &sender, DesktopNotification::End end);
    void closeAll(DesktopNotification::End end);
    void showLatest();
    void stopAll();

    DesktopNotifications &_desktop;
    /// The latest is last.
    std::vector<Active> _active;
    /// When the last few alarms were announced.
    std::deque<Date> _recent;
    bool _gathering = false;
    bool _changed = false;
    /// Delays the next update of the summary; runs for a while after each change.
    ClockTimer _refreshTimer{[this] { refresh(); }};
};
