#include "support/SlowSoundsFixture.h"
#include "support/TestMain.h"

namespace
{
const auto kSelect = QStringLiteral("Select another sound...");
} // namespace

/// The library of sounds while files that the user chooses do not answer.
class tst_SlowSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsWaitedForWhenItIsChosen();
    void aFileThatTurnsOutUnplayableWhenChosenIsNotAdded();
    void aFileThatDoesNotAnswerIsTakenAfterAWhile();
    void theLastOfTwoChoicesCounts();
    void thePageIsDisabledWhileTheUserWaits();
    void theFocusStaysOnAnotherPageThatTheUserHasTurnedTo();
    void aQuickAnswerDoesNotDisableThePage();
    void droppedFilesAreWaitedForToo();
    void theProgramMayEndWhileAFileIsWaitedFor();
};

void tst_SlowSounds::aFileIsWaitedForWhenItIsChosen()
{
    SlowSoundsFixture p;
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
    SlowSoundsFixture p;
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
    SlowSoundsFixture p;
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

void tst_SlowSounds::theLastOfTwoChoicesCounts()
{
    SlowSoundsFixture p;
    p.open();
    p.meanwhile([&] {
        p.choose("_alarmCombo", QStringLiteral("Chime"));
        p.sounds.answer(kBell, 1.5);
    });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    QCOMPARE(p.selected("_alarmCombo"), kChime);
    QCOMPARE(p.stored("alarmPath"), kChime);
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Chime"));
}

void tst_SlowSounds::thePageIsDisabledWhileTheUserWaits()
{
    SlowSoundsFixture p;
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

void tst_SlowSounds::theFocusStaysOnAnotherPageThatTheUserHasTurnedTo()
{
    SlowSoundsFixture p;
    p.open();
    p.window.show();
    p.preferences->showSoundTab();
    p.part<QComboBox>("_alarmCombo").setFocus();
    auto &tabs = p.part<QTabWidget>("_tabView");
    auto &text = p.part<QLineEdit>("_finishedText");
    p.meanwhile([&] {
        p.clock.advance(0.3);
        tabs.setCurrentWidget(&p.part<QWidget>("generalTab"));
        text.setFocus();
        p.sounds.answer(kBell, 1.5);
    });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    QCOMPARE(p.window.focusWidget(), &text);
}

void tst_SlowSounds::aQuickAnswerDoesNotDisableThePage()
{
    SlowSoundsFixture p;
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
    SlowSoundsFixture p;
    p.open();
    p.meanwhile([&] { p.sounds.answer(kBell, 1.5); });
    p.preferences->takeDroppedSounds({0, -1}, {kBell, kChime});
    QCOMPARE(p.stored("alarmPath"), kBell);
}

void tst_SlowSounds::theProgramMayEndWhileAFileIsWaitedFor()
{
    SlowSoundsFixture p;
    p.open();
    p.meanwhile([] { QCoreApplication::exit(); });
    p.choose("_alarmCombo", QStringLiteral("Bell"));
    // It is not known to be unplayable.
    QCOMPARE(p.stored("alarmPath"), kBell);
}

WUFFER_TEST(tst_SlowSounds)
#include "tst_SlowSounds.moc"
