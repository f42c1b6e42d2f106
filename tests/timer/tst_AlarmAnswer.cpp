#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <functional>

namespace
{
const QString kLoop = QStringLiteral("Loop this Wuffer");
const QString kPreset = QStringLiteral("Start a Preset");

/// A timer whose alarm the user may answer, and another window that the user may turn to.
class Fixture : public TimerFixture
{
public:
    Fixture() { open(timer); }

    /// Activates a window, as the user does.
    static void goTo(QWidget &window)
    {
        window.activateWindow();
        settle();
        if (!window.isActiveWindow())
            qFatal("the window does not become active");
    }
    void goElsewhere() { goTo(elsewhere); }
    /// Shows the window of a timer, then activates the other window.
    void open(const Wuffer &shown)
    {
        shown.window()->show();
        elsewhere.show();
        goElsewhere();
    }
    void comeBack() const { goTo(*timer.window()); }

    /// Runs the timer to its alarm.
    void ring()
    {
        startCountdown(1);
        pass(2);
    }
    /// Ends the sounds, and waits until the timers have noticed.
    void endAlarm()
    {
        sounds.endAll();
        pass(0.21);
    }
    /// Processes the events of the window system.
    static void settle() { QCoreApplication::processEvents(); }
    [[nodiscard]] std::size_t standing() const { return notifications.standing.size(); }

    QWidget elsewhere;
};

using Act = std::function<void(Fixture &)>;
} // namespace

Q_DECLARE_METATYPE(Act)

/// The notification of an alarm stays until the user answers it.
class tst_AlarmAnswer final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anAnswerTakesItAway_data();
    void anAnswerTakesItAway();
    void anAnswerTakesItsTraceAway_data() { anAnswerTakesItAway_data(); }
    void anAnswerTakesItsTraceAway();
    void startingAllTakesItsTraceAway();
    void startingAllDoesNotAnswerARingingTimer();
    void aWindowThatWasActiveBeforeIsNoAnswer();
    void theActivationOfAnotherTimerIsNoAnswer();
    void stoppingAnotherTimerIsNoAnswer();
    void aWindowThatClosesInFrontOfItIsNoAnswer();
    void aLoopIsNoAnswer();
    void aPresetThatBringsTheWindowForwardIsNoAnswer();
    void aPresetThatFillsTheScreenIsNoAnswer();
    void aChainIsNoAnswer();
    void leavingTheFullScreenAfterTheAlarmIsNoAnswer();
    void leavingTheFullScreenForAnotherTimerIsNoAnswer();
    void theUserAnswersAMomentAfterTheProgramHasActed();
    void theUserAnswersOnTheFullScreen();
};

void tst_AlarmAnswer::anAnswerTakesItAway_data()
{
    QTest::addColumn<Act>("act");
    const auto add = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
    add("the button", [](Fixture &t) { t.pressGo(); });
    add("reset in the menu", [](Fixture &t) { t.timer.resetWuffer(); });
    add("show", [](Fixture &t) {
        const DesktopNotification notification = t.notifications.standing.front().notification;
        notification.show();
    });
    add("show in the status item", [](Fixture &t) { t.timer.showWufferWindow(); });
    add("the window activated", [](Fixture &t) { t.comeBack(); });
    add("the window closed", [](Fixture &t) { t.timer.window()->close(); });
}

void tst_AlarmAnswer::anAnswerTakesItAway()
{
    QFETCH(const Act, act);
    Fixture t;
    t.ring();
    QCOMPARE(t.standing(), 1U);
    act(t);
    QCOMPARE(t.standing(), 0U);
    t.endAlarm();
    t.pass(60);
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::anAnswerTakesItsTraceAway()
{
    QFETCH(const Act, act);
    Fixture t;
    t.ring();
    t.endAlarm();
    QCOMPARE(t.standing(), 1U);
    act(t);
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::startingAllTakesItsTraceAway()
{
    Fixture t;
    WufferController controller;
    t.ring();
    t.endAlarm();
    QCOMPARE(t.standing(), 1U);
    controller.startAllWuffers();
    QVERIFY(t.timer.isRunning());
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::startingAllDoesNotAnswerARingingTimer()
{
    Fixture t;
    WufferController controller;
    t.ring();
    controller.startAllWuffers();
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    QCOMPARE(t.standing(), 1U);
}

void tst_AlarmAnswer::aWindowThatWasActiveBeforeIsNoAnswer()
{
    Fixture t;
    t.comeBack();
    t.ring();
    t.endAlarm();
    QCOMPARE(t.standing(), 1U);
    t.goElsewhere();
    QCOMPARE(t.standing(), 1U);
    t.comeBack();
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::theActivationOfAnotherTimerIsNoAnswer()
{
    Fixture t;
    const TimerUser other;
    t.open(other.timer);
    t.ring();
    Fixture::goTo(*other.timer.window());
    QCOMPARE(t.standing(), 1U);
}

void tst_AlarmAnswer::stoppingAnotherTimerIsNoAnswer()
{
    Fixture t;
    TimerUser other;
    t.startCountdown(1);
    other.startCountdown(60);
    t.pass(2);
    other.pressGo();
    other.timer.resetWuffer();
    other.timer.window()->close();
    QCOMPARE(t.standing(), 1U);
}

void tst_AlarmAnswer::aWindowThatClosesInFrontOfItIsNoAnswer()
{
    Fixture t;
    const TimerUser other;
    t.open(other.timer);
    t.ring();
    t.endAlarm();
    Fixture::goTo(*other.timer.window());
    other.timer.window()->close();
    // Stands for the window manager, which activates the next window by itself.
    t.comeBack();
    QCOMPARE(t.standing(), 1U);
    t.goElsewhere();
    t.pass(60);
    t.comeBack();
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::aLoopIsNoAnswer()
{
    Fixture t;
    t.chooseFinish(kLoop);
    t.startCountdown(60);
    t.pass(61);
    t.endAlarm();
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QCOMPARE(t.standing(), 1U);
    t.pass(30);
    QCOMPARE(t.standing(), 1U);
    t.pressGo();
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::aPresetThatBringsTheWindowForwardIsNoAnswer()
{
    Fixture t;
    t.chooseFinish(kPreset);
    t.ring();
    t.endAlarm();
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QTRY_VERIFY(t.timer.window()->isActiveWindow());
    QCOMPARE(t.standing(), 1U);
    QVERIFY(!t.notifications.standing.front().notification.stop);
}

void tst_AlarmAnswer::aPresetThatFillsTheScreenIsNoAnswer()
{
    Fixture t;
    t.tick("_fullScreenBox");
    t.timer.setPreset(1);
    t.tick("_fullScreenBox", false);
    t.chooseFinish(kPreset);
    t.ring();
    t.endAlarm();
    QVERIFY(t.isFullScreen());
    QTRY_VERIFY(t.box().isActiveWindow());
    QCOMPARE(t.standing(), 1U);
}

void tst_AlarmAnswer::aChainIsNoAnswer()
{
    Fixture t;
    TimerUser next;
    t.open(next.timer);
    next.startCountdown(1);
    t.pass(1.5);
    t.endAlarm();
    t.timer.setTargetWuffer(&next.timer);
    next.typeDuration(0, 5, 0);
    t.ring();
    t.endAlarm();
    QVERIFY(next.timer.isRunning());
    QTRY_VERIFY(next.timer.window()->isActiveWindow());
    QCOMPARE(t.standing(), 2U);
    t.comeBack();
    QCOMPARE(t.standing(), 1U);
    QCOMPARE(t.notifications.standing.front().sender, &next.timer);
}

void tst_AlarmAnswer::leavingTheFullScreenAfterTheAlarmIsNoAnswer()
{
    Fixture t;
    t.tick("_fullScreenBox");
    t.ring();
    Fixture::settle();
    QVERIFY(t.box().isActiveWindow());
    t.pass(60);
    t.endAlarm();
    QVERIFY(!t.isFullScreen());
    t.comeBack();
    QCOMPARE(t.standing(), 1U);
}

void tst_AlarmAnswer::leavingTheFullScreenForAnotherTimerIsNoAnswer()
{
    Fixture t;
    TimerUser other;
    t.open(other.timer);
    t.tick("_fullScreenBox");
    t.chooseFinish(kLoop);
    t.startCountdown(60);
    t.pass(61);
    t.endAlarm();
    QVERIFY(t.isFullScreen());
    t.pass(30);
    other.startCountdown(1);
    t.pass(1.5);
    QVERIFY(!t.isFullScreen());
    // The window manager may activate either window next.
    Fixture::goTo(*other.timer.window());
    t.comeBack();
    QCOMPARE(t.standing(), 2U);
}

void tst_AlarmAnswer::theUserAnswersAMomentAfterTheProgramHasActed()
{
    Fixture t;
    t.chooseFinish(kPreset);
    t.ring();
    t.endAlarm();
    QTRY_VERIFY(t.timer.window()->isActiveWindow());
    t.pass(1);
    t.goElsewhere();
    t.comeBack();
    QCOMPARE(t.standing(), 1U);
    t.pass(1.5);
    t.goElsewhere();
    t.comeBack();
    QCOMPARE(t.standing(), 0U);
}

void tst_AlarmAnswer::theUserAnswersOnTheFullScreen()
{
    Fixture t;
    t.tick("_fullScreenBox");
    t.startCountdown(60);
    Fixture::settle();
    t.goElsewhere();
    t.pass(61);
    QCOMPARE(t.standing(), 1U);
    Fixture::goTo(*t.box().window());
    QCOMPARE(t.standing(), 0U);
    QVERIFY(t.isFullScreen());
}

WUFFER_TEST(tst_AlarmAnswer)
#include "tst_AlarmAnswer.moc"
