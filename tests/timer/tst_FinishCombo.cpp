#include "app/WufferApplication.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QToolButton>

namespace
{
const QString kNothing = QStringLiteral("Do Nothing");
const QString kLoop = QStringLiteral("Loop this Wuffer");
const QString kPreset = QStringLiteral("Start a Preset");
const QString kWuffer = QStringLiteral("Start other open Wuffer");
} // namespace

/// How the user chooses what follows the end of a countdown.
class tst_FinishCombo final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theOptionsAreListedInOrder();
    void thePickerIsShownWhereThereIsAChoice_data();
    void thePickerIsShownWhereThereIsAChoice();
    void thePickerListsThePresetsInTheirOrder();
    void thePickerKeepsItsSelection();
    void thePickerAlwaysHasASelection();
    void thePickerIsRefilledWhenItOpens();
    void thePickerSaysHowToLink();
    void thePickerShowsTheLink();
    void thePickerOfAStopwatchEndsEnabled();
    void aButtonOffersTimersWhereOneIsToFollow_data();
    void aButtonOffersTimersWhereOneIsToFollow();
    void theButtonGoesWithTheLink();
    void theButtonOfAStopwatchIsDisabled();
    void anotherOptionCutsTheLink_data();
    void anotherOptionCutsTheLink();
    void keepWuffingNeedsNothingToFollow_data();
    void keepWuffingNeedsNothingToFollow();
    void aMutedTimerCannotKeepWuffing();

private:
    static bool isShown(const QWidget &widget) { return !widget.isHidden(); }
};

void tst_FinishCombo::theOptionsAreListedInOrder()
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

void tst_FinishCombo::thePickerIsShownWhereThereIsAChoice_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("nothing") << kNothing << false << true;
    QTest::newRow("loop") << kLoop << false << true;
    QTest::newRow("preset") << kPreset << true << true;
    QTest::newRow("other timer") << kWuffer << true << false;
}

void tst_FinishCombo::thePickerIsShownWhereThereIsAChoice()
{
    QFETCH(const QString, option);
    TimerFixture t;
    t.chooseFinish(option);
    QTEST(isShown(t.picker()), "shown");
    QTEST(t.picker().isEnabled(), "enabled");
    t.chooseFinish(kNothing);
    QVERIFY(!isShown(t.picker()));
}

void tst_FinishCombo::thePickerListsThePresetsInTheirOrder()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    QCOMPARE(t.picker().count(), 10);
    QCOMPARE(t.picker().itemText(0), QStringLiteral("Preset 1 - 0h 10m 0s"));
    QCOMPARE(t.picker().itemText(8), QStringLiteral("Preset 9 - 0h 90m 0s"));
    QCOMPARE(t.picker().itemText(9), QStringLiteral("Preset 0 - 0h 0m 0s"));
}

void tst_FinishCombo::thePickerKeepsItsSelection()
{
    TimerFixture t;
    t.chooseFinish(kPreset);
    t.pick(6);
    t.timer.handleFinishedComboChange();
    QCOMPARE(t.picker().currentIndex(), 6);
    // A hidden picker keeps its list and its selection.
    t.chooseFinish(kLoop);
    t.chooseFinish(kPreset);
    QCOMPARE(t.picker().currentIndex(), 6);
    // For a link the picker has one line only, so the selection goes to the first.
    t.chooseFinish(kWuffer);
    t.chooseFinish(kPreset);
    QCOMPARE(t.picker().currentIndex(), 0);
}

void tst_FinishCombo::thePickerAlwaysHasASelection()
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

void tst_FinishCombo::thePickerIsRefilledWhenItOpens()
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

void tst_FinishCombo::thePickerSaysHowToLink()
{
    TimerFixture t;
    t.chooseFinish(kWuffer);
    QCOMPARE(t.picker().count(), 1);
    QCOMPARE(t.picker().currentText(), QStringLiteral("Control-Drag a Wuffer"));
}

void tst_FinishCombo::thePickerShowsTheLink()
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

void tst_FinishCombo::thePickerOfAStopwatchEndsEnabled()
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

void tst_FinishCombo::aButtonOffersTimersWhereOneIsToFollow_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("offered");
    QTest::newRow("nothing") << kNothing << false;
    QTest::newRow("loop") << kLoop << false;
    QTest::newRow("preset") << kPreset << false;
    QTest::newRow("other timer") << kWuffer << true;
}

void tst_FinishCombo::aButtonOffersTimersWhereOneIsToFollow()
{
    QFETCH(const QString, option);
    TimerFixture t;
    const auto &button = t.part<QToolButton>("_linkButton");
    QVERIFY(!isShown(button));
    t.chooseFinish(option);
    QTEST(isShown(button), "offered");
    std::vector<const Wuffer *> requests;
    const QObject until;
    connect(&WufferApplication::instance(), &WufferApplication::targetsRequested, &until,
            [&requests](const Wuffer *timer) { requests.push_back(timer); });
    t.part<QToolButton>("_linkButton").click();
    QCOMPARE(requests, std::vector<const Wuffer *>{&t.timer});
    QVERIFY(!button.accessibleName().isEmpty());
    QVERIFY(!button.toolTip().isEmpty());
}

void tst_FinishCombo::theButtonGoesWithTheLink()
{
    const TimerFixture t;
    TimerUser other;
    const auto &button = t.part<QToolButton>("_linkButton");
    t.timer.setTargetWuffer(&other.timer);
    QVERIFY(isShown(button));
    other.timer.window()->close();
    QVERIFY(!isShown(button));
}

void tst_FinishCombo::theButtonOfAStopwatchIsDisabled()
{
    TimerFixture t;
    t.chooseFinish(kWuffer);
    t.timer.stopwatch();
    QVERIFY(!t.part<QToolButton>("_linkButton").isEnabled());
    t.timer.stopwatch();
    QVERIFY(t.part<QToolButton>("_linkButton").isEnabled());
}

void tst_FinishCombo::anotherOptionCutsTheLink_data()
{
    QTest::addColumn<QString>("option");
    for (const QString &option : {kNothing, kLoop, kPreset})
        QTest::newRow(qPrintable(option)) << option;
}

void tst_FinishCombo::anotherOptionCutsTheLink()
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
    // Choosing the same option again changes nothing.
    t.timer.setTargetWuffer(&other.timer);
    t.chooseFinish(kWuffer);
    QCOMPARE(t.timer.getTargetWuffer(), &other.timer);
}

void tst_FinishCombo::keepWuffingNeedsNothingToFollow_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("may");
    QTest::newRow("nothing") << kNothing << true;
    QTest::newRow("loop") << kLoop << false;
    QTest::newRow("preset") << kPreset << false;
    QTest::newRow("other timer") << kWuffer << false;
}

void tst_FinishCombo::keepWuffingNeedsNothingToFollow()
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

void tst_FinishCombo::aMutedTimerCannotKeepWuffing()
{
    TimerFixture t;
    t.tick("_keepWuffingBox");
    t.set("soundOff", 1);
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
}

WUFFER_TEST(tst_FinishCombo)
#include "tst_FinishCombo.moc"
