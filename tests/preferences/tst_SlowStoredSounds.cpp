#include "support/SlowSoundsFixture.h"
#include "support/TestMain.h"

/// The library of sounds while the files of the stored sounds do not answer.
class tst_SlowStoredSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theLaunchDoesNotWait();
    void aStoredSoundThatTurnsOutPlayableStays();
    void aStoredSoundThatTurnsOutUnplayableIsPruned();
    void aSoundThatBothKindsUseIsPrunedForBoth();
    void aStoredSoundThatIsNotListedIsReportedToo();
    void timersForgetASoundThatIsPrunedLate();
    void aStoredSoundThatTheUserReplacedMeanwhileIsNotPruned();
    void aStoredSoundThatTheUserIsReplacingIsNotPruned();
    void thePreferencesMayGoWhileFilesAreWaitedFor();
};

void tst_SlowStoredSounds::theLaunchDoesNotWait()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.meanwhile([] { QFAIL("the event loop runs during the launch"); });
    p.open();
    QCOMPARE(p.selected("_alarmCombo"), kBell);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
    QVERIFY(!p.window.isVisible());
    QVERIFY(!p.saysMissing());
}

void tst_SlowStoredSounds::aStoredSoundThatTurnsOutPlayableStays()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.sounds.answer(kBell, 1.5);
    QCOMPARE(p.selected("_alarmCombo"), kBell);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
    QCOMPARE(p.sounds.diary(QStringLiteral("make ")).size(), 1);
}

void tst_SlowStoredSounds::aStoredSoundThatTurnsOutUnplayableIsPruned()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.sounds.answer(kBell, 0);
    QCOMPARE(p.selected("_alarmCombo"), kWuff);
    QCOMPARE(p.history(), QStringList{kChime});
    QCOMPARE(p.stored("alarmPath"), kBell);
    QCOMPARE(p.desktop.beeps, 1);
    QVERIFY(p.window.isVisible());
    QVERIFY(p.saysMissing());
}

void tst_SlowStoredSounds::aSoundThatBothKindsUseIsPrunedForBoth()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.set("countdownPath", kBell);
    p.open();
    p.sounds.answer(kBell, 0);
    QCOMPARE(p.selected("_alarmCombo"), kWuff);
    QCOMPARE(p.selected("_countdownCombo"), QStringLiteral("Crow (Default)"));
    QCOMPARE(p.desktop.beeps, 2);
}

void tst_SlowStoredSounds::aStoredSoundThatIsNotListedIsReportedToo()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    // As after an earlier launch that has pruned the sound.
    p.set("soundHistory", QStringList{kChime});
    p.open();
    p.sounds.answer(kBell, 0);
    QCOMPARE(p.desktop.beeps, 1);
    QVERIFY(p.window.isVisible());
    QVERIFY(p.saysMissing());
    QCOMPARE(p.selected("_alarmCombo"), kWuff);
}

void tst_SlowStoredSounds::timersForgetASoundThatIsPrunedLate()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.open();
    const auto &combo = child<WebbyComboBox>(*p.openTimer().window(), "_alarmSoundCombo");
    QCOMPARE(combo.dataObjectOfSelectedItem(), kBell);
    p.sounds.answer(kBell, 0);
    QCOMPARE(combo.dataObjectOfSelectedItem(), kWuff);
    QVERIFY(!combo.containsDataObject(kBell));
}

void tst_SlowStoredSounds::aStoredSoundThatTheUserReplacedMeanwhileIsNotPruned()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.choose("_alarmCombo", QStringLiteral("Chime"));
    p.sounds.answer(kBell, 0);
    QCOMPARE(p.selected("_alarmCombo"), kChime);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SlowStoredSounds::aStoredSoundThatTheUserIsReplacingIsNotPruned()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.sounds.holdFile(kChime);
    p.open();
    p.meanwhile([&] {
        p.sounds.answer(kBell, 0);
        p.sounds.answer(kChime, 0.5);
    });
    p.choose("_alarmCombo", QStringLiteral("Chime"));
    QCOMPARE(p.selected("_alarmCombo"), kChime);
    QCOMPARE(p.stored("alarmPath"), kChime);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SlowStoredSounds::thePreferencesMayGoWhileFilesAreWaitedFor()
{
    SlowSoundsFixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.preferences.reset();
    QVERIFY(!p.sounds.sound(kBell));
}

WUFFER_TEST(tst_SlowStoredSounds)
#include "tst_SlowStoredSounds.moc"
