#include "app/WufferApplication.h"
#include "base/Date.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QSignalSpy>

/// Start, the run tick, Stop and Reset of a countdown.
class tst_RunCycle final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNewTimerIsIdleAndEmpty();
    void startingSetsTheEndExactlyTheTotalAway();
    void startingLocksTheFieldsAndOffersStop();
    void startingShowsTheWholeTimeAtOnce();
    void theDisplayMovesEveryTick();
    void aSleepMakesNoTimerWrong();
    void settingTheComputersClockMovesNoTimer();
    void stoppingKeepsTheRemainingTimeInTheFields();
    void startingAgainRunsTheWholeSecondsLeft();
    void aZeroDurationEndsAtTheFirstTick();
    void theVeryMomentOfTheEndIsTheEnd();
    void aNegativeDurationEndsAtTheFirstTick();
    void textThatIsNoNumberCountsAsZero();
    void stoppingWithNothingLeftLeavesTheFieldsAlone();
    void hugeDurationsDoNotOverflow();
    void resettingRestoresTheDurationOfTheLastStart();
    void resettingWhileRunningStops();
    void resettingBeforeAnyStartEmptiesTheFields();
    void aStopwatchRunLeavesTheDurationToResetAlone();
    void theButtonPressGivesTheKeepWuffingBoxBack();
    void aMutedTimersKeepWuffingBoxStaysDisabled();
    void theNoticeComesWhenTheTimerHasFinishedItsChange();
    void everyFifthTickPostsANotice();
    void ticksPostNoticesOfTheStatusAndEmitNoChangeOfState();
    void anObserverOfTheNoticeMayStopTheTimer();
    void theCountOfTicksGoesOnOverAStop();
    void startAndStopEachPostOneNotice();
    void savingEnergyWorksEveryFifthTickOnly();
    void startingIsNotRefusedByADisabledButton();
    void hundredTimersWakeTheProcessAsOftenAsOne();
    void anIdleTimerWakesNothing();
};

void tst_RunCycle::aNewTimerIsIdleAndEmpty()
{
    const TimerFixture t;
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
    QCOMPARE(t.timer.title(), QStringLiteral("Wuffer"));
    QVERIFY(t.part<QLineEdit>("_titleField").text().isEmpty());
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
    QVERIFY(!t.part<QCheckBox>("_fullScreenBox").isChecked());
    QVERIFY(!t.timer.isRunning());
    QVERIFY(!t.timer.targetDate());
    QVERIFY(!t.isFullScreen());
    QCOMPARE(t.go(), QStringLiteral("Start"));
    QVERIFY(t.part<QPushButton>("_goButton").isDefault());
    QCOMPARE(t.part<QComboBox>("_finishedCombo").currentText(), QStringLiteral("Do Nothing"));
}

void tst_RunCycle::startingSetsTheEndExactlyTheTotalAway()
{
    TimerFixture t;
    const Date before = Date::now();
    t.typeDuration(1, 2, 5);
    t.pressGo();
    QCOMPARE(t.timer.targetDate()->timeIntervalSinceDate(before), 3725.0);
    QVERIFY(t.timer.isRunning());
}

void tst_RunCycle::startingLocksTheFieldsAndOffersStop()
{
    TimerFixture t;
    t.startCountdown(60);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QVERIFY(t.part<QPushButton>("_goButton").isEnabled());
    for (const char *field : {"_hoursField", "_minutesField", "_secondsField"})
        QVERIFY2(!t.part<QLineEdit>(field).isEnabled(), field);
    QVERIFY(t.part<QLineEdit>("_titleField").isEnabled());
    t.pressGo();
    QCOMPARE(t.go(), QStringLiteral("Start"));
    for (const char *field : {"_hoursField", "_minutesField", "_secondsField"})
        QVERIFY2(t.part<QLineEdit>(field).isEnabled(), field);
}

void tst_RunCycle::startingShowsTheWholeTimeAtOnce()
{
    TimerFixture t;
    t.startCountdown(65);
    QCOMPARE(t.display(), QStringLiteral("1m 5s"));
    QCOMPARE(t.milliseconds(), QStringLiteral("000"));
    QCOMPARE(t.elapsed(), QString());
}

void tst_RunCycle::theDisplayMovesEveryTick()
{
    TimerFixture t;
    t.startCountdown(60);
    t.pass(0.036);
    QCOMPARE(t.milliseconds(), QStringLiteral("000"));
    t.pass(0.002);
    QCOMPARE(t.display(), QStringLiteral("59s"));
    QCOMPARE(t.milliseconds(), QStringLiteral("962"));
    t.pass(0.037);
    QCOMPARE(t.milliseconds(), QStringLiteral("925"));
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 0s"));
}

void tst_RunCycle::aSleepMakesNoTimerWrong()
{
    TimerFixture t;
    t.startCountdown(3600);
    t.clock.sleep(3000);
    QCOMPARE(t.display(), QStringLiteral("10m 0s"));
    t.clock.sleep(3000);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.notifications.shown.size(), std::size_t(1));
}

void tst_RunCycle::settingTheComputersClockMovesNoTimer()
{
    TimerFixture t;
    t.startCountdown(300);
    t.clock.setCalendarOffset(86400);
    t.pass(290.04);
    QCOMPARE(t.display(), QStringLiteral("9s"));
}

void tst_RunCycle::stoppingKeepsTheRemainingTimeInTheFields()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(34.6);
    t.pressGo();
    QCOMPARE(t.fields(), QStringLiteral("0 1 5.4"));
    QCOMPARE(t.display(), QStringLiteral("1m 5s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 34s"));
    QVERIFY(!t.timer.isRunning());
    t.pass(60);
    QCOMPARE(t.display(), QStringLiteral("1m 5s"));
}

void tst_RunCycle::startingAgainRunsTheWholeSecondsLeft()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(34.6);
    t.pressGo();
    t.pressGo();
    QCOMPARE(t.timer.targetDate()->timeIntervalSinceNow(), 65.0);
}

void tst_RunCycle::aZeroDurationEndsAtTheFirstTick()
{
    TimerFixture t;
    t.pressGo();
    QVERIFY(t.timer.isRunning());
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    t.pass(0.038);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.go(), QStringLiteral("Reset"));
}

void tst_RunCycle::aNegativeDurationEndsAtTheFirstTick()
{
    TimerFixture t;
    t.startCountdown(-5);
    t.pass(0.038);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.elapsed(), QStringLiteral("-5s"));
}

void tst_RunCycle::textThatIsNoNumberCountsAsZero()
{
    TimerFixture t;
    t.part<QLineEdit>("_hoursField").setText(QStringLiteral("none"));
    t.part<QLineEdit>("_minutesField").setText(QStringLiteral(" 2 or so"));
    t.part<QLineEdit>("_secondsField").setText(QStringLiteral("5.9"));
    QCOMPARE(t.timer.timeLeftFromFields(), 125.0);
    t.pressGo();
    // The fields keep what was typed.
    QCOMPARE(t.fields(), QStringLiteral("none  2 or so 5.9"));
}

void tst_RunCycle::hugeDurationsDoNotOverflow()
{
    TimerFixture t;
    t.part<QLineEdit>("_hoursField").setText(QStringLiteral("99999999999"));
    QCOMPARE(t.timer.timeLeftFromFields(), -3600.0);
    t.pressGo();
    t.pass(0.038);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_RunCycle::resettingRestoresTheDurationOfTheLastStart()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(34.6);
    t.pressGo();
    t.pressGo();
    t.pass(10);
    t.pressGo();
    t.timer.resetWuffer();
    QCOMPARE(t.fields(), QStringLiteral("0 1 5"));
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
}

void tst_RunCycle::resettingWhileRunningStops()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(34.6);
    t.timer.resetWuffer();
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.fields(), QStringLiteral("0 1 40"));
    QCOMPARE(t.go(), QStringLiteral("Start"));
    QVERIFY(t.clock.isIdle());
}

void tst_RunCycle::everyFifthTickPostsANotice()
{
    TimerFixture t;
    t.startCountdown(100);
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.pass(4.5 * 0.037);
    QCOMPARE(notices.count, 0);
    t.pass(0.037);
    QCOMPARE(notices.count, 1);
    QCOMPARE(notices.lastObject, &t.timer);
    t.pass(50 * 0.037);
    QCOMPARE(notices.count, 11);
}

void tst_RunCycle::theCountOfTicksGoesOnOverAStop()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(3.5 * 0.037);
    t.pressGo();
    t.pressGo();
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.pass(1.5 * 0.037);
    QCOMPARE(notices.count, 0);
    t.pass(0.037);
    QCOMPARE(notices.count, 1);
}

void tst_RunCycle::startAndStopEachPostOneNotice()
{
    TimerFixture t;
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.startCountdown(100);
    QCOMPARE(notices.count, 1);
    t.pressGo();
    QCOMPARE(notices.count, 2);
    t.startCountdown(0);
    t.pass(0.038);
    // One more for the second start, and one for the end of the countdown.
    QCOMPARE(notices.count, 4);
}

void tst_RunCycle::savingEnergyWorksEveryFifthTickOnly()
{
    TimerFixture t;
    t.set("energySaverMode", 1);
    t.startCountdown(2);
    QCOMPARE(t.milliseconds(), QString());
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.pass(4.5 * 0.037);
    QCOMPARE(t.display(), QStringLiteral("2s"));
    t.pass(0.037);
    QCOMPARE(t.display(), QStringLiteral("1s"));
    QCOMPARE(notices.count, 1);
    // The 54th tick is after the end already, but the timer works only at the 55th.
    t.pass(54.5 * 0.037 - 5.5 * 0.037);
    QVERIFY(t.display() != QStringLiteral("Wuff!"));
    t.pass(0.037);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_RunCycle::startingIsNotRefusedByADisabledButton()
{
    TimerFixture t;
    t.part<QPushButton>("_goButton").setEnabled(false);
    t.startCountdown(5);
    QVERIFY(t.timer.isRunning());
    QVERIFY(t.part<QPushButton>("_goButton").isEnabled());
}

void tst_RunCycle::hundredTimersWakeTheProcessAsOftenAsOne()
{
    TimerFixture t;
    t.startCountdown(100);
    for (int i = 0; i < 99; ++i) {
        Wuffer &timer = WufferApplication::instance().openWuffer();
        timer.setFieldsWithTimeLeft(100 + i);
        timer.goPressed();
        t.pass(0.001);
    }
    const int before = t.clock.wakeUps();
    t.pass(10);
    QCOMPARE(t.clock.wakeUps() - before, 270);
}

void tst_RunCycle::anIdleTimerWakesNothing()
{
    TimerFixture t;
    QVERIFY(t.clock.isIdle());
    t.startCountdown(100);
    QVERIFY(!t.clock.isIdle());
    t.pressGo();
    QVERIFY(t.clock.isIdle());
}

void tst_RunCycle::resettingBeforeAnyStartEmptiesTheFields()
{
    TimerFixture t;
    t.typeDuration(1, 2, 3);
    t.timer.resetWuffer();
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
}

void tst_RunCycle::aStopwatchRunLeavesTheDurationToResetAlone()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pressGo();
    t.timer.stopwatch();
    t.pressGo();
    t.pass(5);
    t.pressGo();
    t.timer.stopwatch();
    t.timer.resetWuffer();
    QCOMPARE(t.fields(), QStringLiteral("0 1 40"));
}

void tst_RunCycle::theButtonPressGivesTheKeepWuffingBoxBack()
{
    TimerFixture t;
    auto &box = t.part<QCheckBox>("_keepWuffingBox");
    box.setEnabled(false);
    t.startCountdown(60);
    QVERIFY(box.isEnabled());
    box.setEnabled(false);
    t.pressGo();
    QVERIFY(box.isEnabled());
}

void tst_RunCycle::aMutedTimersKeepWuffingBoxStaysDisabled()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.startCountdown(60);
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
}

void tst_RunCycle::theNoticeComesWhenTheTimerHasFinishedItsChange()
{
    TimerFixture t;
    QStringList told;
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(
        observer, QStringLiteral("statusChanged"),
        [&](QObject *) { told << t.go() + QLatin1Char(' ') + t.display(); });
    t.startCountdown(5);
    t.pressGo();
    t.startCountdown(0);
    t.pass(0.04);
    const QStringList expected{QStringLiteral("Stop 5s"), QStringLiteral("Start 5s"),
                               QStringLiteral("Stop Wuffer"), QStringLiteral("Reset Wuff!")};
    QCOMPARE(told, expected);
}

void tst_RunCycle::stoppingWithNothingLeftLeavesTheFieldsAlone()
{
    TimerFixture t;
    t.part<QLineEdit>("_minutesField").setText(QStringLiteral("none"));
    t.pressGo();
    t.pressGo();
    QCOMPARE(t.fields(), QStringLiteral("0 none 0"));
}

void tst_RunCycle::theVeryMomentOfTheEndIsTheEnd()
{
    TimerFixture t;
    t.startCountdown(60);
    t.clock.sleep(60);
    QCOMPARE(t.timer.targetDate()->timeIntervalSinceNow(), 0.0);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_RunCycle::ticksPostNoticesOfTheStatusAndEmitNoChangeOfState()
{
    TimerFixture t;
    t.startCountdown(60);
    const NoticeCounter status(QStringLiteral("statusChanged"));
    const QSignalSpy state(&t.timer, &Wuffer::stateChanged);
    t.pass(30);
    QVERIFY(status.count > 100);
    QCOMPARE(state.count(), 0);
    t.pressGo();
    QVERIFY(state.count() > 0);
}

void tst_RunCycle::anObserverOfTheNoticeMayStopTheTimer()
{
    TimerFixture t;
    t.startCountdown(60);
    t.pass(4.5 * 0.037);
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(observer, QStringLiteral("statusChanged"),
                                                    [&](QObject *) {
                                                        if (t.timer.isRunning())
                                                            t.pressGo();
                                                    });
    t.clock.sleep(70);
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.go(), QStringLiteral("Start"));
    QVERIFY(t.notifications.shown.empty());
    QVERIFY(t.clock.isIdle());
}

WUFFER_TEST(tst_RunCycle)
#include "tst_RunCycle.moc"
