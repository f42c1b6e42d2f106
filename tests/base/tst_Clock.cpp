#include "base/ClockTimer.h"
#include "support/ClockFixture.h"
#include "support/TestMain.h"

#include <QTest>

#include <cmath>
#include <list>

class tst_Clock final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timersOfOneIntervalFireTogether();
    void aTimerThatJoinsFiresAtTheTicksOfTheOthers();
    void theFirstTimerAfterAllHaveStoppedStartsNewTicks();
    void aHundredTimersWakeTheProcessNoMoreOftenThanOne();
    void nothingWakesWhenNoTimerIsActive();
    void aLateTickIsNotRepeated();
    void timersFireInTheOrderInWhichTheyWereDue();
    void aOneShotFiresOnceAndNotEarly();
    void aOneShotWithoutADelayFiresAtTheNextOpportunity_data();
    void aOneShotWithoutADelayFiresAtTheNextOpportunity();
    void startingAgainReplacesTheEarlierStart();
    void anIntervalThatIsNotPositiveIsRefused_data();
    void anIntervalThatIsNotPositiveIsRefused();
};

void tst_Clock::timersOfOneIntervalFireTogether()
{
    ClockFixture f;
    ClockTimer first(f.writes("first"));
    ClockTimer second(f.writes("second"));
    first.startRepeating(0.5);
    second.startRepeating(0.5);

    f.clock.advance(1.01);

    QCOMPARE(f.entries(), QStringLiteral("first second first second"));
    QCOMPARE(f.clock.wakeUps(), 2);
}

void tst_Clock::aTimerThatJoinsFiresAtTheTicksOfTheOthers()
{
    ClockFixture f;
    ClockTimer first(f.writes("first"));
    ClockTimer second(f.writes("second"));

    first.startRepeating(0.5);
    f.clock.advance(0.2);
    second.startRepeating(0.5);
    f.clock.advance(0.31);

    QCOMPARE(f.entries(), QStringLiteral("first second"));
    QCOMPARE(f.clock.wakeUps(), 1);
}

void tst_Clock::theFirstTimerAfterAllHaveStoppedStartsNewTicks()
{
    ClockFixture f;
    ClockTimer timer(f.writes("tick"));
    timer.startRepeating(0.5);
    f.clock.advance(0.4);
    timer.startRepeating(0.5);

    f.clock.advance(0.4);
    QVERIFY(f.diary.isEmpty());
    f.clock.advance(0.11);
    QCOMPARE(f.diary.size(), 1);
}

void tst_Clock::aHundredTimersWakeTheProcessNoMoreOftenThanOne()
{
    ClockFixture f;
    std::list<ClockTimer> timers;
    for (int i = 0; i < 100; ++i) {
        timers.emplace_back(f.writes("tick")).startRepeating(0.037);
        f.clock.advance(0.0003);
    }

    const int before = f.clock.wakeUps();
    f.diary.clear();
    f.clock.advance(1.0);

    QCOMPARE(f.clock.wakeUps() - before, 27);
    QCOMPARE(f.diary.size(), 2700);
}

void tst_Clock::nothingWakesWhenNoTimerIsActive()
{
    ClockFixture f;
    ClockTimer repeating(f.writes("repeating"));
    ClockTimer once(f.writes("once"));
    QVERIFY(f.clock.isIdle());
    repeating.startRepeating(0.037);
    once.startOnce(5);
    QVERIFY(!f.clock.isIdle());

    repeating.invalidate();
    once.invalidate();

    QVERIFY(f.clock.isIdle());
    QVERIFY(!repeating.isValid() && !once.isValid());
    f.clock.advance(100'000);
    QCOMPARE(f.clock.wakeUps(), 0);
}

void tst_Clock::aLateTickIsNotRepeated()
{
    ClockFixture f;
    ClockTimer timer(f.writes("tick"));
    timer.startRepeating(1);

    f.clock.sleep(10.25);
    QCOMPARE(f.diary.size(), 1);
    f.clock.advance(0.74);
    QCOMPARE(f.diary.size(), 1);
    // The next tick is due at the same phase as before.
    f.clock.advance(0.02);
    QCOMPARE(f.diary.size(), 2);
}

void tst_Clock::timersFireInTheOrderInWhichTheyWereDue()
{
    ClockFixture f;
    ClockTimer late(f.writes("late"));
    ClockTimer middle(f.writes("middle"));
    ClockTimer early(f.writes("early"));
    ClockTimer together(f.writes("together"));
    late.startOnce(3);
    middle.startRepeating(2);
    early.startOnce(1);
    together.startOnce(1);

    f.clock.sleep(3.5);

    QCOMPARE(f.entries(), QStringLiteral("early together middle late"));
}

void tst_Clock::aOneShotFiresOnceAndNotEarly()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startOnce(0.3);

    f.clock.advance(0.2999);
    QVERIFY(f.diary.isEmpty());
    QVERIFY(timer.isValid());
    f.clock.advance(0.0002);
    QCOMPARE(f.diary.size(), 1);
    QVERIFY(!timer.isValid());
    f.clock.advance(100);
    QCOMPARE(f.diary.size(), 1);
    QVERIFY(f.clock.isIdle());
}

void tst_Clock::aOneShotWithoutADelayFiresAtTheNextOpportunity_data()
{
    QTest::addColumn<double>("delay");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -5.0;
    QTest::newRow("not a number") << std::nan("");
}

void tst_Clock::aOneShotWithoutADelayFiresAtTheNextOpportunity()
{
    QFETCH(const double, delay);
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));

    timer.startOnce(delay);
    QVERIFY(f.diary.isEmpty());
    f.clock.advance(0);

    QCOMPARE(f.diary.size(), 1);
}

void tst_Clock::startingAgainReplacesTheEarlierStart()
{
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startRepeating(1);
    timer.startOnce(2.5);

    f.clock.advance(2.4);
    QVERIFY(f.diary.isEmpty());
    f.clock.advance(10);
    QCOMPARE(f.diary.size(), 1);
}

void tst_Clock::anIntervalThatIsNotPositiveIsRefused_data()
{
    QTest::addColumn<double>("interval");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("not a number") << std::nan("");
}

void tst_Clock::anIntervalThatIsNotPositiveIsRefused()
{
    QFETCH(const double, interval);
    ClockFixture f;
    ClockTimer timer(f.writes("fired"));
    timer.startOnce(1);

    timer.startRepeating(interval);

    QVERIFY(!timer.isValid());
    QVERIFY(f.clock.isIdle());
}

WUFFER_TEST(tst_Clock, WithoutWindows)
#include "tst_Clock.moc"
