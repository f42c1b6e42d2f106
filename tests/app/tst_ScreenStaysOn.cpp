#include "support/TestMain.h"
#include "support/TimerFixture.h"

/// When the program keeps the screen on.
class tst_ScreenStaysOn final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aCountdownInItsWindowLeavesTheScreenAlone();
    void itStaysOnDuringTheFullScreenOnly();
    void itMayGoBlankAgainWhenTheAlarmHasEndedTheFullScreen();
    void itMayGoBlankAgainWhenTheWindowCloses();
    void itStaysOnFromOneTimersFullScreenToTheNext();
};

void tst_ScreenStaysOn::aCountdownInItsWindowLeavesTheScreenAlone()
{
    TimerFixture t;
    t.startCountdown(60);
    t.pass(30);
    QVERIFY(!t.screenBlanking.isInhibited);
    t.pass(40);
    QVERIFY(!t.screenBlanking.isInhibited);
}

void tst_ScreenStaysOn::itStaysOnDuringTheFullScreenOnly()
{
    TimerFixture t;
    t.startCountdown(60);
    t.timer.startStopFullScreen();
    QVERIFY(t.screenBlanking.isInhibited);
    t.timer.startStopFullScreen();
    QVERIFY(!t.screenBlanking.isInhibited);
}

void tst_ScreenStaysOn::itMayGoBlankAgainWhenTheAlarmHasEndedTheFullScreen()
{
    TimerFixture t;
    t.tick("_fullScreenBox");
    t.startCountdown(1);
    t.pass(2);
    QVERIFY(t.screenBlanking.isInhibited);
    t.sounds.endAll();
    t.pass(0.3);
    QVERIFY(!t.screenBlanking.isInhibited);
}

void tst_ScreenStaysOn::itMayGoBlankAgainWhenTheWindowCloses()
{
    TimerFixture t;
    t.startCountdown(60);
    t.timer.startStopFullScreen();
    t.timer.window()->close();
    QVERIFY(!t.screenBlanking.isInhibited);
}

void tst_ScreenStaysOn::itStaysOnFromOneTimersFullScreenToTheNext()
{
    TimerFixture t;
    TimerUser other;
    t.startCountdown(60);
    other.startCountdown(60);
    t.timer.setFullScreenMode(true);
    other.timer.setFullScreenMode(true);
    t.timer.setFullScreenMode(false);
    QVERIFY(t.screenBlanking.isInhibited);
    other.timer.setFullScreenMode(false);
    QVERIFY(!t.screenBlanking.isInhibited);
}

WUFFER_TEST(tst_ScreenStaysOn)
#include "tst_ScreenStaysOn.moc"
