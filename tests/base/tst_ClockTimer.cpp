#include "base/ClockTimer.h"
#include "support/ClockFixture.h"
#include "support/TestMain.h"

#include <QTest>

#include <memory>

/// Timers that change themselves or one another while they fire, and timers that skip ticks.
class tst_ClockTimer final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aOneShotCanStartItselfInItsAction();
    void aRepeatingTimerCanStopItselfInItsAction();
    void aRepeatingTimerCanChangeItsIntervalInItsAction();
    void aTimerThatIsStoppedByAnotherDoesNotFire();
    void aTimerThatIsDestroyedByAnotherDoesNotFire();
    void aTimerThatJoinsWhileTheOthersFireWaitsForTheNextTick();
    void aOneShotStartedInAnActionWaitsForTheNextOpportunity();
    void othersGoOnWhileAnActionWaits();
    void ticksThatAllTimersSkipDoNotWakeTheProcess();
    void aTimerThatSkipsTicksFiresAtItsOwnTickBesideOthers();
    void aTimerThatSkipsNoMoreTicksFiresAtTheNextTick();
    void aTimerThatJoinsSkippingTimersFiresAtTheirTicks();
    void theTickCountIncludesSkippedTicks();
    void theTickCountOfALateFiringIncludesSkippedTicks();
    void aTimerThatStartsAgainSkipsNoTicks();
    void aTimerThatStartsAgainCountsTicksFromZero();
    void aOneShotSkipsNoTicks();
};

void tst_ClockTimer::aOneShotCanStartItselfInItsAction()
{
    ClockFixture f;
    ClockTimer timer([&] {
        f.diary << QStringLiteral("fired");
        if (f.diary.size() < 3)
            timer.startOnce(1);
    });
    timer.startOnce(1);

    f.clock.advance(2.5);
    QCOMPARE(f.diary.size(), 2);
    f.clock.advance(10);
    QCOMPARE(f.diary.size(), 3);
    QVERIFY(f.clock.isIdle());
}

void tst_ClockTimer::aRepeatingTimerCanStopItselfInItsAction()
{
    ClockFixture f;
    ClockTimer first([&] {
        f.diary << QStringLiteral("first");
        first.invalidate();
    });
    ClockTimer second(f.writes("second"));
    first.startRepeating(1);
    second.startRepeating(1);

    f.clock.advance(2.5);

    QCOMPARE(f.entries(), QStringLiteral("first second second"));
    QVERIFY(!first.isValid());
}

void tst_ClockTimer::aRepeatingTimerCanChangeItsIntervalInItsAction()
{
    ClockFixture f;
    ClockTimer timer([&] {
        f.diary << QStringLiteral("tick");
        timer.startRepeating(10);
    });
    timer.startRepeating(1);

    f.clock.advance(10.9);
    QCOMPARE(f.diary.size(), 1);
    f.clock.advance(0.2);
    QCOMPARE(f.diary.size(), 2);
}
void tst_ClockTimer::aTimerThatIsStoppedByAnotherDoesNotFire()
{
    ClockFixture f;
    ClockTimer sameBeat(f.writes("same beat"));
    ClockTimer once(f.writes("once"));
    ClockTimer first([&] {
        f.diary << QStringLiteral("first");
        sameBeat.invalidate();
        once.invalidate();
    });
    first.startRepeating(1);
    sameBeat.startRepeating(1);
    once.startOnce(1);

    f.clock.advance(2.5);

    QCOMPARE(f.entries(), QStringLiteral("first first"));
    QVERIFY(!sameBeat.isValid() && !once.isValid());
}

void tst_ClockTimer::aTimerThatIsDestroyedByAnotherDoesNotFire()
{
    ClockFixture f;
    auto sameBeat = std::make_unique<ClockTimer>(f.writes("same beat"));
    auto otherBeat = std::make_unique<ClockTimer>(f.writes("other beat"));
    ClockTimer first([&] {
        f.diary << QStringLiteral("first");
        sameBeat.reset();
        otherBeat.reset();
    });
    first.startRepeating(2);
    sameBeat->startRepeating(2);
    otherBeat->startRepeating(2.5);

    f.clock.sleep(3);
    QCOMPARE(f.entries(), QStringLiteral("first"));
    first.invalidate();
    QVERIFY(f.clock.isIdle());
}

void tst_ClockTimer::aTimerThatJoinsWhileTheOthersFireWaitsForTheNextTick()
{
    ClockFixture f;
    ClockTimer late(f.writes("late"));
    ClockTimer first([&] {
        f.diary << QStringLiteral("first");
        if (!late.isValid())
            late.startRepeating(1);
    });
    first.startRepeating(1);

    f.clock.advance(1.01);
    QCOMPARE(f.entries(), QStringLiteral("first"));
    f.clock.advance(1);
    QCOMPARE(f.entries(), QStringLiteral("first first late"));
}

void tst_ClockTimer::aOneShotStartedInAnActionWaitsForTheNextOpportunity()
{
    ClockFixture f;
    ClockTimer once(f.writes("once"));
    ClockTimer first([&] {
        once.startOnce(0);
        f.diary << QStringLiteral("first");
    });
    first.startOnce(1);

    f.clock.advance(1);
    f.clock.advance(0.01);

    QCOMPARE(f.entries(), QStringLiteral("first once"));
    QCOMPARE(f.clock.wakeUps(), 2);
}

void tst_ClockTimer::othersGoOnWhileAnActionWaits()
{
    ClockFixture f;
    ClockTimer waiting([&] {
        f.diary << QStringLiteral("begin");
        f.clock.advance(2);
        f.diary << QStringLiteral("end");
    });
    ClockTimer once(f.writes("once"));
    ClockTimer repeating(f.writes("tick"));
    waiting.startOnce(1);
    once.startOnce(1);
    repeating.startRepeating(1);

    f.clock.advance(1.5);

    QCOMPARE(f.entries(), QStringLiteral("begin once tick tick tick end"));
}

void tst_ClockTimer::ticksThatAllTimersSkipDoNotWakeTheProcess()
{
    ClockFixture f;
    ClockTimer first([&] {
        f.diary << QStringLiteral("first");
        first.skipTicks(4);
    });
    ClockTimer second([&] {
        f.diary << QStringLiteral("second");
        second.skipTicks(9);
    });
    first.startRepeating(0.1);
    second.startRepeating(0.1);

    f.clock.advance(1.15);

    QCOMPARE(f.entries(), QStringLiteral("first second first first second"));
    QCOMPARE(f.clock.wakeUps(), 3);
}

void tst_ClockTimer::aTimerThatSkipsTicksFiresAtItsOwnTickBesideOthers()
{
    ClockFixture f;
    ClockTimer rare([&] {
        f.diary << QStringLiteral("rare");
        rare.skipTicks(2);
    });
    ClockTimer steady(f.writes("steady"));
    rare.startRepeating(0.1);
    steady.startRepeating(0.1);

    f.clock.advance(0.45);

    QCOMPARE(f.entries(), QStringLiteral("rare steady steady steady rare steady"));
    QCOMPARE(f.clock.wakeUps(), 4);
}

void tst_ClockTimer::aTimerThatSkipsNoMoreTicksFiresAtTheNextTick()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startRepeating(0.1);
    timer.skipTicks(8);
    f.clock.advance(0.35);
    QVERIFY(f.diary.isEmpty());

    timer.skipTicks(0);

    f.clock.advance(0.04);
    QVERIFY(f.diary.isEmpty());
    f.clock.advance(0.02);
    QCOMPARE(f.diary.size(), 1);
    QCOMPARE(timer.ticks(), 4);
}

void tst_ClockTimer::aTimerThatJoinsSkippingTimersFiresAtTheirTicks()
{
    ClockFixture f;
    ClockTimer sleeper(f.writes("sleeper"));
    ClockTimer joiner(f.writes("joiner"));
    sleeper.startRepeating(0.1);
    sleeper.skipTicks(3);
    f.clock.advance(0.25);

    joiner.startRepeating(0.1);

    f.clock.advance(0.04);
    QVERIFY(f.diary.isEmpty());
    f.clock.advance(0.12);
    QCOMPARE(f.entries(), QStringLiteral("joiner sleeper joiner"));
    QCOMPARE(sleeper.ticks(), 4);
    QCOMPARE(joiner.ticks(), 1);
}

void tst_ClockTimer::theTickCountIncludesSkippedTicks()
{
    ClockFixture f;
    ClockTimer rare([&] {
        f.diary << QString::number(rare.ticks());
        rare.skipTicks(static_cast<int>(f.diary.size()));
    });
    rare.startRepeating(0.1);

    f.clock.advance(1.05);

    QCOMPARE(f.entries(), QStringLiteral("1 2 3 4"));
}

void tst_ClockTimer::theTickCountOfALateFiringIncludesSkippedTicks()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startRepeating(0.1);
    timer.skipTicks(2);

    f.clock.sleep(10);

    QCOMPARE(f.diary.size(), 1);
    QCOMPARE(timer.ticks(), 3);
}

void tst_ClockTimer::aTimerThatStartsAgainSkipsNoTicks()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startRepeating(0.1);
    timer.skipTicks(100);
    f.clock.advance(1);

    timer.startRepeating(0.1);

    f.clock.advance(0.11);
    QCOMPARE(f.diary.size(), 1);
    QCOMPARE(timer.ticks(), 1);
}

void tst_ClockTimer::aOneShotSkipsNoTicks()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startOnce(0.1);

    timer.skipTicks(5);

    f.clock.advance(0.11);
    QCOMPARE(f.diary.size(), 1);
}

void tst_ClockTimer::aTimerThatStartsAgainCountsTicksFromZero()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    ClockTimer steady([] {});
    timer.startRepeating(0.1);
    steady.startRepeating(0.1);
    timer.skipTicks(100);
    f.clock.advance(0.55);

    timer.startRepeating(0.1);

    f.clock.advance(0.1);
    QCOMPARE(f.diary.size(), 1);
    QCOMPARE(timer.ticks(), 1);
}

WUFFER_TEST(tst_ClockTimer, WithoutWindows)
#include "tst_ClockTimer.moc"
