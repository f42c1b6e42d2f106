#include "base/Date.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

/// The stopwatch mode, in which a timer counts up.
class tst_Stopwatch final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void enteringTheModeClearsTheTimer();
    void leavingTheModeGivesTheChoicesBack();
    void theModeCannotChangeWhileRunning();
    void itCountsUpWithoutEnd();
    void itNeverTurnsRedNorBeepsNorRings();
    void stoppingWritesTheElapsedTimeIntoTheFields();
    void startingAgainGoesOnToTheMillisecond_data();
    void startingAgainGoesOnToTheMillisecond();
    void savingEnergyLosesTheFraction();
    void resettingStartsOverInTheSameMode();
    void resettingWhileRunningStopsAndStartsOver();
    void theAlarmCannotBeKeptGoing();
    void aStopwatchMayFillTheScreen();
};

void tst_Stopwatch::enteringTheModeClearsTheTimer()
{
    TimerFixture t;
    t.typeDuration(1, 2, 3);
    t.tick("_keepWuffingBox");
    t.timer.setColorForDisplayText(TextColor::Blue, true);
    t.timer.stopwatch();

    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
    QCOMPARE(t.display(), QStringLiteral("0s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Stopwatch"));
    QCOMPARE(t.milliseconds(), QString());
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
    for (const char *combo :
         {"_finishedCombo", "_finishedPicker", "_alarmSoundCombo", "_countdownSoundCombo"})
        QVERIFY2(!t.part<QComboBox>(combo).isEnabled(), combo);
}

void tst_Stopwatch::leavingTheModeGivesTheChoicesBack()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.timer.setColorForDisplayText(TextColor::Blue, true);
    t.timer.stopwatch();

    QCOMPARE(t.elapsed(), QString());
    QCOMPARE(t.display(), QStringLiteral("0s"));
    QCOMPARE(t.color(), QColor(Qt::black));
    QVERIFY(t.part<QCheckBox>("_keepWuffingBox").isEnabled());
    for (const char *combo :
         {"_finishedCombo", "_finishedPicker", "_alarmSoundCombo", "_countdownSoundCombo"})
        QVERIFY2(t.part<QComboBox>(combo).isEnabled(), combo);
    t.startCountdown(5);
    QCOMPARE(t.display(), QStringLiteral("5s"));
}

void tst_Stopwatch::theModeCannotChangeWhileRunning()
{
    TimerFixture t;
    t.startCountdown(60);
    t.timer.stopwatch();
    t.pass(1.04);
    QCOMPARE(t.display(), QStringLiteral("58s"));
}

void tst_Stopwatch::itCountsUpWithoutEnd()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.pressGo();
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QVERIFY(*t.timer.targetDate() == Date::distantFuture());
    t.pass(63.3);
    QCOMPARE(t.display(), QStringLiteral("1m 3s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Stopwatch"));
    QCOMPARE(t.milliseconds().size(), 3);
    t.clock.sleep(86400);
    QCOMPARE(t.display(), QStringLiteral("1d 1m "));
}

void tst_Stopwatch::itNeverTurnsRedNorBeepsNorRings()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.pressGo();
    for (int second = 0; second < 30; ++second) {
        t.pass(1);
        QCOMPARE(t.color(), QColor(Qt::black));
    }
    QCOMPARE(t.sounds.diary(), QStringList());
    QVERIFY(t.notifications.shown.empty());
}

void tst_Stopwatch::stoppingWritesTheElapsedTimeIntoTheFields()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.pressGo();
    t.pass(63.25);
    t.pressGo();
    QCOMPARE(t.fields(), QStringLiteral("0 1 3.25"));
    QCOMPARE(t.display(), QStringLiteral("1m 3s"));
    QCOMPARE(t.milliseconds(), QStringLiteral("250"));
    QCOMPARE(t.go(), QStringLiteral("Start"));
}

void tst_Stopwatch::startingAgainGoesOnToTheMillisecond_data()
{
    QTest::addColumn<int>("milliseconds");
    for (const int milliseconds : {0, 1, 9, 250, 299, 300, 301, 777, 999})
        QTest::addRow("%d ms", milliseconds) << milliseconds;
}

void tst_Stopwatch::startingAgainGoesOnToTheMillisecond()
{
    QFETCH(const int, milliseconds);
    TimerFixture t;
    t.timer.stopwatch();
    t.typeDuration(0, 1, 3);
    t.label("_msLabel").setText(QStringLiteral("%1").arg(milliseconds, 3, 10, QLatin1Char('0')));
    const QString shown = t.milliseconds();
    for (int i = 0; i < 3; ++i) {
        t.pressGo();
        QCOMPARE(t.display(), QStringLiteral("1m 3s"));
        QCOMPARE(t.milliseconds(), shown);
        t.pressGo();
        QCOMPARE(t.milliseconds(), shown);
    }
}

void tst_Stopwatch::savingEnergyLosesTheFraction()
{
    TimerFixture t;
    t.set("energySaverMode", 1);
    t.timer.stopwatch();
    t.pressGo();
    t.pass(3.75);
    t.pressGo();
    QCOMPARE(t.milliseconds(), QString());
    t.pressGo();
    t.pressGo();
    QCOMPARE(t.fields(), QStringLiteral("0 0 3"));
}

void tst_Stopwatch::resettingStartsOverInTheSameMode()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.pressGo();
    t.pass(63.25);
    t.pressGo();
    t.timer.resetWuffer();
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
    QCOMPARE(t.display(), QStringLiteral("0s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Stopwatch"));
    QCOMPARE(t.milliseconds(), QString());
    t.pressGo();
    t.pass(2.04);
    QCOMPARE(t.display(), QStringLiteral("2s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Stopwatch"));
}

void tst_Stopwatch::resettingWhileRunningStopsAndStartsOver()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.pressGo();
    t.pass(63.25);
    t.timer.resetWuffer();
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.display(), QStringLiteral("0s"));
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
}

void tst_Stopwatch::theAlarmCannotBeKeptGoing()
{
    TimerFixture t;
    QVERIFY(t.timer.shouldKeepWuffing());
    t.timer.stopwatch();
    QVERIFY(!t.timer.shouldKeepWuffing());
    t.pressGo();
    t.pressGo();
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
}

void tst_Stopwatch::aStopwatchMayFillTheScreen()
{
    TimerFixture t;
    t.tick("_fullScreenBox");
    t.timer.stopwatch();
    t.pressGo();
    QVERIFY(t.isFullScreen());
}

WUFFER_TEST(tst_Stopwatch)
#include "tst_Stopwatch.moc"
