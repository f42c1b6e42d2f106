#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kWuff = QStringLiteral("wolvesWuff.wav");

using End = DesktopNotification::End;
using Occasion = DesktopNotification::Occasion;

/// A timer and its notification.
class Fixture : public TimerFixture
{
public:
    /// Runs a countdown of a second, and waits another second.
    void ring()
    {
        startCountdown(1);
        pass(2);
    }
    /// Rings with "Keep wuffing", so until the user stops it.
    void ringOnAndOn()
    {
        tick("_keepWuffingBox");
        ring();
    }
    /// Ends the sound, and waits until the timer has noticed that.
    void endAlarm()
    {
        sounds.sound(kWuff)->reachEnd();
        pass(0.21);
    }
    [[nodiscard]] const DesktopNotification &only() const
    {
        if (notifications.standing.size() != 1)
            qFatal("there are %zu notifications instead of one", notifications.standing.size());
        return notifications.standing.front().notification;
    }
};
} // namespace

/// The text and buttons of an alarm's notification, the trace that it leaves, and when it returns.
class tst_AlarmNotification final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itStandsWhileTheTimerRings();
    void aNameIsALineOfSaneLength();
    void stopEndsTheAlarmAsResetDoes();
    void stopRunsNoFinishAction();
    void stopDoesNothingOnceTheAlarmIsOver();
    void showBringsTheWindowBack();
    void anAlarmThatHasEndedByItselfLeavesATrace();
    void aMutedAlarmThatHasEndedLeavesATraceToo();
    void theNextAlarmReplacesTheTrace();
    void noTraceIsLeftOfANotificationThatTheDesktopHasClosed_data();
    void noTraceIsLeftOfANotificationThatTheDesktopHasClosed();
    void aNotificationThatExpiresDuringTheAlarmComesBack();
    void itComesBackAsItWas();
    void aNotificationThatCameBackStaysQuietAfterTheAlarm();
    void itComesBackAtOnceAfterALongTime();
    void aDismissedNotificationDoesNotComeBack();
    void anAnsweredNotificationDoesNotComeBack();
    void aNotificationThatExpiresAfterTheAlarmDoesNotComeBack();
    void theNotificationOfAMutedAlarmDoesNotComeBack();
    void nothingComesBackOnceNotificationsAreTurnedOff();
    void aTraceStaysWhenNotificationsAreTurnedOff();
};

void tst_AlarmNotification::itStandsWhileTheTimerRings()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.startCountdown(1);
    t.pass(0.9);
    QVERIFY(t.notifications.standing.empty());
    t.pass(60);
    QCOMPARE(t.only().text, QStringLiteral("Tea: 1s"));
    QCOMPARE(t.only().subject, QStringLiteral("Tea"));
    QVERIFY(t.only().occasion == Occasion::News);
    QVERIFY(t.only().show);
    QVERIFY(t.only().stop);
}

void tst_AlarmNotification::stopEndsTheAlarmAsResetDoes()
{
    Fixture t;
    t.tick("_keepWuffingBox");
    t.startCountdown(65);
    t.pass(70);
    const DesktopNotification notification = t.only();
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
    Fixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(2);
    const DesktopNotification notification = t.only();
    notification.stop();
    t.pass(60);
    QVERIFY(!t.timer.isRunning());
}

void tst_AlarmNotification::stopDoesNothingOnceTheAlarmIsOver()
{
    Fixture t;
    t.startCountdown(1);
    t.pass(2);
    const DesktopNotification notification = t.only();
    t.pressGo();
    notification.stop();
    QCOMPARE(t.go(), QStringLiteral("Start"));
    t.pressGo();
    notification.stop();
    QCOMPARE(t.go(), QStringLiteral("Stop"));
}

void tst_AlarmNotification::showBringsTheWindowBack()
{
    Fixture t;
    t.startCountdown(1);
    t.timer.window()->showMinimized();
    t.pass(2);
    const DesktopNotification notification = t.only();
    notification.show();
    QVERIFY(t.timer.window()->isVisible());
    QVERIFY(!t.timer.window()->isMinimized());
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_AlarmNotification::aNameIsALineOfSaneLength()
{
    Fixture t;
    t.set("finishedText", QStringLiteral("Up\nnow"));
    t.titleField.setText(QString(10'000, QLatin1Char('x')));
    t.startCountdown(1);
    t.pass(2);
    const DesktopNotification &notification = t.only();
    QCOMPARE(notification.title, QStringLiteral("Up now"));
    QCOMPARE(notification.text, QString(100, QLatin1Char('x')) + QStringLiteral("…: 1s"));
}

void tst_AlarmNotification::anAlarmThatHasEndedByItselfLeavesATrace()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.ring();
    t.endAlarm();
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    t.pass(3600);
    QCOMPARE(t.only().title, QStringLiteral("Wuff!"));
    QCOMPARE(t.only().text, QStringLiteral("Tea: 1s"));
    QVERIFY(t.only().occasion == Occasion::Change);
    QVERIFY(t.only().show);
    QVERIFY(!t.only().stop);
    QVERIFY(t.clock.isIdle());
}

void tst_AlarmNotification::aMutedAlarmThatHasEndedLeavesATraceToo()
{
    Fixture t;
    t.set("soundOff", 1);
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(60);
    t.pass(64.9);
    QVERIFY(t.only().stop);
    t.pass(1);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QVERIFY(!t.only().stop);
}

void tst_AlarmNotification::theNextAlarmReplacesTheTrace()
{
    Fixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.ring();
    t.endAlarm();
    t.pass(1.1);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    QCOMPARE(t.only().text, QStringLiteral("Wuffer: 1s (x2)"));
    QVERIFY(t.only().occasion == Occasion::News);
    QVERIFY(t.only().stop);
}

void tst_AlarmNotification::noTraceIsLeftOfANotificationThatTheDesktopHasClosed_data()
{
    QTest::addColumn<bool>("expired");
    QTest::newRow("expired") << true;
    QTest::newRow("dismissed") << false;
}

void tst_AlarmNotification::noTraceIsLeftOfANotificationThatTheDesktopHasClosed()
{
    QFETCH(const bool, expired);
    Fixture t;
    t.ring();
    t.notifications.close(0, expired ? End::Expired : End::Dismissed);
    t.endAlarm();
    t.pass(60);
    QVERIFY(t.notifications.standing.empty());
    QVERIFY(t.notifications.shownAgain.empty());
    QVERIFY(t.clock.isIdle());
}

void tst_AlarmNotification::aNotificationThatExpiresDuringTheAlarmComesBack()
{
    Fixture t;
    t.ringOnAndOn();
    for (std::size_t times = 1; times <= 100; ++times) {
        t.notifications.close(0, End::Expired);
        t.pass(3);
        QCOMPARE(t.notifications.standing.size(), 0U);
        t.pass(2);
        QCOMPARE(t.notifications.standing.size(), 1U);
        QCOMPARE(t.notifications.shownAgain.size(), times);
    }
    t.only().stop();
    QVERIFY(!t.timer.isRunning());
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::itComesBackAsItWas()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.ringOnAndOn();
    t.typeName(QStringLiteral("Cake"));
    t.set("finishedText", QStringLiteral("Woof"));
    t.notifications.close(0, End::Expired);
    t.pass(10);
    QCOMPARE(t.only().title, QStringLiteral("Wuff!"));
    QCOMPARE(t.only().text, QStringLiteral("Tea: 1s"));
    QCOMPARE(t.only().subject, QStringLiteral("Tea"));
    QVERIFY(t.only().occasion == Occasion::Reminder);
    QVERIFY(t.only().show);
}

void tst_AlarmNotification::aNotificationThatCameBackStaysQuietAfterTheAlarm()
{
    Fixture t;
    t.ringOnAndOn();
    t.notifications.close(0, End::Expired);
    t.pass(10);
    t.tick("_keepWuffingBox", false);
    t.pass(0.21);
    t.sounds.endAll();
    t.pass(0.21);
    QVERIFY(!t.timer.isRunning());
    QVERIFY(!t.only().stop);
    QVERIFY(t.only().occasion == Occasion::Reminder);
}

void tst_AlarmNotification::itComesBackAtOnceAfterALongTime()
{
    Fixture t;
    t.ringOnAndOn();
    t.pass(60);
    t.notifications.close(0, End::Expired);
    t.pass(0.01);
    QCOMPARE(t.notifications.standing.size(), 1U);
}

void tst_AlarmNotification::aDismissedNotificationDoesNotComeBack()
{
    Fixture t;
    t.ringOnAndOn();
    t.notifications.close(0, End::Dismissed);
    t.pass(3600);
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::anAnsweredNotificationDoesNotComeBack()
{
    Fixture t;
    t.ringOnAndOn();
    t.notifications.close(0, End::Expired);
    t.timer.showWufferWindow();
    t.pass(3600);
    QVERIFY(t.timer.isRunning());
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::aNotificationThatExpiresAfterTheAlarmDoesNotComeBack()
{
    Fixture t;
    t.ring();
    t.endAlarm();
    t.notifications.close(0, End::Expired);
    t.pass(3600);
    QVERIFY(t.notifications.standing.empty());
    QVERIFY(t.clock.isIdle());
}

void tst_AlarmNotification::theNotificationOfAMutedAlarmDoesNotComeBack()
{
    Fixture t;
    t.set("soundOff", 1);
    t.ring();
    t.notifications.close(0, End::Expired);
    t.pass(3600);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::nothingComesBackOnceNotificationsAreTurnedOff()
{
    Fixture t;
    t.ringOnAndOn();
    t.set("growlDisabled", 1);
    QCOMPARE(t.notifications.standing.size(), 1U);
    t.notifications.close(0, End::Expired);
    t.pass(3600);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    QVERIFY(t.notifications.standing.empty());
}

void tst_AlarmNotification::aTraceStaysWhenNotificationsAreTurnedOff()
{
    Fixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.ring();
    t.endAlarm();
    t.set("growlDisabled", 1);
    t.pass(1.1);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    QCOMPARE(t.only().text, QStringLiteral("Wuffer: 1s"));
    t.pressGo();
    QVERIFY(t.notifications.standing.empty());
}

WUFFER_TEST(tst_AlarmNotification)
#include "tst_AlarmNotification.moc"
