#include "support/Sleeper.h"
#include "support/TestMain.h"
#include "timer/TargetTimeSheet.h"

namespace
{
constexpr double kHour = 3600;
const QString kLoop = QStringLiteral("Loop this Wuffer");

/// Brings a timer into the state that it has when the computer is suspended.
using Prepare = void (*)(Sleeper &t);

void countDown(Sleeper &t)
{
    t.startCountdown(600);
}
void countDownMuted(Sleeper &t)
{
    t.set("soundOff", 1);
    t.startCountdown(600);
}
void countDownSavingEnergy(Sleeper &t)
{
    t.set("energySaverMode", 1);
    t.startCountdown(600);
}
void countDownWithoutBeeps(Sleeper &t)
{
    t.set("suppressCountdown", 1);
    t.startCountdown(600);
}
void countDownOnTheFullScreen(Sleeper &t)
{
    t.tick("_fullScreenBox");
    t.startCountdown(600);
}
void beep(Sleeper &t)
{
    t.startCountdown(60);
    t.pass(50);
}
void ring(Sleeper &t)
{
    t.startCountdown(1);
    t.pass(2);
}
void ringMuted(Sleeper &t)
{
    t.set("soundOff", 1);
    ring(t);
}
void ringOnAndOn(Sleeper &t)
{
    t.tick("_keepWuffingBox");
    ring(t);
}
void runAsAStopwatch(Sleeper &t)
{
    t.timer.stopwatch();
    t.pressGo();
}
void countDownToADate(Sleeper &t)
{
    t.timer.targetTime();
    const QDateTime end = t.clock.calendarNow().addSecs(600);
    t.timer.window()->findChild<TargetTimeSheet *>()->setDateValue(end);
    t.timer.startWithTargetTime();
}
void loop(Sleeper &t)
{
    t.chooseFinish(kLoop);
    t.startCountdown(5);
}
void standStill(Sleeper &t)
{
    t.typeDuration(0, 10, 0);
}
void standStillAfterAStop(Sleeper &t)
{
    t.startCountdown(600);
    t.pass(300);
    t.pressGo();
}
} // namespace

Q_DECLARE_METATYPE(Prepare)

/// What a timer does when the computer resumes, for each state that the timer may be in.
class tst_Suspend final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void wakingUpRingsOnceAtMostAndBeepsOnceAtMost_data();
    void wakingUpRingsOnceAtMostAndBeepsOnceAtMost();
    void theBeepsGoOnAtTheirPace();
    void aNotificationStandsAndIsNotRepeated();
    void theFullScreenLastsUntilTheAlarmIsOver();
    void aLoopRingsForOnePassAndBeginsAWholeOne();
    void aMutedLoopRingsForOnePassAndBeginsAWholeOne();
    void aPresetStartsOnceAndWhole();
    void aStopwatchHasCountedOn();
};

void tst_Suspend::wakingUpRingsOnceAtMostAndBeepsOnceAtMost_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<double>("slept");
    QTest::addColumn<int>("rings");
    QTest::addColumn<int>("beeps");
    QTest::addColumn<QString>("go");
    QTest::addColumn<QString>("display");
    const QString start = QStringLiteral("Start");
    const QString stop = QStringLiteral("Stop");
    const QString reset = QStringLiteral("Reset");
    const QString wuff = QStringLiteral("Wuff!");
    const QString idle = QStringLiteral("Wuffer");
    const auto row = [](const char *name, Prepare prepare, double slept, int rings, int beeps,
                        const QString &go, const QString &display) {
        QTest::newRow(name) << prepare << slept << rings << beeps << go << display;
    };
    row("counting, until before the end", countDown, 300, 0, 0, stop, QStringLiteral("4m 59s"));
    row("counting, into the last seconds", countDown, 595, 0, 1, stop, QStringLiteral("4s"));
    row("counting, to the very end", countDown, 600, 1, 0, reset, wuff);
    row("counting, beyond the end", countDown, kHour, 1, 0, reset, wuff);
    row("counting, for months", countDown, 2500 * kHour, 1, 0, reset, wuff);
    row("counting without beeps", countDownWithoutBeeps, 595, 0, 0, stop, QStringLiteral("4s"));
    row("counting muted, into the last seconds", countDownMuted, 595, 0, 0, stop,
        QStringLiteral("4s"));
    row("counting muted", countDownMuted, kHour, 1, 0, reset, wuff);
    row("counting in the energy saver, into the last seconds", countDownSavingEnergy, 595, 0, 1,
        stop, QStringLiteral("4s"));
    row("counting in the energy saver", countDownSavingEnergy, kHour, 1, 0, reset, wuff);
    row("filling the screen", countDownOnTheFullScreen, kHour, 1, 0, reset, wuff);
    row("beeping, until before the end", beep, 5, 0, 1, stop, QStringLiteral("4s"));
    row("beeping, beyond the end", beep, kHour, 1, 0, reset, wuff);
    row("ringing", ring, kHour, 0, 0, reset, wuff);
    row("ringing muted with nothing to follow", ringMuted, kHour, 0, 0, reset, wuff);
    row("ringing until it is reset", ringOnAndOn, kHour, 0, 0, reset, wuff);
    row("a stopwatch", runAsAStopwatch, kHour, 0, 0, stop, QStringLiteral("1h 0s"));
    row("counting down to a date", countDownToADate, kHour, 1, 0, reset, wuff);
    row("looping", loop, kHour, 1, 0, reset, wuff);
    row("standing still", standStill, kHour, 0, 0, start, idle);
    row("stopped", standStillAfterAStop, kHour, 0, 0, start, QStringLiteral("5m 0s"));
}

void tst_Suspend::wakingUpRingsOnceAtMostAndBeepsOnceAtMost()
{
    QFETCH(const Prepare, prepare);
    QFETCH(const double, slept);
    QFETCH(const int, rings);
    Sleeper t;
    prepare(t);
    const bool muted = t.defaults.boolForKey(QStringLiteral("soundOff"));
    t.sleepAndWake(slept);
    QCOMPARE(t.rings(), rings);
    QCOMPARE(t.alarms(), muted ? 0 : rings);
    QCOMPARE(t.attentions(), muted ? rings : 0);
    QTEST(t.beeps(), "beeps");
    QTEST(t.go(), "go");
    QTEST(t.display(), "display");
}

void tst_Suspend::theBeepsGoOnAtTheirPace()
{
    Sleeper t;
    beep(t);
    t.sleepAndWake(5);
    t.pass(0.8);
    QCOMPARE(t.beeps(), 1);
    t.pass(4.1);
    // One beep for each second left after the resume; those missed are not made up for.
    QCOMPARE(t.beeps(), 5);
    QCOMPARE(t.rings(), 1);
}

void tst_Suspend::aNotificationStandsAndIsNotRepeated()
{
    Sleeper t;
    ringOnAndOn(t);
    t.sleepAndWake(kHour);
    QCOMPARE(t.notifications.standing.size(), std::size_t(1));
    QCOMPARE(t.notifications.standing.front().sender, &t.timer);
    t.pressGo();
    QVERIFY(t.notifications.standing.empty());
    t.pass(kHour);
    QCOMPARE(t.rings(), 0);
}

void tst_Suspend::theFullScreenLastsUntilTheAlarmIsOver()
{
    Sleeper t;
    countDownOnTheFullScreen(t);
    t.sleepAndWake(kHour);
    QVERIFY(t.isFullScreen());
    QVERIFY(t.screenBlanking.isInhibited);
    t.endSounds();
    QVERIFY(!t.isFullScreen());
    QVERIFY(!t.screenBlanking.isInhibited);
    QCOMPARE(t.rings(), 1);
}

void tst_Suspend::aLoopRingsForOnePassAndBeginsAWholeOne()
{
    Sleeper t;
    loop(t);
    t.sleepAndWake(kHour);
    t.endSounds();
    QCOMPARE(t.rings(), 1);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    t.pass(4.7);
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 4s (x2)"));
    QCOMPARE(t.rings(), 1);
    t.pass(0.4);
    QCOMPARE(t.rings(), 2);
}

void tst_Suspend::aMutedLoopRingsForOnePassAndBeginsAWholeOne()
{
    Sleeper t;
    t.set("soundOff", 1);
    loop(t);
    t.sleepAndWake(kHour);
    QCOMPARE(t.attentions(), 1);
    t.pass(4.7);
    QCOMPARE(t.attentions(), 1);
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 4s (x2)"));
    t.pass(0.6);
    QCOMPARE(t.attentions(), 2);
}

void tst_Suspend::aPresetStartsOnceAndWhole()
{
    Sleeper t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    t.pick(0);
    t.startCountdown(5);
    t.sleepAndWake(kHour);
    t.endSounds();
    QCOMPARE(t.rings(), 1);
    QVERIFY(t.timer.targetDate()->timeIntervalSinceNow() > 599);
}

void tst_Suspend::aStopwatchHasCountedOn()
{
    Sleeper t;
    runAsAStopwatch(t);
    t.pass(10);
    t.sleepAndWake(kHour);
    t.pressGo();
    QCOMPARE(t.fields(), QStringLiteral("1 0 10.19"));
}

WUFFER_TEST(tst_Suspend)
#include "tst_Suspend.moc"
