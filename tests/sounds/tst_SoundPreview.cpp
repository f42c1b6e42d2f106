#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

namespace
{
const auto kWuff = QStringLiteral("wolvesWuff.wav");
const auto kCrow = QStringLiteral("crow.wav");
const auto kBell = QStringLiteral("/sounds/Bell.aiff");

/// The open preferences, with one sound of the user's.
class Fixture : public PreferencesFixture
{
public:
    Fixture()
    {
        sounds.setFileDuration(kBell, 1.5);
        set("soundHistory", QStringList{kBell});
        open();
        window.show();
    }

    [[nodiscard]] PlayButton &alarm() const { return part<PlayButton>("_alarmPlayButton"); }
    [[nodiscard]] PlayButton &countdown() const { return part<PlayButton>("_countdownPlayButton"); }
};
} // namespace

/// The buttons beside the sounds that play them.
class tst_SoundPreview final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aButtonPlaysTheSoundBesideItAndStopsItAgain();
    void aSoundOfTheUsersIsPlayed();
    void theKeyboardPlaysToo();
    void theEndOfTheSoundGivesTheButtonBack();
    void noTimerRunsWhileNothingPlays();
    void onlyOneSoundPlaysAtATime();
    void anotherChoiceStopsTheSound();
    void clearingStopsTheSound();
    void closingTheWindowStopsTheSound();
    void mutingStopsTheSound();
    void turningBeepsOffStopsTheCountdownSoundOnly();
    void anUnplayableSoundBeeps();
    void aPreviewHasNoStandIn();
    void aFileThatHasNotAnsweredIsWaitedForQuietly();
    void aFileThatTurnsOutUnplayableBeepsAndGivesTheButtonBack();
    void aFileThatDoesNotAnswerBeepsAtTheEnd();
    void theButtonSaysWhatItDoes();
    void aSoundThatPlaysWhenThePreferencesGoIsSilenced();
};

void tst_SoundPreview::aButtonPlaysTheSoundBesideItAndStopsItAgain()
{
    Fixture p;
    p.alarm().click();
    QVERIFY(p.sounds.isPlaying(kWuff));
    QVERIFY(p.alarm().isPlaying());
    QVERIFY(!p.countdown().isPlaying());
    p.alarm().click();
    QVERIFY(!p.sounds.isPlaying(kWuff));
    QVERIFY(!p.alarm().isPlaying());
    p.countdown().click();
    QVERIFY(p.sounds.isPlaying(kCrow));
}

void tst_SoundPreview::aSoundOfTheUsersIsPlayed()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.alarm().click();
    QVERIFY(p.sounds.isPlaying(kBell));
    QCOMPARE(p.sounds.sound(kBell)->volume(), 1.0F);
    QVERIFY(!p.sounds.sound(kBell)->loops());
}

void tst_SoundPreview::theKeyboardPlaysToo()
{
    Fixture p;
    p.part<QTabWidget>("_tabView").setCurrentIndex(1);
    QVERIFY(QTest::qWaitForWindowActive(&p.window));
    p.part<QComboBox>("_alarmCombo").setFocus();
    QTest::keyClick(p.window.focusWidget(), Qt::Key_Tab);
    QCOMPARE(p.window.focusWidget(), &p.alarm());
    QTest::keyClick(&p.alarm(), Qt::Key_Space);
    QVERIFY(p.sounds.isPlaying(kWuff));
}

void tst_SoundPreview::theEndOfTheSoundGivesTheButtonBack()
{
    Fixture p;
    p.alarm().click();
    p.clock.advance(1.0);
    QVERIFY(p.alarm().isPlaying());
    p.sounds.sound(kWuff)->reachEnd();
    p.clock.advance(0.11);
    QVERIFY(!p.alarm().isPlaying());
    QVERIFY(!p.sounds.sound(kWuff));
    p.alarm().click();
    QVERIFY(p.sounds.isPlaying(kWuff));
}

void tst_SoundPreview::noTimerRunsWhileNothingPlays()
{
    Fixture p;
    QVERIFY(p.clock.isIdle());
    p.alarm().click();
    QVERIFY(!p.clock.isIdle());
    p.alarm().click();
    QVERIFY(p.clock.isIdle());
    p.alarm().click();
    p.sounds.sound(kWuff)->reachEnd();
    p.clock.advance(0.2);
    QVERIFY(p.clock.isIdle());
}

void tst_SoundPreview::onlyOneSoundPlaysAtATime()
{
    Fixture p;
    p.alarm().click();
    p.countdown().click();
    QVERIFY(!p.sounds.isPlaying(kWuff));
    QVERIFY(!p.alarm().isPlaying());
    QVERIFY(p.sounds.isPlaying(kCrow));
    p.alarm().click();
    QVERIFY(p.sounds.isPlaying(kWuff));
    QVERIFY(!p.sounds.isPlaying(kCrow));
}

void tst_SoundPreview::anotherChoiceStopsTheSound()
{
    Fixture p;
    p.alarm().click();
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    QVERIFY(!p.sounds.isPlaying(kWuff));
    QVERIFY(!p.alarm().isPlaying());
}

void tst_SoundPreview::clearingStopsTheSound()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.alarm().click();
    p.choose("_countdownCombo", QStringLiteral("Clear custom sounds"));
    QVERIFY(!p.sounds.isPlaying(kBell));
    QVERIFY(!p.alarm().isPlaying());
}

void tst_SoundPreview::closingTheWindowStopsTheSound()
{
    Fixture p;
    p.alarm().click();
    p.window.close();
    QVERIFY(!p.sounds.isPlaying(kWuff));
    QVERIFY(!p.alarm().isPlaying());
    QVERIFY(p.clock.isIdle());
}

void tst_SoundPreview::mutingStopsTheSound()
{
    Fixture p;
    p.countdown().click();
    p.preferences->toggleMute();
    QVERIFY(!p.sounds.isPlaying(kCrow));
    QVERIFY(!p.countdown().isPlaying());
    QVERIFY(!p.countdown().isEnabled());
    p.preferences->toggleMute();
    QVERIFY(p.countdown().isEnabled());
    QVERIFY(!p.countdown().isPlaying());
}

void tst_SoundPreview::turningBeepsOffStopsTheCountdownSoundOnly()
{
    Fixture p;
    p.countdown().click();
    p.click("_suppressCountdownCheckbox");
    QVERIFY(!p.sounds.isPlaying(kCrow));
    p.alarm().click();
    p.click("_suppressCountdownCheckbox");
    QVERIFY(p.sounds.isPlaying(kWuff));
}

void tst_SoundPreview::anUnplayableSoundBeeps()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.sounds.setFileDuration(kBell, 0);
    p.alarm().click();
    QCOMPARE(p.desktop.beeps, 1);
    QVERIFY(!p.alarm().isPlaying());
    QVERIFY(p.clock.isIdle());
    p.part<QComboBox>("_alarmCombo").setCurrentIndex(-1);
    p.alarm().click();
    QVERIFY(!p.alarm().isPlaying());
}

void tst_SoundPreview::aPreviewHasNoStandIn()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.alarm().click();
    QCOMPARE(p.sounds.sound(kBell)->standIn(), QString());
}

void tst_SoundPreview::theButtonSaysWhatItDoes()
{
    Fixture p;
    QCOMPARE(p.alarm().accessibleName(), QStringLiteral("Play the alarm sound"));
    QCOMPARE(p.countdown().accessibleName(), QStringLiteral("Play the countdown sound"));
    p.alarm().click();
    QCOMPARE(p.alarm().accessibleName(), QStringLiteral("Stop the alarm sound"));
    QCOMPARE(p.alarm().toolTip(), QStringLiteral("Stop the alarm sound"));
}

void tst_SoundPreview::aSoundThatPlaysWhenThePreferencesGoIsSilenced()
{
    Fixture p;
    p.alarm().click();
    p.preferences.reset();
    QVERIFY(!p.sounds.sound(kWuff));
    QVERIFY(p.clock.isIdle());
}

void tst_SoundPreview::aFileThatHasNotAnsweredIsWaitedForQuietly()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.sounds.holdFile(kBell);
    p.alarm().click();
    QVERIFY(p.alarm().isPlaying());
    p.sounds.answer(kBell, 1.5);
    p.clock.advance(1);
    QVERIFY(p.alarm().isPlaying());
    p.sounds.endAll();
    p.clock.advance(0.2);
    QVERIFY(!p.alarm().isPlaying());
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundPreview::aFileThatTurnsOutUnplayableBeepsAndGivesTheButtonBack()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.sounds.holdFile(kBell);
    p.alarm().click();
    p.sounds.answer(kBell, 0);
    // The playback ends without a stand-in.
    p.sounds.endAll();
    p.clock.advance(0.2);
    QVERIFY(!p.alarm().isPlaying());
    QCOMPARE(p.desktop.beeps, 1);
}

void tst_SoundPreview::aFileThatDoesNotAnswerBeepsAtTheEnd()
{
    Fixture p;
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    p.sounds.holdFile(kBell);
    p.alarm().click();
    p.sounds.endAll();
    p.clock.advance(0.2);
    QVERIFY(!p.alarm().isPlaying());
    QCOMPARE(p.desktop.beeps, 1);
}

WUFFER_TEST(tst_SoundPreview)
#include "tst_SoundPreview.moc"
