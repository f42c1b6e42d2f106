#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

#include <functional>

namespace
{
const auto kWuff = QStringLiteral("Wuff (Default)");
const auto kBell = QStringLiteral("/sounds/Bell.aiff");
const auto kChime = QStringLiteral("/sounds/Chime.wav");
const auto kSelect = QStringLiteral("Select another sound...");

/// The preferences, with two sounds in the library, one of them on a disk that does not answer.
class Fixture : public PreferencesFixture
{
public:
    Fixture()
    {
        sounds.setFileDuration(kChime, 0.5);
        sounds.holdFile(kBell);
        set("soundHistory", QStringList{kBell, kChime});
    }

    [[nodiscard]] QWidget &page() const { return part<QWidget>("soundTab"); }
    [[nodiscard]] QStringList history() const
    {
        return defaults.stringArrayForKey(QStringLiteral("soundHistory"));
    }
    [[nodiscard]] QString stored(const char *key) const
    {
        return defaults.stringForKey(QString::fromLatin1(key)).value_or(QStringLiteral("(none)"));
    }
    [[nodiscard]] bool saysMissing() const
    {
        return !part<QLabel>("_alarmMissingLabel").isHidden();
    }

    /// Does something in the event loop, while an operation waits in it.
    void meanwhile(const std::function<void()> &action)
    {
        QMetaObject::invokeMethod(&window, action, Qt::QueuedConnection);
    }
};
} // namespace

/// The library of sounds while files do not answer.
class tst_SlowSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theLaunchDoesNotWait();
    void aStoredSoundThatTurnsOutPlayableStays();
    void aStoredSoundThatTurnsOutUnplayableIsPruned();
    void aSoundThatBothKindsUseIsPrunedForBoth();
    void aStoredSoundThatTheUserReplacedMeanwhileIsNotPruned();
    void aFileIsWaitedForWhenItIsChosen();
    void aFileThatTurnsOutUnplayableWhenChosenIsNotAdded();
    void aFileThatDoesNotAnswerIsTakenAfterAWhile();
    void thePageIsDisabledWhileTheUserWaits();
    void aQuickAnswerDoesNotDisableThePage();
    void droppedFilesAreWaitedForToo();
    void theProgramMayEndWhileAFileIsWaitedFor();
    void thePreferencesMayGoWhileFilesAreWaitedFor();
};

void tst_SlowSounds::theLaunchDoesNotWait()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.meanwhile([] { QFAIL("the event loop runs during the launch"); });
    p.open();
    QCOMPARE(p.selected("_alarmCombo"), kBell);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
    QVERIFY(!p.window.isVisible());
    QVERIFY(!p.saysMissing());
}

void tst_SlowSounds::aStoredSoundThatTurnsOutPlayableStays()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.sounds.answer(kBell, 1.5);
    QCOMPARE(p.selected("_alarmCombo"), kBell);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
    QCOMPARE(p.sounds.diary(QStringLiteral("make ")).size(), 1);
}

void tst_SlowSounds::aStoredSoundThatTurnsOutUnplayableIsPruned()
{
    Fixture p;
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

void tst_SlowSounds::aSoundThatBothKindsUseIsPrunedForBoth()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.set("countdownPath", kBell);
    p.open();
    p.sounds.answer(kBell, 0);
    QCOMPARE(p.selected("_alarmCombo"), kWuff);
    QCOMPARE(p.selected("_countdownCombo"), QStringLiteral("Crow (Default)"));
    QCOMPARE(p.desktop.beeps, 2);
}

void tst_SlowSounds::aStoredSoundThatTheUserReplacedMeanwhileIsNotPruned()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.choose("_alarmCombo", QStringLiteral("Chime"));
    p.sounds.answer(kBell, 0);
    QCOMPARE(p.selected("_alarmCombo"), kChime);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SlowSounds::aFileIsWaitedForWhenItIsChosen()
{
    Fixture p;
    p.open();
    p.meanwhile([&] {
        QCOMPARE(p.stored("alarmPath"), QStringLiteral("(none)"));
        p.sounds.answer(kBell, 1.5);
    });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    QCOMPARE(p.stored("alarmPath"), kBell);
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Bell"));
}

void tst_SlowSounds::aFileThatTurnsOutUnplayableWhenChosenIsNotAdded()
{
    Fixture p;
    p.open();
    const auto letter = QStringLiteral("/texts/Letter.txt");
    p.sounds.holdFile(letter);
    p.openPanel.choose(letter);
    p.meanwhile([&] { p.sounds.answer(letter, 0); });
    p.choose("_alarmCombo", kSelect);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.stored("alarmPath"), QStringLiteral("(none)"));
    QCOMPARE(p.desktop.beeps, 1);
}

void tst_SlowSounds::aFileThatDoesNotAnswerIsTakenAfterAWhile()
{
    Fixture p;
    p.open();
    const auto far = QStringLiteral("/server/Far.wav");
    p.sounds.holdFile(far);
    p.openPanel.choose(far);
    // Waited for once, although the file is opened again when the new entry is selected.
    p.meanwhile([&] { p.clock.advance(10); });
    p.choose("_alarmCombo", kSelect);
    QCOMPARE(p.history(), QStringList({far, kBell, kChime}));
    QCOMPARE(p.stored("alarmPath"), far);
    QCOMPARE(p.selected("_alarmCombo"), far);
    QCOMPARE(p.desktop.beeps, 0);
    p.sounds.answer(far, 0);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
    QCOMPARE(p.selected("_alarmCombo"), kWuff);
    QCOMPARE(p.desktop.beeps, 1);
}

void tst_SlowSounds::thePageIsDisabledWhileTheUserWaits()
{
    Fixture p;
    p.open();
    p.window.show();
    p.preferences->showSoundTab();
    auto &combo = p.part<QComboBox>("_alarmCombo");
    combo.setFocus();
    p.meanwhile([&] {
        QVERIFY(p.page().isEnabled());
        p.clock.advance(0.3);
        QVERIFY(!p.page().isEnabled());
        p.sounds.answer(kBell, 1.5);
    });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    QVERIFY(p.page().isEnabled());
    QCOMPARE(p.window.focusWidget(), &combo);
}

void tst_SlowSounds::aQuickAnswerDoesNotDisableThePage()
{
    Fixture p;
    p.open();
    p.meanwhile([&] {
        p.clock.advance(0.1);
        QVERIFY(p.page().isEnabled());
        p.sounds.answer(kBell, 1.5);
    });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    QVERIFY(p.clock.isIdle());
}

void tst_SlowSounds::droppedFilesAreWaitedForToo()
{
    Fixture p;
    p.open();
    p.meanwhile([&] { p.sounds.answer(kBell, 1.5); });
    p.preferences->takeDroppedSounds({0, -1}, {kBell, kChime});
    QCOMPARE(p.stored("alarmPath"), kBell);
}

void tst_SlowSounds::theProgramMayEndWhileAFileIsWaitedFor()
{
    Fixture p;
    p.open();
    p.meanwhile([] { QCoreApplication::exit(); });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    // It is not known to be unplayable.
    QCOMPARE(p.stored("alarmPath"), kBell);
}

void tst_SlowSounds::thePreferencesMayGoWhileFilesAreWaitedFor()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.open();
    p.preferences.reset();
    QVERIFY(!p.sounds.sound(kBell));
}

WUFFER_TEST(tst_SlowSounds)
#include "tst_SlowSounds.moc"
