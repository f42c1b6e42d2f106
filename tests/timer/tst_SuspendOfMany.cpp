#include "support/Sleeper.h"
#include "support/TestMain.h"

#include <algorithm>

namespace
{
constexpr double kHour = 3600;
} // namespace

/// What several timers, independent or in a chain, do when the computer resumes.
class tst_SuspendOfMany final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyTimerThatHasEndedRingsOnce();
    void aChainGoesOnWhereItWas();
    void aChainDoesNotCatchUpInItsAlarm();
    void manyShortSleepsLoseNothing();
};

void tst_SuspendOfMany::everyTimerThatHasEndedRingsOnce()
{
    Sleeper t;
    TimerUser second;
    TimerUser third;
    // The second timer already rings; the third has not ended yet.
    second.startCountdown(1);
    t.pass(2);
    TimerUser fourth;
    fourth.startCountdown(900);
    third.startCountdown(2 * int(kHour));
    t.startCountdown(600);
    t.sleepAndWake(kHour);
    std::vector<const QObject *> senders;
    for (const FakeNotifications::Shown &shown : t.notifications.shown)
        senders.push_back(shown.sender);
    QCOMPARE(senders.size(), std::size_t(2));
    QCOMPARE(std::ranges::count(senders, &t.timer), 1);
    QCOMPARE(std::ranges::count(senders, &fourth.timer), 1);
    QCOMPARE(second.go(), QStringLiteral("Reset"));
    QCOMPARE(third.display(), QStringLiteral("59m 59s"));
}

void tst_SuspendOfMany::aChainGoesOnWhereItWas()
{
    Sleeper t;
    TimerUser second;
    TimerUser third;
    for (TimerUser *user : {static_cast<TimerUser *>(&t), &second, &third})
        user->typeDuration(0, 1, 0);
    t.timer.setTargetWuffer(&second.timer);
    second.timer.setTargetWuffer(&third.timer);
    t.pressGo();
    // All three could have ended meanwhile, but each starts only when the one before has rung.
    t.sleepAndWake(kHour);
    QCOMPARE(t.rings(), 1);
    QVERIFY(!second.timer.isRunning());
    t.endSounds();
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(second.display(), QStringLiteral("59s"));
    t.pass(60);
    QCOMPARE(t.rings(), 2);
    t.endSounds();
    QVERIFY(third.timer.isRunning());
    t.sleepAndWake(kHour);
    QCOMPARE(t.rings(), 1);
    QCOMPARE(t.notifications.shown.front().sender, &third.timer);
    t.endSounds();
    t.pass(kHour);
    QCOMPARE(t.rings(), 1);
}

void tst_SuspendOfMany::aChainDoesNotCatchUpInItsAlarm()
{
    Sleeper t;
    TimerUser second;
    second.typeDuration(0, 1, 0);
    t.timer.setTargetWuffer(&second.timer);
    t.startCountdown(1);
    t.pass(2);
    t.sleepAndWake(kHour);
    QCOMPARE(t.rings(), 0);
    QVERIFY(!second.timer.isRunning());
    t.endSounds();
    QVERIFY(second.timer.isRunning());
    QCOMPARE(second.display(), QStringLiteral("59s"));
}

void tst_SuspendOfMany::manyShortSleepsLoseNothing()
{
    Sleeper t;
    TimerUser second;
    t.startCountdown(600);
    second.startCountdown(720);
    int rings = 0;
    for (int nap = 0; nap < 73; ++nap) {
        t.sleepAndWake(9.81);
        rings += t.rings();
        QVERIFY(t.beeps() <= 1);
    }
    QCOMPARE(rings, 2);
}

WUFFER_TEST(tst_SuspendOfMany)
#include "tst_SuspendOfMany.moc"
