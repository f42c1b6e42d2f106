#pragma once

#include "rules/GatheredNotifications.h"
#include "support/ClockFixture.h"
#include "support/Fakes.h"

#include <memory>
#include <vector>

/// Timers that end, and the notifications that the desktop then shows.
class GatheringFixture : public ClockFixture
{
public:
    FakeNotifications desktop;
    GatheredNotifications gathered{desktop};
    std::vector<std::unique_ptr<QObject>> timers;
    /// The names of the timers whose notifications have expired or have been dismissed.
    QStringList expired;
    QStringList dismissed;

    /// Ends this many new timers at once.
    void end(int count)
    {
        for (int i = 0; i < count; ++i) {
            timers.push_back(std::make_unique<QObject>());
            end(*timers.back(), QStringLiteral("T%1").arg(timers.size()));
        }
    }

    void end(const QObject &timer, const QString &name)
    {
        gathered.notify(timer, ringing(timer, name));
    }

    /// Ends the alarm of the timer at this index, as when its time is over.
    void quieten(std::size_t place)
    {
        DesktopNotification over = ringing(*timers[place], nameAt(place));
        over.stop = {};
        over.occasion = DesktopNotification::Occasion::Change;
        gathered.notify(*timers[place], over);
    }

    /// Shows the notification of the timer at this index again.
    void remind(std::size_t place)
    {
        DesktopNotification again = ringing(*timers[place], nameAt(place));
        again.occasion = DesktopNotification::Occasion::Reminder;
        gathered.notify(*timers[place], again);
    }

    /// The texts of the notifications on the desktop now.
    [[nodiscard]] QStringList texts() const
    {
        QStringList texts;
        for (const FakeNotifications::Shown &each : desktop.standing)
            texts << each.notification.text;
        return texts;
    }

    [[nodiscard]] const DesktopNotification &only() const
    {
        if (desktop.standing.size() != 1)
            qFatal("there are %zu notifications instead of one", desktop.standing.size());
        return desktop.standing.front().notification;
    }

private:
    [[nodiscard]] static QString nameAt(std::size_t place)
    {
        return QStringLiteral("T%1").arg(place + 1);
    }

    [[nodiscard]] DesktopNotification ringing(const QObject &timer, const QString &name)
    {
        return {.title = QStringLiteral("Wuff!"),
                .text = name + QStringLiteral(": 5s"),
                .name = QStringLiteral("wuff"),
                .subject = name,
                .show = [this, name] { diary << QStringLiteral("show ") + name; },
                .stop =
                    [this, &timer, name] {
                        diary << QStringLiteral("stop ") + name;
                        gathered.withdraw(timer);
                    },
                .closed =
                    [this, name](DesktopNotification::End how) {
                        (how == DesktopNotification::End::Expired ? expired : dismissed) << name;
                    }};
    }
};
