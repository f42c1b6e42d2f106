#pragma once

#include "base/ClockTimer.h"
#include "base/Date.h"
#include "base/DesktopNotifications.h"

#include <QObject>

#include <deque>
#include <vector>

/// Keeps many timers that end together from flooding the desktop.
///
/// A few notifications are passed on as they are. When more would stand at once, or come within
/// a second, they are gathered into one that counts and names those who have sent them, and that
/// changes about once a second at most. An answer to it is one to all of them, and each sender is
/// told that its own has gone; but when the latest is shown, it stays for the others that offer to
/// be stopped. What the desktop does with it is not its business. Uses the clock of the program, on
/// the main thread, and wakes it only while something changes.
class GatheredNotifications final : public QObject, public DesktopNotifications
{
    Q_OBJECT

public:
    /// Shows everything through the desktop's own notifications, which must live longer.
    explicit GatheredNotifications(DesktopNotifications &desktop);

    void notify(const QObject &sender, const DesktopNotification &notification) override;
    void withdraw(const QObject &sender) override;

private:
    /// A notification that has been neither withdrawn nor closed.
    struct Standing
    {
        const QObject *sender;
        DesktopNotification notification;
        /// Whether the desktop has been told of it.
        bool told;
    };

    [[nodiscard]] std::vector<Standing>::iterator find(const QObject &sender);
    [[nodiscard]] bool isTooFast();
    void change(Standing &standing, const DesktopNotification &notification);
    void showAlone(Standing &standing);
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
    /// The latest comes last.
    std::vector<Standing> _standing;
    /// When the last few came.
    std::deque<Date> _recent;
    bool _gathering = false;
    bool _changed = false;
    /// Runs for a while after each change of what is gathered.
    ClockTimer _refreshTimer{[this] { refresh(); }};
};
