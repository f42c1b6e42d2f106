#include "controls/Drawer.h"
#include "controls/PlayButton.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const auto kWuff = QStringLiteral("wolvesWuff.wav");
const auto kCrow = QStringLiteral("crow.wav");
const auto kBell = QStringLiteral("/sounds/Bell.aiff");

/// A visible timer with its drawer open.
class Fixture : public TimerFixture
{
public:
    Fixture()
    {
        sounds.setFileDuration(kBell, 1.5);
        set("soundHistory", QStringList{kBell});
        timer.window()->show();
        timer.showHideAdvanced();
    }

    [[nodiscard]] PlayButton &alarm() const { return part<PlayButton>("_alarmPlayButton"); }
    [[nodiscard]] PlayButton &countdown() const { return part<PlayButton>("_countdownPlayButton"); }
    void choose(const char *combo, int index) const
    {
        part<QComboBox>(combo).setCurrentIndex(index);
        Q_EMIT part<QComboBox>(combo).activated(index);
    }
};
} // namespace

/// The buttons in a timer's drawer that play its sounds.
class tst_DrawerSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonsPlayTheSoundsOfTheTimer();
    void oneSoundPlaysAtATime();
    void theStartStopsTheSound();
    void theAlarmStopsTheSound();
    void aMutedAlarmStopsTheSoundToo();
    void closingTheDrawerStopsTheSound();
    void closingTheWindowStopsTheSound();
    void mutingStopsTheSound();
    void anotherChoiceStopsTheSound();
    void aChoiceThatIsClearedStopsTheSound();
    void aChangeOfOtherPreferencesLetsItPlay();
    void theButtonsAreEnabledWithTheirSounds_data();
    void theButtonsAreEnabledWithTheirSounds();
    void aTimerThatHasPlayedTicksNoMore();
};

void tst_DrawerSounds::theButtonsPlayTheSoundsOfTheTimer()
{
    Fixture t;
    t.alarm().click();
    QVERIFY(t.sounds.isPlaying(kWuff));
    t.alarm().click();
    QVERIFY(!t.sounds.isPlaying(kWuff));
    t.choose("_countdownSoundCombo", 1);
    t.countdown().click();
    QVERIFY(t.sounds.isPlaying(kBell));
    QVERIFY(t.countdown().isPlaying());
    QCOMPARE(t.countdown().accessibleName(), QStringLiteral("Stop the countdown sound"));
}

void tst_DrawerSounds::oneSoundPlaysAtATime()
{
    Fixture t;
    t.alarm().click();
    t.countdown().click();
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.alarm().isPlaying());
    QVERIFY(t.sounds.isPlaying(kCrow));
}

void tst_DrawerSounds::theStartStopsTheSound()
{
    Fixture t;
    t.alarm().click();
    t.startCountdown(60);
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.alarm().isPlaying());
}

void tst_DrawerSounds::theAlarmStopsTheSound()
{
    Fixture t;
    t.choose("_alarmSoundCombo", 1);
    t.startCountdown(60);
    t.countdown().click();
    QVERIFY(t.countdown().isPlaying());
    t.pass(60.1);
    QVERIFY(!t.countdown().isPlaying());
    QVERIFY(!t.sounds.isPlaying(kCrow));
    QVERIFY(t.sounds.isPlaying(kBell));
}

void tst_DrawerSounds::aMutedAlarmStopsTheSoundToo()
{
    Fixture t;
    t.startCountdown(60);
    t.set("soundOff", 1);
    t.alarm().click();
    t.pass(60.1);
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.alarm().isPlaying());
}

void tst_DrawerSounds::closingTheDrawerStopsTheSound()
{
    Fixture t;
    const auto &drawer = t.part<Drawer>("_drawer");
    QTRY_COMPARE(drawer.state(), Drawer::State::Open);
    t.alarm().click();
    t.timer.showHideAdvanced();
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.alarm().isPlaying());
}

void tst_DrawerSounds::closingTheWindowStopsTheSound()
{
    Fixture t;
    t.alarm().click();
    t.timer.window()->close();
    QVERIFY(!t.sounds.isPlaying(kWuff));
}

void tst_DrawerSounds::mutingStopsTheSound()
{
    Fixture t;
    t.countdown().click();
    t.set("soundOff", 1);
    QVERIFY(!t.sounds.isPlaying(kCrow));
    QVERIFY(!t.countdown().isPlaying());
}

void tst_DrawerSounds::anotherChoiceStopsTheSound()
{
    Fixture t;
    t.alarm().click();
    t.choose("_alarmSoundCombo", 0);
    QVERIFY(t.sounds.isPlaying(kWuff));
    t.choose("_alarmSoundCombo", 1);
    QVERIFY(!t.sounds.isPlaying(kWuff));
    QVERIFY(!t.alarm().isPlaying());
}

void tst_DrawerSounds::aChoiceThatIsClearedStopsTheSound()
{
    Fixture t;
    t.choose("_alarmSoundCombo", 1);
    t.alarm().click();
    QVERIFY(t.sounds.isPlaying(kBell));
    t.set("soundHistory", QStringList());
    QVERIFY(!t.sounds.isPlaying(kBell));
    QVERIFY(!t.alarm().isPlaying());
}

void tst_DrawerSounds::aChangeOfOtherPreferencesLetsItPlay()
{
    Fixture t;
    t.choose("_alarmSoundCombo", 1);
    t.alarm().click();
    t.set("finishedText", QStringLiteral("Ready"));
    QVERIFY(t.sounds.isPlaying(kBell));
}

void tst_DrawerSounds::theButtonsAreEnabledWithTheirSounds_data()
{
    QTest::addColumn<bool>("muted");
    QTest::addColumn<bool>("suppressed");
    QTest::addColumn<bool>("stopwatch");
    QTest::newRow("all") << false << false << false;
    QTest::newRow("muted") << true << false << false;
    QTest::newRow("no beeps") << false << true << false;
    QTest::newRow("stopwatch") << false << false << true;
}

void tst_DrawerSounds::theButtonsAreEnabledWithTheirSounds()
{
    QFETCH(const bool, muted);
    QFETCH(const bool, suppressed);
    QFETCH(const bool, stopwatch);
    Fixture t;
    t.set("soundOff", muted ? 1 : 0);
    t.set("suppressCountdown", suppressed ? 1 : 0);
    if (stopwatch)
        t.timer.stopwatch();
    QCOMPARE(t.alarm().isEnabled(), !muted && !stopwatch);
    QCOMPARE(t.countdown().isEnabled(), !muted && !stopwatch && !suppressed);
    QCOMPARE(t.alarm().isEnabled(), t.part<QWidget>("_alarmSoundCombo").isEnabled());
    QCOMPARE(t.countdown().isEnabled(), t.part<QWidget>("_countdownSoundCombo").isEnabled());
}

void tst_DrawerSounds::aTimerThatHasPlayedTicksNoMore()
{
    Fixture t;
    QVERIFY(t.clock.isIdle());
    t.alarm().click();
    t.sounds.endAll();
    t.pass(0.2);
    QVERIFY(t.clock.isIdle());
    QVERIFY(!t.alarm().isPlaying());
}

WUFFER_TEST(tst_DrawerSounds)
#include "tst_DrawerSounds.moc"
