#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kNothing = QStringLiteral("Do Nothing");
const QString kLoop = QStringLiteral("Loop this Wuffer");
const QString kPreset = QStringLiteral("Start a Preset");
const QString kWuffer = QStringLiteral("Start other open Wuffer");
const char *const kCannotStart = "Couldn't start the targeted wuffer!";
} // namespace

/// What can follow the end of a countdown, and how it is chosen.
class tst_FinishActions final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theOptionsAreListedInOrder();
    void thePickerIsShownWhereThereIsAChoice_data();
    void thePickerIsShownWhereThereIsAChoice();
    void thePickerListsThePresetsInTheirOrder();
    void thePickerKeepsThePlace();
    void thePickerIsNeverWithoutAPlace();
    void thePickerIsRefilledWhenItOpens();
    void thePickerSaysHowToLink();
    void thePickerShowsTheLink();
    void thePickerOfAStopwatchEndsEnabled();
    void anotherOptionCutsTheLink_data();
    void anotherOptionCutsTheLink();
    void keepWuffingNeedsNothingToFollow_data();
    void keepWuffingNeedsNothingToFollow();
    void aMutedTimerCannotKeepWuffing();
    void loopingCountsThePasses();
    void everyOtherActionForgetsThePasses_data();
    void everyOtherActionForgetsThePasses();
    void aPresetIsLoadedAndStarted();
    void aPresetStartedLeavesTheWindowWhereItIs();
    void presetsFollowEachOther();
    void theTenthPlaceRunsTheTimerAgain();
    void noPlaceStartsPresetZero();
    void aLinkStartsTheOtherTimer();
    void aLinkToNobodyIsLogged();
    void aLinkToARunningTimerIsLogged();
    void aLinkToATimerInItsAlarmIsLogged();
    void nothingSelectedDoesNothing();

private:
    /// Lets a countdown of one second and its alarm end.
    static void finish(TimerFixture &t)
    {
        t.startCountdown(1);
        t.pass(1.1);
        t.sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
        t.pass(0.3);
    }
    static bool isShown(const QWidget &widget) { return !widget.isHidden(); }
};

void tst_FinishActions::theOptionsAreListedInOrder()
{
    const TimerFixture t;
    const auto &combo = t.part<QComboBox>("_finishedCombo");
    QStringList options;
    for (int index = 0; index < combo.count(); ++index)
        options << combo.itemText(index);
    const QStringList expected{kNothing, kLoop, kPreset, kWuffer};
    QCOMPARE(options, expected);
    QCOMPARE(t.finish(), kNothing);
}

void tst_FinishActions::thePickerIsShownWhereThereIsAChoice_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("nothing") << kNothing << false << true;
    QTest::newRow("loop") << kLoop << false << true;
    QTest::newRow("preset") << kPreset << true << true;
    QTest::newRow("other timer") << kWuffer << true << false;
}

void tst_FinishActions::thePickerIsShownWhereThereIsAChoice()
{
    QFETCH(const QString, option);
    TimerFixture t;
    t.chooseFinish(option);
    QTEST(isShown(t.picker()), "shown");
    QTEST(t.picker().isEnabled(), "enabled");
    t.chooseFinish(kNothing);
    QVERIFY(!isShown(t.picker()));
}

void tst_FinishActions::thePickerListsThePresetsInTheirOrder()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    QCOMPARE(t.picker().count(), 10);
    QCOMPARE(t.picker().itemText(0), QStringLiteral("Preset 1 - 0h 10m 0s"));
    QCOMPARE(t.picker().itemText(8), QStringLiteral("Preset 9 - 0h 90m 0s"));
    QCOMPARE(t.picker().itemText(9), QStringLiteral("Preset 0 - 0h 0m 0s"));
}

void tst_FinishActions::thePickerKeepsThePlace()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    t.pick(6);
    t.timer.handleFinishedComboChange();
    QCOMPARE(t.picker().currentIndex(), 6);
    // Hidden, it keeps its list and place.
    t.chooseFinish(kLoop);
    t.chooseFinish(kPreset);
    QCOMPARE(t.picker().currentIndex(), 6);
    // The one line that tells of a link is a first place.
    t.chooseFinish(kWuffer);
    t.chooseFinish(kPreset);
    QCOMPARE(t.picker().currentIndex(), 0);
}

void tst_FinishActions::thePickerIsNeverWithoutAPlace()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    t.picker().setCurrentIndex(-1);
    t.timer.handleFinishedComboChange();
    QCOMPARE(t.picker().currentIndex(), 0);
    t.picker().setCurrentIndex(-1);
    t.chooseFinish(kNothing);
    QVERIFY(!isShown(t.picker()));
    QCOMPARE(t.picker().currentIndex(), 0);
}

void tst_FinishActions::thePickerIsRefilledWhenItOpens()
{
    TimerFixture t;
    t.timer.window()->show();
    t.chooseFinish(kPreset);
    t.pick(2);
    t.defaults.setObject(QVariantMap{{QStringLiteral("title"), QStringLiteral("Eggs")}},
                         QStringLiteral("Preset 3"));
    for (const char *name : {"_finishedCombo", "_finishedPicker"}) {
        t.picker().setItemText(2, QStringLiteral("old"));
        auto &combo = t.part<QComboBox>(name);
        combo.showPopup();
        QCOMPARE(t.picker().currentText(), QStringLiteral("Eggs - 0h 0m 0s"));
        combo.hidePopup();
    }
}

void tst_FinishActions::thePickerSaysHowToLink()
{
    TimerFixture t;
    t.chooseFinish(kWuffer);
    QCOMPARE(t.picker().count(), 1);
    QCOMPARE(t.picker().currentText(), QStringLiteral("Control-Drag a Wuffer"));
}

void tst_FinishActions::thePickerShowsTheLink()
{
    const TimerFixture t;
    TimerUser other;
    other.typeName(QStringLiteral("Eggs"));
    other.typeDuration(0, 5, 0);
    t.timer.setTargetWuffer(&other.timer);
    QCOMPARE(t.picker().count(), 1);
    QCOMPARE(t.picker().currentText(), QStringLiteral("Eggs - 0h 5m 0s"));
    QVERIFY(!t.picker().isEnabled());
    QVERIFY(isShown(t.picker()));
}

void tst_FinishActions::thePickerOfAStopwatchEndsEnabled()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    t.timer.stopwatch();
    QVERIFY(!t.part<QComboBox>("_finishedCombo").isEnabled());
    QVERIFY(t.picker().isEnabled());
    t.chooseFinish(kNothing);
    t.timer.stopwatch();
    t.timer.stopwatch();
    QVERIFY(!t.picker().isEnabled());
}

void tst_FinishActions::anotherOptionCutsTheLink_data()
{
    QTest::addColumn<QString>("option");
    for (const QString &option : {kNothing, kLoop, kPreset})
        QTest::newRow(qPrintable(option)) << option;
}

void tst_FinishActions::anotherOptionCutsTheLink()
{
    QFETCH(const QString, option);
    TimerFixture t;
    const TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    t.chooseFinish(option);
    QVERIFY(!t.timer.isChained());
    QVERIFY(!other.timer.isChained());
    QCOMPARE(t.finish(), option);
    QCOMPARE(other.go(), QStringLiteral("Start"));
    QVERIFY(other.goButton().isEnabled());
    // The same option again leaves everything as it is.
    t.timer.setTargetWuffer(&other.timer);
    t.chooseFinish(kWuffer);
    QCOMPARE(t.timer.getTargetWuffer(), &other.timer);
}

void tst_FinishActions::keepWuffingNeedsNothingToFollow_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("may");
    QTest::newRow("nothing") << kNothing << true;
    QTest::newRow("loop") << kLoop << false;
    QTest::newRow("preset") << kPreset << false;
    QTest::newRow("other timer") << kWuffer << false;
}

void tst_FinishActions::keepWuffingNeedsNothingToFollow()
{
    QFETCH(const QString, option);
    TimerFixture t;
    const auto &box = t.part<QCheckBox>("_keepWuffingBox");
    t.tick("_keepWuffingBox");
    t.chooseFinish(option);
    QTEST(box.isEnabled(), "may");
    QTEST(box.isChecked(), "may");
    t.chooseFinish(kNothing);
    QVERIFY(box.isEnabled());
}

void tst_FinishActions::aMutedTimerCannotKeepWuffing()
{
    TimerFixture t;
    t.tick("_keepWuffingBox");
    t.set("soundOff", 1);
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
}

void tst_FinishActions::loopingCountsThePasses()
{
    TimerFixture t;
    t.chooseFinish(kLoop);
    finish(t);
    QVERIFY(t.timer.isRunning());
    t.pass(0.5);
    QVERIFY(t.elapsed().endsWith(QStringLiteral(" (x2)")));
}

void tst_FinishActions::everyOtherActionForgetsThePasses_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("preset") << kPreset;
    QTest::newRow("other timer") << kWuffer;
    QTest::newRow("nothing selected") << QString();
    QTest::newRow("nothing, in a chain") << kNothing;
}

void tst_FinishActions::everyOtherActionForgetsThePasses()
{
    QFETCH(const QString, option);
    TimerFixture t;
    const TimerUser other;
    t.chooseFinish(kLoop);
    t.timer.handleFinishedBehaviour();
    t.pressGo();
    if (option == kNothing)
        other.timer.setTargetWuffer(&t.timer);
    if (option.isEmpty())
        t.part<QComboBox>("_finishedCombo").setCurrentIndex(-1);
    else
        t.chooseFinish(option);
    if (option == kWuffer)
        QTest::ignoreMessage(QtWarningMsg, kCannotStart);
    t.timer.handleFinishedBehaviour();
    if (t.timer.isRunning())
        t.pressGo();
    t.chooseFinish(kNothing);
    t.startCountdown(60);
    t.pass(1);
    QVERIFY2(!t.elapsed().contains(QStringLiteral("(x")), qPrintable(t.elapsed()));
}

void tst_FinishActions::aPresetIsLoadedAndStarted()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    t.pick(2);
    finish(t);
    QVERIFY(t.timer.isRunning());
    QCOMPARE(t.titleField.text(), QStringLiteral("Preset 3"));
    QVERIFY(t.display().startsWith(QStringLiteral("29m")) ||
            t.display() == QStringLiteral("30m 0s"));
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.finish(), kNothing);
}

void tst_FinishActions::aPresetStartedLeavesTheWindowWhereItIs()
{
    TimerFixture t;
    t.timer.window()->move(99, 88);
    t.timer.setPreset(1);
    t.timer.window()->move(20, 30);
    t.chooseFinish(kPreset);
    t.pick(0);
    finish(t);
    QCOMPARE(t.titleField.text(), QStringLiteral("Wuffer"));
    QCOMPARE(t.timer.window()->pos(), QPoint(20, 30));
}

void tst_FinishActions::presetsFollowEachOther()
{
    TimerFixture t;
    const auto preset = [](const char *title, int next) {
        return QVariantMap{{QStringLiteral("title"), QString::fromLatin1(title)},
                           {QStringLiteral("seconds"), 1},
                           {QStringLiteral("finishOption"), kPreset},
                           {QStringLiteral("presetSelection"), next}};
    };
    t.defaults.setObject(preset("A", 1), QStringLiteral("Preset 1"));
    t.defaults.setObject(preset("B", 0), QStringLiteral("Preset 2"));
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 1"), false);
    t.pressGo();
    for (const char *title : {"A", "B", "A", "B"}) {
        QCOMPARE(t.titleField.text(), QString::fromLatin1(title));
        QVERIFY(t.timer.isRunning());
        t.pass(1.1);
        t.sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
        t.pass(0.3);
    }
}

void tst_FinishActions::theTenthPlaceRunsTheTimerAgain()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.chooseFinish(kPreset);
    t.pick(9);
    finish(t);
    QVERIFY(t.timer.isRunning());
    QCOMPARE(t.titleField.text(), QStringLiteral("Tea"));
    QCOMPARE(t.fields(), QStringLiteral("0 0 1"));
    QCOMPARE(t.picker().currentIndex(), 9);
    QVERIFY(t.defaults.dictionaryForKey(QStringLiteral("Preset 10")).isEmpty());
}

void tst_FinishActions::noPlaceStartsPresetZero()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    t.picker().setCurrentIndex(-1);
    finish(t);
    QCOMPARE(t.titleField.text(), QStringLiteral("Preset 0"));
}

void tst_FinishActions::aLinkStartsTheOtherTimer()
{
    TimerFixture t;
    TimerUser other;
    other.typeDuration(0, 5, 0);
    t.timer.setTargetWuffer(&other.timer);
    t.timer.showWufferWindow();
    finish(t);
    QVERIFY(!t.timer.isRunning());
    QVERIFY(other.timer.isRunning());
    QVERIFY(QTest::qWaitForWindowActive(other.timer.window()));
}

void tst_FinishActions::aLinkToNobodyIsLogged()
{
    TimerFixture t;
    t.chooseFinish(kWuffer);
    QTest::ignoreMessage(QtWarningMsg, kCannotStart);
    finish(t);
    QVERIFY(!t.timer.isRunning());
}

void tst_FinishActions::aLinkToARunningTimerIsLogged()
{
    TimerFixture t;
    TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    other.startCountdown(300);
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
    QTest::ignoreMessage(QtWarningMsg, kCannotStart);
    t.pass(0.3);
    QVERIFY(!t.timer.isRunning());
    QVERIFY(other.timer.isRunning());
    QCOMPARE(t.timer.getTargetWuffer(), &other.timer);
}

void tst_FinishActions::aLinkToATimerInItsAlarmIsLogged()
{
    TimerFixture t;
    TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    other.startCountdown(0);
    t.pass(0.1);
    QCOMPARE(other.go(), QStringLiteral("Reset"));
    QTest::ignoreMessage(QtWarningMsg, kCannotStart);
    t.timer.handleFinishedBehaviour();
    QCOMPARE(other.go(), QStringLiteral("Reset"));
}

void tst_FinishActions::nothingSelectedDoesNothing()
{
    TimerFixture t;
    t.part<QComboBox>("_finishedCombo").setCurrentIndex(-1);
    finish(t);
    QVERIFY(!t.timer.isRunning());
    QVERIFY(t.clock.isIdle());
}

WUFFER_TEST_MAIN(tst_FinishActions)
#include "tst_FinishActions.moc"
