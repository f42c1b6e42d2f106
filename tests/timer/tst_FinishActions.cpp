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

/// What follows the end of a countdown.
class tst_FinishActions final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void loopingCountsThePasses();
    void everyOtherActionForgetsThePasses_data();
    void everyOtherActionForgetsThePasses();
    void aPresetIsLoadedAndStarted();
    void aPresetStartedLeavesTheWindowWhereItIs();
    void presetsFollowEachOther();
    void theTenthPlaceRunsTheTimerAgain();
    void aRecordForTheTenthPlaceIsLoaded();
    void aPickerWithoutASelectionStartsPresetZero();
    void aLinkStartsTheOtherTimer();
    void aLinkWithoutATargetIsLogged();
    void aLinkToARunningTimerIsLogged();
    void aLinkToATimerInItsAlarmIsLogged();
    void nothingSelectedDoesNothing();

private:
    /// Runs a countdown of one second and its alarm to the end.
    static void finish(TimerFixture &t)
    {
        t.startCountdown(1);
        t.pass(1.1);
        t.sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
        t.pass(0.3);
    }
};

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

void tst_FinishActions::aRecordForTheTenthPlaceIsLoaded()
{
    TimerFixture t;
    t.defaults.setObject(QVariantMap{{QStringLiteral("title"), QStringLiteral("Ten")}},
                         QStringLiteral("Preset 10"));
    t.chooseFinish(kPreset);
    t.pick(9);
    finish(t);
    QCOMPARE(t.titleField.text(), QStringLiteral("Ten"));
}

void tst_FinishActions::aPickerWithoutASelectionStartsPresetZero()
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

void tst_FinishActions::aLinkWithoutATargetIsLogged()
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

WUFFER_TEST(tst_FinishActions)
#include "tst_FinishActions.moc"
