#include "support/TestMain.h"
#include "support/TimerFixture.h"

/// Typing into the window of a timer.
class tst_Editing final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void digitsTypedStraightAwayAreMinutes();
    void theNextTimeIsTypedWhereTheLastOneWas();
    void theFocusStaysWhereTheUserPutIt();
    void returnStartsFromANumberField();
    void returnPressesTheButtonInEveryState();
    void theEnterKeyOfTheKeypadDoesTheSame();
    void typingANameNamesTheWindow();
    void returnEndsTheNameWithoutStarting();
    void enterEndsTheNameWithoutStarting();
    void afterTheNameReturnStartsAgain();
    void aNameTypedOnAtOnceKeepsReturn();
    void leavingTheNameGivesReturnBack();
    void keepWuffingIsToggledOnce();
    void tabsWalkThroughTheWindowInOrder();
    void aNameThatIsErasedLeavesTheWindowWithoutOne();
    void theButtonsDoWhatTheySay();
    void aHeldReturnPressesOnce();
    void returnTakesANameThatWasOnlyLookedAt();

private:
    static void show(const TimerFixture &t);
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
};

void tst_Editing::show(const TimerFixture &t)
{
    t.timer.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
}

void tst_Editing::digitsTypedStraightAwayAreMinutes()
{
    TimerFixture t;
    show(t);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("25"));
    QCOMPARE(t.fields(), QStringLiteral("0 25 0"));
}

void tst_Editing::theNextTimeIsTypedWhereTheLastOneWas()
{
    TimerFixture t;
    show(t);
    press(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("5"));
    press(Qt::Key_Return);
    t.pass(5.1);
    press(Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("8"));
    QCOMPARE(t.fields(), QStringLiteral("0 0 8"));
}

void tst_Editing::theFocusStaysWhereTheUserPutIt()
{
    TimerFixture t;
    show(t);
    press(Qt::Key_Return);
    t.part<QCheckBox>("_keepWuffingBox").setFocus();
    press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), &t.part<QCheckBox>("_keepWuffingBox"));
    t.part<QPushButton>("_goButton").setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    QCOMPARE(QApplication::focusWidget(), &t.part<QPushButton>("_goButton"));
}

void tst_Editing::returnStartsFromANumberField()
{
    TimerFixture t;
    show(t);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("5"));
    press(Qt::Key_Return);
    QCOMPARE(t.display(), QStringLiteral("5m 0s"));
    QVERIFY(t.timer.isRunning());
}

void tst_Editing::returnPressesTheButtonInEveryState()
{
    TimerFixture t;
    show(t);
    press(Qt::Key_Return);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    t.pass(0.05);
    QCOMPARE(t.go(), QStringLiteral("Reset"));
    press(Qt::Key_Return);
    QCOMPARE(t.go(), QStringLiteral("Start"));
    t.timer.stopwatch();
    press(Qt::Key_Return);
    QVERIFY(t.timer.isRunning());
    t.pass(1);
    press(Qt::Key_Return);
    QVERIFY(!t.timer.isRunning());
}

void tst_Editing::theEnterKeyOfTheKeypadDoesTheSame()
{
    TimerFixture t;
    show(t);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    QVERIFY(t.timer.isRunning());
}

void tst_Editing::typingANameNamesTheWindow()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    QCOMPARE(t.timer.window()->windowTitle(), QStringLiteral("Tea"));
}

void tst_Editing::returnEndsTheNameWithoutStarting()
{
    TimerFixture t;
    show(t);
    auto &name = t.part<QLineEdit>("_titleField");
    name.setFocus();
    t.typeName(QStringLiteral("Tea"));
    press(Qt::Key_Return);
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.timer.title(), QStringLiteral("Tea"));
}

void tst_Editing::afterTheNameReturnStartsAgain()
{
    TimerFixture t;
    show(t);
    auto &name = t.part<QLineEdit>("_titleField");
    name.setFocus();
    t.typeName(QStringLiteral("Tea"));
    press(Qt::Key_Return);
    t.pass(0.009);
    press(Qt::Key_Return);
    QVERIFY(!t.timer.isRunning());
    t.pass(0.011);
    press(Qt::Key_Return);
    QVERIFY(t.timer.isRunning());
}

void tst_Editing::leavingTheNameGivesReturnBack()
{
    TimerFixture t;
    show(t);
    auto &name = t.part<QLineEdit>("_titleField");
    name.setFocus();
    t.typeName(QStringLiteral("Tea"));
    press(Qt::Key_Tab);
    t.pass(0.011);
    press(Qt::Key_Return);
    QVERIFY(t.timer.isRunning());
}

void tst_Editing::keepWuffingIsToggledOnce()
{
    TimerFixture t;
    auto &box = t.part<QCheckBox>("_keepWuffingBox");
    box.click();
    QVERIFY(box.isChecked());
    t.timer.toggleKeepWuffing();
    QVERIFY(!box.isChecked());
}

void tst_Editing::tabsWalkThroughTheWindowInOrder()
{
    TimerFixture t;
    show(t);
    t.part<QLineEdit>("_titleField").setFocus();
    QStringList walk;
    for (int i = 0; i < 9; ++i) {
        walk << QApplication::focusWidget()->objectName();
        press(Qt::Key_Tab);
    }
    const QStringList expected{QStringLiteral("_titleField"),
                               QStringLiteral("_hoursField"),
                               QStringLiteral("_minutesField"),
                               QStringLiteral("_secondsField"),
                               QStringLiteral("_goButton"),
                               QStringLiteral("_keepWuffingBox"),
                               QStringLiteral("_fullScreenBox"),
                               QStringLiteral("_soundOffImage"),
                               QStringLiteral("_finishedDrawerButton")};
    QCOMPARE(walk, expected);
    // The drawer is closed, so the last Tab has gone back to the first control.
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("_titleField"));
}

void tst_Editing::aNameThatIsErasedLeavesTheWindowWithoutOne()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    auto &name = t.part<QLineEdit>("_titleField");
    name.selectAll();
    QTest::keyClick(&name, Qt::Key_Backspace);
    QCOMPARE(t.timer.window()->windowTitle(), QString());
    QCOMPARE(t.timer.title(), QStringLiteral("Wuffer"));
}

void tst_Editing::theButtonsDoWhatTheySay()
{
    TimerFixture t;
    show(t);
    auto &options = t.part<QPushButton>("_finishedDrawerButton");
    QTest::mouseClick(&options, Qt::LeftButton);
    QCOMPARE(options.text(), QStringLiteral("Hide Options"));
    auto &combo = t.part<QComboBox>("_finishedCombo");
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentText(), QStringLiteral("Loop this Wuffer"));
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
    QTest::mouseClick(&t.part<QPushButton>("_goButton"), Qt::LeftButton);
    QVERIFY(t.timer.isRunning());
}

void tst_Editing::aHeldReturnPressesOnce()
{
    TimerFixture t;
    show(t);
    t.typeDuration(0, 5, 0);
    QWindow *window = t.timer.window()->windowHandle();
    QTest::simulateEvent(window, true, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), false);
    QTest::simulateEvent(window, true, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QVERIFY(t.timer.isRunning());
}

void tst_Editing::returnTakesANameThatWasOnlyLookedAt()
{
    TimerFixture t;
    show(t);
    press(Qt::Key_Return);
    QVERIFY(t.timer.isRunning());
    t.timer.rename();
    press(Qt::Key_Return);
    QVERIFY(t.timer.isRunning());
    t.pass(0.02);
    press(Qt::Key_Return);
    QVERIFY(!t.timer.isRunning());
}

void tst_Editing::enterEndsTheNameWithoutStarting()
{
    TimerFixture t;
    show(t);
    t.titleField.setFocus();
    t.typeName(QStringLiteral("Tea"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    QVERIFY(!t.timer.isRunning());
}

void tst_Editing::aNameTypedOnAtOnceKeepsReturn()
{
    TimerFixture t;
    show(t);
    t.titleField.setFocus();
    t.typeName(QStringLiteral("Tea"));
    press(Qt::Key_Return);
    t.typeName(QStringLiteral("Green tea"));
    t.pass(0.02);
    press(Qt::Key_Return);
    QVERIFY(!t.timer.isRunning());
}

WUFFER_TEST(tst_Editing)
#include "tst_Editing.moc"
