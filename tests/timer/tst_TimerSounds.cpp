#include "app/WufferApplication.h"
#include "controls/ClickableImageView.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kWuff = QStringLiteral("wolvesWuff.wav");
const QString kCrow = QStringLiteral("crow.wav");
const QString kBell = QStringLiteral("/home/somebody/Bell.aiff");
} // namespace

/// Which sounds a timer makes, and when.
class tst_TimerSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aChoiceNamesABuiltInSoundOrAFile();
    void twelveBeepsRiseInTheLastTwelveSeconds();
    void theFirstBeepIsSilentEvenAfterAnEarlierRun();
    void suppressedBeepsAreNotHeard();
    void suppressionLeavesTheScheduleAlone();
    void theAlarmCutsABeepOff();
    void theAlarmCutsABeepOffEvenWhenMuted();
    void theAlarmStopsTheOneBeforeEvenWhenMuted();
    void theSpeakerTellsWhetherTimersAreMuted();
    void theBuiltInAlarmIsLookedUpEachTime();
    void theSameFileIsNotLoadedAgain();
    void anotherChoiceReplacesTheAlarm();
    void aNewBeepSoundKeepsTheVolume();
    void withoutASelectionTheLastSoundStays();
    void mutingStopsWhatSounds();
    void mutedTimersStartNoSound();
    void soundsArePreparedSilently();
    void preparingNothingIsHarmless();
    void oneTimersStopLeavesTheOthersAlarm();
    void theNotificationTellsNameAndDuration();
    void theNotificationOfAnUnnamedTimerIsFromWuffer();
    void disabledNotificationsAreNotPosted();
};

void tst_TimerSounds::aChoiceNamesABuiltInSoundOrAFile()
{
    TimerFixture t;
    t.sounds.setFileDuration(kBell, 1.5);
    QCOMPARE(t.timer.createSoundWithPath(QStringLiteral("Wuff (Default)"))->name(), kWuff);
    QCOMPARE(t.timer.createSoundWithPath(QStringLiteral("Crow (Default)"))->name(), kCrow);
    QCOMPARE(t.timer.createSoundWithPath(kBell)->name(), kBell);
    QCOMPARE(t.timer.createSoundWithPath(QStringLiteral("/no/such.wav"))->duration(), 0.0);
}

void tst_TimerSounds::twelveBeepsRiseInTheLastTwelveSeconds()
{
    TimerFixture t;
    t.startCountdown(20);
    t.pass(8);
    QCOMPARE(t.sounds.diary(), QStringList());
    t.pass(12.1);

    const QStringList beeps = t.sounds.diary(QStringLiteral("play crow.wav at "));
    QCOMPARE(beeps.size(), 12);
    QCOMPARE(beeps.first(), QStringLiteral("play crow.wav at 0"));
    double last = 0.02;
    for (const QString &beep : beeps.sliced(1)) {
        const double volume = beep.section(QLatin1Char(' '), -1).toDouble();
        QVERIFY2(volume >= last, qPrintable(beep));
        last = volume;
    }
    QVERIFY(beeps.at(1).startsWith(QStringLiteral("play crow.wav at 0.03")));
    QVERIFY2(last > 0.3 && last < 0.34, qPrintable(beeps.last()));
}

void tst_TimerSounds::theFirstBeepIsSilentEvenAfterAnEarlierRun()
{
    TimerFixture t;
    t.startCountdown(3);
    t.pass(3.1);
    t.pressGo();
    t.sounds.clearDiary();
    t.startCountdown(12);
    t.pass(0.5);
    QCOMPARE(t.sounds.diary(QStringLiteral("play")),
             QStringList{QStringLiteral("play crow.wav at 0")});
}

void tst_TimerSounds::suppressedBeepsAreNotHeard()
{
    TimerFixture t;
    t.set("suppressCountdown", 1);
    t.startCountdown(12);
    t.pass(11.9);
    QCOMPARE(t.sounds.diary(), QStringList());
    t.pass(0.2);
    QVERIFY(t.sounds.isPlaying(kWuff));
}

void tst_TimerSounds::theAlarmCutsABeepOff()
{
    TimerFixture t;
    t.startCountdown(2);
    t.pass(1.9);
    QVERIFY(t.sounds.isPlaying(kCrow));
    t.pass(0.2);
    QVERIFY(!t.sounds.isPlaying(kCrow));
    QVERIFY(t.sounds.isPlaying(kWuff));
}

void tst_TimerSounds::theAlarmCutsABeepOffEvenWhenMuted()
{
    TimerFixture t;
    t.timer.playBeep();
    t.set("soundOff", 1);
    // Muting has stopped the beep, so the test starts it again.
    t.sounds.sound(kCrow)->play();
    t.timer.playDone();
    QVERIFY(!t.sounds.isPlaying(kCrow));
    t.sounds.sound(kCrow)->play();
    t.timer.playBeep();
    QVERIFY(!t.sounds.isPlaying(kCrow));
}

void tst_TimerSounds::theAlarmStopsTheOneBeforeEvenWhenMuted()
{
    TimerFixture t;
    t.timer.playDone();
    t.set("soundOff", 1);
    t.sounds.sound(kWuff)->play();
    t.timer.playDone();
    QVERIFY(!t.sounds.isPlaying(kWuff));
}

void tst_TimerSounds::theSpeakerTellsWhetherTimersAreMuted()
{
    TimerFixture t;
    const auto &speaker = t.part<ClickableImageView>("_soundOffImage");
    QCOMPARE(speaker.imageName(), QStringLiteral("sound_high.png"));
    t.set("soundOff", 1);
    QCOMPARE(speaker.imageName(), QStringLiteral("sound_mute.png"));
    QVERIFY(!speaker.pixmap().isNull());
    t.set("soundOff", 0);
    QCOMPARE(speaker.imageName(), QStringLiteral("sound_high.png"));
    QVERIFY(!speaker.pixmap().isNull());
}

void tst_TimerSounds::theBuiltInAlarmIsLookedUpEachTime()
{
    TimerFixture t;
    t.timer.playDone();
    t.timer.playDone();
    QCOMPARE(t.sounds.diary(QStringLiteral("make")).size(), 2);
    QCOMPARE(t.sounds.diary(QStringLiteral("play")).size(), 2);
    QCOMPARE(t.sounds.diary(QStringLiteral("stop")).size(), 1);
}

void tst_TimerSounds::theSameFileIsNotLoadedAgain()
{
    TimerFixture t;
    t.sounds.setFileDuration(kBell, 1.5);
    t.chooseAlarm(kBell);
    t.chooseBeep(kBell);
    for (int i = 0; i < 3; ++i) {
        t.timer.playDone();
        t.timer.playBeep();
    }
    // The file is loaded once as the alarm and once as the beep.
    QCOMPARE(t.sounds.diary(QStringLiteral("make")).size(), 2);
    QCOMPARE(t.sounds.diary(QStringLiteral("play")).size(), 6);
}

void tst_TimerSounds::anotherChoiceReplacesTheAlarm()
{
    TimerFixture t;
    t.sounds.setFileDuration(kBell, 1.5);
    t.timer.playDone();
    t.chooseAlarm(kBell);
    t.timer.playDone();
    QVERIFY(t.sounds.isPlaying(kBell));
    QVERIFY(!t.sounds.sound(kWuff));
}

void tst_TimerSounds::aNewBeepSoundKeepsTheVolume()
{
    TimerFixture t;
    t.sounds.setFileDuration(kBell, 0.3);
    t.timer.playBeep();
    t.sounds.sound(kCrow)->setVolume(0.25F);
    t.chooseBeep(kBell);
    t.timer.playBeep();
    QCOMPARE(t.sounds.sound(kBell)->volume(), 0.25F);
}

void tst_TimerSounds::withoutASelectionTheLastSoundStays()
{
    TimerFixture t;
    auto &combo = t.part<WebbyComboBox>("_alarmSoundCombo");
    combo.setCurrentIndex(-1);
    t.timer.playDone();
    QCOMPARE(t.sounds.diary(), QStringList());
    combo.setCurrentIndex(0);
    t.timer.playDone();
    combo.setCurrentIndex(-1);
    t.timer.playDone();
    QCOMPARE(t.sounds.diary(QStringLiteral("make")).size(), 1);
    QVERIFY(t.sounds.isPlaying(kWuff));
}

void tst_TimerSounds::mutingStopsWhatSounds()
{
    TimerFixture t;
    t.timer.playDone();
    t.timer.playBeep();
    t.set("soundOff", 1);
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.sounds.isPlaying(kCrow));
}

void tst_TimerSounds::mutedTimersStartNoSound()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.timer.playDone();
    t.timer.playBeep();
    QCOMPARE(t.sounds.diary(), QStringList());
}

void tst_TimerSounds::soundsArePreparedSilently()
{
    TimerFixture t;
    t.timer.playDone();
    t.timer.playBeep();
    t.sounds.sound(kCrow)->setVolume(0.2F);
    t.sounds.sound(kWuff)->stop();
    t.sounds.sound(kCrow)->stop();
    t.sounds.clearDiary();

    t.timer.prepareSounds();

    const QStringList expected{
        QStringLiteral("play wolvesWuff.wav at 0"), QStringLiteral("stop wolvesWuff.wav"),
        QStringLiteral("play crow.wav at 0"), QStringLiteral("stop crow.wav")};
    QCOMPARE(t.sounds.diary(), expected);
    QCOMPARE(t.sounds.sound(kWuff)->volume(), 1.0F);
    QCOMPARE(t.sounds.sound(kCrow)->volume(), 0.0F);
}

void tst_TimerSounds::preparingNothingIsHarmless()
{
    TimerFixture t;
    t.timer.prepareSounds();
    QCOMPARE(t.sounds.diary(), QStringList());
}

void tst_TimerSounds::oneTimersStopLeavesTheOthersAlarm()
{
    TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    t.timer.playDone();
    other.playDone();
    t.startCountdown(5);
    QCOMPARE(t.sounds.diary(QStringLiteral("stop")).size(), 1);
    QVERIFY(t.sounds.isPlaying(kWuff));
}

void tst_TimerSounds::theNotificationTellsNameAndDuration()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea & <cake>"));
    t.startCountdown(65);
    t.pass(65.04);
    QCOMPARE(t.notifications.shown.size(), std::size_t(1));
    const auto &[sender, notification] = t.notifications.shown.front();
    QCOMPARE(sender, &t.timer);
    QCOMPARE(notification.title, QStringLiteral("Wuff!"));
    QCOMPARE(notification.text, QStringLiteral("Tea & <cake>: 1m 5s"));
    QCOMPARE(notification.name, QStringLiteral("wuff"));
}

void tst_TimerSounds::theNotificationOfAnUnnamedTimerIsFromWuffer()
{
    TimerFixture t;
    t.startCountdown(5);
    t.pass(5.04);
    QCOMPARE(t.notifications.shown.front().notification.text, QStringLiteral("Wuffer: 5s"));
}

void tst_TimerSounds::disabledNotificationsAreNotPosted()
{
    TimerFixture t;
    t.set("growlDisabled", 1);
    t.startCountdown(5);
    t.pass(5.04);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QVERIFY(t.notifications.shown.empty());
}

void tst_TimerSounds::suppressionLeavesTheScheduleAlone()
{
    TimerFixture t;
    t.set("suppressCountdown", 1);
    t.startCountdown(12);
    t.pass(6.5);
    t.set("suppressCountdown", 0);
    t.pass(0.04);
    QCOMPARE(t.sounds.diary(QStringLiteral("play")).size(), 1);
}

WUFFER_TEST(tst_TimerSounds)
#include "tst_TimerSounds.moc"
