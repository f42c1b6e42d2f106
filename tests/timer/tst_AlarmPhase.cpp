#include "app/WufferApplication.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kWuff = QStringLiteral("wolvesWuff.wav");
const QColor kRed = QColor::fromRgbF(0.9F, 0.0F, 0.0F);
} // namespace

/// The alarm phase, from zero until the alarm ends, and what follows it.
class tst_AlarmPhase final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theEndIsShownInRed();
    void theEndIsAnnouncedToTheUserAndPostedAsANotice();
    void aTimerInItsAlarmCountsAsRunning();
    void theAlarmLastsAsLongAsItsSound();
    void theUsersResetRunsNoFinishAction();
    void theUsersResetLeavesTheFieldsAlone();
    void keepWuffingRepeatsTheSoundUntilReset();
    void keepWuffingMayBeTickedDuringTheAlarm();
    void withAnotherActionTheSoundLoopsOnlyFromTheAlarmOn();
    void loopingRunsAgainAndCountsThePasses();
    void loopingTellsThePassesInTheNotification();
    void anotherActionForgetsThePasses();
    void doingNothingKeepsThePasses();
    void aLoopFillsTheScreenOnItsFirstPassOnly();
    void aLoopStaysOnTheFullScreen();
    void theFullScreenEndsWithTheAlarm();
    void theEndTakesOtherTimersOffTheFullScreen();
    void aMutedTimerWithNothingToDoWaitsForTheUser();
    void aMutedTimerAsksForAttention();
    void aMutedLoopGoesOnAfterFiveSeconds();
    void unmutingDuringTheAlarmEndsIt();
    void anEmptyFinishActionDoesNothing();
    void theFinishedTextIsTheUsers();
    void aLongFinishedTextShrinks();
    void theAlarmIsLookedAtEveryFifthOfASecond();
    void aMutedAlarmLastsFiveSecondsAndNoLess();
    void aMutedAlarmLastsFiveSecondsAndNoMore();
    void theOtherTimersLeaveTheFullScreenBeforeTheAlarmSounds();
    void theBoxDecidesWhetherTheNextAlarmLoops();
};

void tst_AlarmPhase::theEndIsShownInRed()
{
    TimerFixture t;
    t.startCountdown(65);
    t.pass(65.04);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.elapsed(), QStringLiteral("1m 5s"));
    QCOMPARE(t.milliseconds(), QString());
    QCOMPARE(t.color(), kRed);
    QCOMPARE(t.elapsedColor(), kRed);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    QVERIFY(!t.part<QLineEdit>("_minutesField").isEnabled());
}

void tst_AlarmPhase::theEndIsAnnouncedToTheUserAndPostedAsANotice()
{
    TimerFixture t;
    t.startCountdown(0);
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.pass(0.04);
    QCOMPARE(notices.count, 1);
    QCOMPARE(notices.lastObject, &t.timer);
    QCOMPARE(t.notifications.shown.size(), std::size_t(1));
    QVERIFY(t.sounds.isPlaying(kWuff));
    QVERIFY(t.desktop.attentionAskedFor.empty());
}

void tst_AlarmPhase::aTimerInItsAlarmCountsAsRunning()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    QVERIFY(t.timer.isRunning());
}

void tst_AlarmPhase::theAlarmLastsAsLongAsItsSound()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(60);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.21);
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    QCOMPARE(t.go(), QStringLiteral("Start"));
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.fields(), QStringLiteral("0 0 1"));
    QVERIFY(!t.timer.isRunning());
    QVERIFY(t.clock.isIdle());
}

void tst_AlarmPhase::theUsersResetRunsNoFinishAction()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(2);
    t.pressGo();
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    t.pass(60);
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.notifications.shown.size(), std::size_t(1));
}

void tst_AlarmPhase::theUsersResetLeavesTheFieldsAlone()
{
    TimerFixture t;
    t.typeDuration(0, 0, 65);
    t.pressGo();
    t.pass(66);
    t.pressGo();
    QCOMPARE(t.fields(), QStringLiteral("0 0 65"));
    QCOMPARE(t.go(), QStringLiteral("Start"));
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
}

void tst_AlarmPhase::keepWuffingRepeatsTheSoundUntilReset()
{
    TimerFixture t;
    t.tick("_keepWuffingBox");
    t.startCountdown(1);
    t.pass(1.3);
    FakeSound *sound = t.sounds.sound(kWuff);
    QVERIFY(sound->loops());
    sound->reachEnd();
    t.pass(600);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QVERIFY(sound->isPlaying());
    t.pressGo();
    QVERIFY(!sound->isPlaying());
    QCOMPARE(t.go(), QStringLiteral("Start"));
}

void tst_AlarmPhase::keepWuffingMayBeTickedDuringTheAlarm()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    QVERIFY(!t.sounds.sound(kWuff)->loops());
    t.tick("_keepWuffingBox");
    t.pass(0.21);
    QVERIFY(t.sounds.sound(kWuff)->loops());
    t.tick("_keepWuffingBox", false);
    t.pass(0.21);
    QVERIFY(!t.sounds.sound(kWuff)->loops());
}

void tst_AlarmPhase::withAnotherActionTheSoundLoopsOnlyFromTheAlarmOn()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(2);
    t.pressGo();
    FakeSound *sound = t.sounds.sound(kWuff);

    // While the timer counts, the box has no effect if another action is selected ...
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.tick("_keepWuffingBox");
    t.startCountdown(5);
    t.pass(1);
    QVERIFY(!sound->loops());
    // ... but in the alarm phase the box alone decides.
    t.pass(4.3);
    QVERIFY(t.sounds.sound(kWuff)->loops());
}

void tst_AlarmPhase::loopingRunsAgainAndCountsThePasses()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(30);
    t.pass(31);
    QCOMPARE(t.elapsed(), QStringLiteral("30s"));
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(2);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 1s (x2)"));
    t.pass(29.5);
    QCOMPARE(t.elapsed(), QStringLiteral("30s (x2)"));
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(2);
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 1s (x3)"));
}

void tst_AlarmPhase::loopingTellsThePassesInTheNotification()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(2);
    QCOMPARE(t.notifications.shown.size(), std::size_t(2));
    QCOMPARE(t.notifications.shown[0].notification.text, QStringLiteral("Wuffer: 1s"));
    QCOMPARE(t.notifications.shown[1].notification.text, QStringLiteral("Wuffer: 1s (x2)"));
    QCOMPARE(t.notifications.shown[1].sender, &t.timer);
}

void tst_AlarmPhase::anotherActionForgetsThePasses()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(1.5);
    QCOMPARE(t.elapsed(), QStringLiteral("1s (x2)"));
    // An empty selection counts as another action, too.
    t.part<QComboBox>("_finishedCombo").setCurrentIndex(-1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.3);
    QVERIFY(!t.timer.isRunning());
    t.startCountdown(1);
    t.pass(0.5);
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 0s"));
}

void tst_AlarmPhase::doingNothingKeepsThePasses()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(1.5);
    t.chooseFinish(QStringLiteral("Do Nothing"));
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.3);
    QVERIFY(!t.timer.isRunning());
    t.startCountdown(1);
    t.pass(0.5);
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 0s (x2)"));
}

void tst_AlarmPhase::aLoopFillsTheScreenOnItsFirstPassOnly()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.tick("_fullScreenBox");
    t.startCountdown(1);
    QVERIFY(t.isFullScreen());
    t.timer.setWindowed();
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.3);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QVERIFY(!t.isFullScreen());
}

void tst_AlarmPhase::aLoopStaysOnTheFullScreen()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.tick("_fullScreenBox");
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.3);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QVERIFY(t.isFullScreen());
}

void tst_AlarmPhase::theFullScreenEndsWithTheAlarm()
{
    TimerFixture t;
    t.tick("_fullScreenBox");
    t.startCountdown(1);
    t.pass(1.5);
    QVERIFY(t.isFullScreen());
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.21);
    QVERIFY(!t.isFullScreen());
}

void tst_AlarmPhase::theEndTakesOtherTimersOffTheFullScreen()
{
    TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    auto &otherBox = child<DisplayBox>(*other.window(), "_displayBox");
    other.setFullScreenMode(true);
    t.tick("_fullScreenBox");
    t.startCountdown(1);
    t.pass(0.5);
    QVERIFY(otherBox.isInFullScreenMode());
    t.pass(0.6);
    QVERIFY(!otherBox.isInFullScreenMode());
    QVERIFY(t.isFullScreen());
}

void tst_AlarmPhase::aMutedTimerWithNothingToDoWaitsForTheUser()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.startCountdown(1);
    t.pass(86400);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.color(), kRed);
    QCOMPARE(t.sounds.diary(), QStringList());
    t.pressGo();
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    QVERIFY(t.clock.isIdle());
}

void tst_AlarmPhase::aMutedTimerAsksForAttention()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.startCountdown(1);
    t.pass(1.1);
    QCOMPARE(t.desktop.attentionAskedFor.size(), std::size_t(1));
    QCOMPARE(t.desktop.attentionAskedFor.front(), t.timer.window());
}

void tst_AlarmPhase::aMutedLoopGoesOnAfterFiveSeconds()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(5.9);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    t.pass(0.4);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 0s (x2)"));
}

void tst_AlarmPhase::unmutingDuringTheAlarmEndsIt()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.startCountdown(1);
    t.pass(20);
    t.set("soundOff", 0);
    t.pass(0.21);
    QVERIFY(!t.timer.isRunning());
}

void tst_AlarmPhase::anEmptyFinishActionDoesNothing()
{
    TimerFixture t;
    t.part<QComboBox>("_finishedCombo").setCurrentIndex(-1);
    QVERIFY(!t.timer.shouldKeepWuffing());
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.3);
    QVERIFY(!t.timer.isRunning());
}

void tst_AlarmPhase::theFinishedTextIsTheUsers()
{
    TimerFixture t;
    t.set("finishedText", QStringLiteral("Tea!"));
    t.startCountdown(1);
    t.pass(1.1);
    QCOMPARE(t.display(), QStringLiteral("Tea!"));
    QCOMPARE(t.notifications.shown.front().notification.title, QStringLiteral("Tea!"));
    t.pressGo();
    t.set("finishedText", QString());
    t.startCountdown(1);
    t.pass(1.1);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_AlarmPhase::aLongFinishedTextShrinks()
{
    TimerFixture t;
    t.set("finishedText", QString(20, QLatin1Char('w')));
    t.startCountdown(0);
    t.pass(0.04);
    QCOMPARE(t.label("_resultLabel").font().pointSizeF(), 13.5);
}

void tst_AlarmPhase::theAlarmIsLookedAtEveryFifthOfASecond()
{
    TimerFixture t;
    t.startCountdown(0);
    t.pass(0.0371);
    t.sounds.sound(kWuff)->reachEnd();
    t.pass(0.198);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    t.pass(0.003);
    QCOMPARE(t.go(), QStringLiteral("Start"));
}

void tst_AlarmPhase::aMutedAlarmLastsFiveSecondsAndNoLess()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    // Wakes at a time that puts an alarm tick just before the five seconds are over.
    t.startCountdown(0);
    t.clock.sleep(0.19);
    t.pass(4.805);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    t.pass(0.25);
    QCOMPARE(t.notifications.shown.size(), std::size_t(2));
}

void tst_AlarmPhase::theOtherTimersLeaveTheFullScreenBeforeTheAlarmSounds()
{
    TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    const auto &otherBox = child<DisplayBox>(*other.window(), "_displayBox");
    other.setFullScreenMode(true);
    bool fullScreenAtTheAlarm = true;
    t.sounds.whenPlayed = [&] { fullScreenAtTheAlarm = otherBox.isInFullScreenMode(); };
    t.startCountdown(0);
    t.pass(0.04);
    QVERIFY(t.sounds.isPlaying(kWuff));
    QVERIFY(!fullScreenAtTheAlarm);
}

void tst_AlarmPhase::theBoxDecidesWhetherTheNextAlarmLoops()
{
    TimerFixture t;
    const QString bell = QStringLiteral("/home/somebody/Bell.aiff");
    t.sounds.setFileDuration(bell, 1.5);
    t.chooseAlarm(bell);
    t.tick("_keepWuffingBox");
    t.startCountdown(0);
    t.pass(0.3);
    QVERIFY(t.sounds.sound(bell)->loops());
    t.pressGo();
    t.tick("_keepWuffingBox", false);
    t.startCountdown(1);
    t.pass(0.1);
    QVERIFY(!t.sounds.sound(bell)->loops());
}

void tst_AlarmPhase::aMutedAlarmLastsFiveSecondsAndNoMore()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    // Wakes at a time that puts an alarm tick just after the five seconds.
    t.startCountdown(0);
    t.clock.sleep(0.21);
    t.pass(4.78);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    t.pass(0.03);
    QVERIFY(t.go() != QStringLiteral("Reset"));
}

WUFFER_TEST(tst_AlarmPhase)
#include "tst_AlarmPhase.moc"
