#include "rules/TimerRun.h"
#include "support/ClockFixture.h"
#include "support/TestMain.h"

/// A run on a clock that the test moves.
class tst_TimerRun final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNewRunIsAnIdleCountdown();
    void aCountdownEndsItsDurationAfterItsStart();
    void aZeroOrNegativeCountdownIsOverAtOnce();
    void aStopwatchGoesOnFromWhatItHasCounted();
    void aStopwatchKeepsEveryMillisecondItGoesOnFrom();
    void aStopwatchLeavesTheLastDurationAlone();
    void stoppingLeavesWhatTheNextStartGoesOnFrom();
    void theAlarmIsAState();
    void datesStayAfterAStop();
    void aLoopCountsItsPasses();
    void everyFifthTickIsReported();
    void ticksAreCountedOnFromRunToRun();
    void beepsComeOnceASecondInTheLastTwelve();
    void aStartBeginsTheBeepsAnew();
};

namespace
{
constexpr double kLater = 65.25;

/// The times of a run at the present time of the clock.
RunTimes timesNow(const TimerRun &run)
{
    return run.timesAt(Date::now());
}
} // namespace

void tst_TimerRun::aNewRunIsAnIdleCountdown()
{
    const TimerRun run;
    QVERIFY(run.state() == TimerRun::State::Idle);
    QVERIFY(!run.isStarted());
    QVERIFY(!run.isStopwatch());
    QVERIFY(!run.targetDate());
    QCOMPARE(run.initialTimeLeft(), 0.0);
    QCOMPARE(run.repeatCount(), 1U);
    QCOMPARE(run.withRepeatCount(QStringLiteral("%2 5s")), QStringLiteral("%2 5s"));
}

void tst_TimerRun::aCountdownEndsItsDurationAfterItsStart()
{
    ClockFixture fixture;
    TimerRun run;
    const Date start = Date::now();
    run.start(300, 999, start);
    QVERIFY(run.state() == TimerRun::State::Running);
    QVERIFY(run.isStarted());
    QCOMPARE(run.targetDate()->timeIntervalSinceDate(start), 300.0);
    QCOMPARE(run.initialTimeLeft(), 300.0);
    QCOMPARE(run.duration(), 300.0);
    fixture.clock.advance(kLater);
    QCOMPARE(timesNow(run).remaining, 300 - kLater);
    QCOMPARE(timesNow(run).elapsed, kLater);
    QCOMPARE(run.counted(timesNow(run)), 300 - kLater);
}

void tst_TimerRun::aZeroOrNegativeCountdownIsOverAtOnce()
{
    const ClockFixture fixture;
    for (const int seconds : {0, -5}) {
        TimerRun run;
        run.start(seconds, 0, Date::now());
        QVERIFY(run.isStarted());
        QCOMPARE(timesNow(run).remaining, double(seconds));
    }
}

void tst_TimerRun::aStopwatchGoesOnFromWhatItHasCounted()
{
    ClockFixture fixture;
    TimerRun run;
    run.setStopwatch(true);
    QVERIFY(run.isStopwatch());
    run.start(63, 250, Date::now());
    QCOMPARE(timesNow(run).elapsed, 63.25);
    QVERIFY(*run.targetDate() == Date::distantFuture());
    fixture.clock.advance(1);
    QCOMPARE(run.counted(timesNow(run)), 64.25);
}

void tst_TimerRun::aStopwatchKeepsEveryMillisecondItGoesOnFrom()
{
    const ClockFixture fixture;
    for (int milliseconds = 0; milliseconds < 1000; ++milliseconds) {
        TimerRun run;
        run.setStopwatch(true);
        run.start(7, milliseconds, Date::now());
        const double elapsed = timesNow(run).elapsed;
        QCOMPARE(int((elapsed - 7) * 1000), milliseconds);
    }
}

void tst_TimerRun::aStopwatchLeavesTheLastDurationAlone()
{
    const ClockFixture fixture;
    TimerRun run;
    run.start(90, 0, Date::now());
    run.stop(Date::now());
    run.setStopwatch(true);
    run.start(5, 0, Date::now());
    QCOMPARE(run.initialTimeLeft(), 90.0);
}

void tst_TimerRun::stoppingLeavesWhatTheNextStartGoesOnFrom()
{
    ClockFixture fixture;
    TimerRun countdown;
    TimerRun stopwatch;
    stopwatch.setStopwatch(true);
    countdown.start(60, 0, Date::now());
    stopwatch.start(0, 0, Date::now());
    fixture.clock.advance(kLater);
    const TimerRun::Rest left = countdown.stop(Date::now());
    QVERIFY(countdown.state() == TimerRun::State::Idle);
    QCOMPARE(left.value, 60 - kLater);
    QCOMPARE(left.times.elapsed, kLater);
    QCOMPARE(stopwatch.stop(Date::now()).value, kLater);
}

void tst_TimerRun::theAlarmIsAState()
{
    const ClockFixture fixture;
    TimerRun run;
    run.start(0, 0, Date::now());
    run.beginAlarm();
    QVERIFY(run.state() == TimerRun::State::Alarm);
    QVERIFY(run.isStarted());
    run.stop(Date::now());
    QVERIFY(run.state() == TimerRun::State::Idle);
}

void tst_TimerRun::datesStayAfterAStop()
{
    const ClockFixture fixture;
    TimerRun run;
    run.start(10, 0, Date::now());
    run.stop(Date::now());
    QVERIFY(run.targetDate());
    QCOMPARE(run.duration(), 10.0);
}

void tst_TimerRun::aLoopCountsItsPasses()
{
    TimerRun run;
    run.countRepeat();
    QCOMPARE(run.repeatCount(), 2U);
    QCOMPARE(run.withRepeatCount(QStringLiteral("%2 5s")), QStringLiteral("%2 5s (x2)"));
    run.countRepeat();
    QCOMPARE(run.withRepeatCount(QStringLiteral("%2 5s")), QStringLiteral("%2 5s (x3)"));
    run.resetRepeatCount();
    QCOMPARE(run.repeatCount(), 1U);
    QCOMPARE(run.withRepeatCount(QStringLiteral("%2 5s")), QStringLiteral("%2 5s"));
}

void tst_TimerRun::everyFifthTickIsReported()
{
    TimerRun run;
    QList<int> told;
    for (int tick = 1; tick <= 11; ++tick) {
        if (run.countTicks(1))
            told << tick;
        QCOMPARE(run.ticksBeforeStatus(), 4 - tick % 5);
    }
    QCOMPARE(told, QList<int>({5, 10}));
    QVERIFY(!run.countTicks(3));
    QVERIFY(run.countTicks(1));
}

void tst_TimerRun::ticksAreCountedOnFromRunToRun()
{
    const ClockFixture fixture;
    TimerRun run;
    run.start(10, 0, Date::now());
    QVERIFY(!run.countTicks(3));
    run.stop(Date::now());
    run.start(10, 0, Date::now());
    QVERIFY(run.countTicks(2));
}

void tst_TimerRun::beepsComeOnceASecondInTheLastTwelve()
{
    const ClockFixture fixture;
    TimerRun run;
    run.start(20, 0, Date::now());
    QList<float> volumes;
    // In steps of 1/32 s, which is exact in binary.
    for (double remaining = 20; remaining > 0; remaining -= 0x1p-5) {
        if (const std::optional<float> volume = run.takeBeep(remaining))
            volumes << *volume;
    }
    QCOMPARE(volumes.size(), 12);
    QCOMPARE(volumes.first(), 0.0F);
    QVERIFY(std::is_sorted(volumes.begin(), volumes.end()));
    QVERIFY(volumes.last() > 0.3F);
}

void tst_TimerRun::aStartBeginsTheBeepsAnew()
{
    const ClockFixture fixture;
    TimerRun run;
    run.start(5, 0, Date::now());
    QVERIFY(run.takeBeep(4));
    QVERIFY(!run.takeBeep(4));
    run.stop(Date::now());
    run.start(5, 0, Date::now());
    QVERIFY(run.takeBeep(4));
}

WUFFER_TEST(tst_TimerRun)
#include "tst_TimerRun.moc"
