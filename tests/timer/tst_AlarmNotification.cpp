#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kWuff = QStringLiteral("wolvesWuff.wav");
} // namespace

/// What the notification of an alarm says and offers, and when it goes.
class tst_AlarmNotification final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itStandsWhileTheTimerRings();
    void itGoesWhenTheSoundHasEnded();
    void itGoesWhenTheUserResets();
    void itGoesWhenTheFinishActionRuns();
    void itGoesWhenTheWindowCloses();
    void itGoesWhenTheNotificationsAreTurnedOffMeanwhile();
    void stoppingARunWithdrawsNothingOfOthers();
    void stopEndsTheAlarmAsResetDoes();
    void stopRunsNoFinishAction();
    void stopDoesNothingOnceTheAlarmIsOver();
    void showBringsTheWindowBack();
    void aNameIsALineOfSaneLength();
};

void tst_AlarmNotification::itStandsWhileTheTimerRings()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.startCountdown(1);
    t.pass(0.9);
    QVERIFY(t.notifications.standing.empty());
    t.pass(60);
    QCOMPARE(t.notifications.standing.size(), 1U);
    const DesktopNotification &notification = t.notifications.standing.front().notification;
    QCOMPARE(notification.text, QStringLiteral("Tea: 1s"));
    QCOMPARE(notification.subject, QStringLiteral("Tea"));
}

void tst_AlarmNotification::itGoesWhenTheSoundHasEnded()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    t.sounds.sound(kWuff)->reachEnd();
    QCOMPARE(t.notifications.standing.size(), 1U);
    t.pass(0.21);
    QVERIFY(t.notifications.standing.empty());
    QCOMPARE(t.notifications.shown.size(), 1U);
}

void tst_AlarmNotification::itGoesWhenTheUserResets()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    t.pressGo();
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::itGoesWhenTheFinishActionRuns()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.3);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QVERIFY(t.notifications.standing.empty());
    t.pass(1);
    QCOMPARE(t.notifications.standing.size(), 1U);
}

void tst_AlarmNotification::itGoesWhenTheWindowCloses()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    t.timer.window()->close();
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::itGoesWhenTheNotificationsAreTurnedOffMeanwhile()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    t.set("disableGrowl", 1);
    t.pressGo();
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::stoppingARunWithdrawsNothingOfOthers()
{
    TimerFixture t;
    TimerUser other;
    t.startCountdown(1);
    other.startCountdown(60);
    t.pass(2);
    other.pressGo();
    other.timer.window()->close();
    QCOMPARE(t.notifications.standing.size(), 1U);
}

void tst_AlarmNotification::stopEndsTheAlarmAsResetDoes()
{
    TimerFixture t;
    t.tick("_keepWuffingBox");
    t.startCountdown(65);
    t.pass(70);
    const DesktopNotification notification = t.notifications.standing.front().notification;
    notification.stop();
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    QCOMPARE(t.go(), QStringLiteral("Start"));
    QCOMPARE(t.fields(), QStringLiteral("0 0 65"));
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::stopRunsNoFinishAction()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(2);
    const DesktopNotification notification = t.notifications.standing.front().notification;
    notification.stop();
    t.pass(60);
    QVERIFY(!t.timer.isRunning());
}

void tst_AlarmNotification::stopDoesNothingOnceTheAlarmIsOver()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    const DesktopNotification notification = t.notifications.standing.front().notification;
    t.pressGo();
    notification.stop();
    QCOMPARE(t.go(), QStringLiteral("Start"));
    t.pressGo();
    notification.stop();
    QCOMPARE(t.go(), QStringLiteral("Stop"));
}

void tst_AlarmNotification::showBringsTheWindowBack()
{
    TimerFixture t;
    t.startCountdown(1);
    t.timer.window()->showMinimized();
    t.pass(2);
    const DesktopNotification notification = t.notifications.standing.front().notification;
    notification.show();
    QVERIFY(t.timer.window()->isVisible());
    QVERIFY(!t.timer.window()->isMinimized());
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_AlarmNotification::aNameIsALineOfSaneLength()
{
    TimerFixture t;
    t.set("finishedText", QStringLiteral("Up\nnow"));
    t.titleField.setText(QString(10'000, QLatin1Char('x')));
    t.startCountdown(1);
    t.pass(2);
    const DesktopNotification &notification = t.notifications.standing.front().notification;
    QCOMPARE(notification.title, QStringLiteral("Up now"));
    QCOMPARE(notification.text, QString(100, QLatin1Char('x')) + QStringLiteral("…: 1s"));
}

WUFFER_TEST_MAIN(tst_AlarmNotification)
#include "tst_AlarmNotification.moc"
