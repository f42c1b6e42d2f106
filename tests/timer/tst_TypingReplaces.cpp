#include "support/TestMain.h"
#include "support/TimerFixture.h"

/// Once a timer is ready to be set, the first digits typed replace the number in the focused field.
class tst_TypingReplaces final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void ofTheTimerOfTheLastTime();
    void ofANewTimer();
    void ofAPreset();
    void afterAStop();
    void afterAStopInTheFieldThatWasUsedLast();
    void afterAResetOfARun();
    void afterAResetOfAnIdleTimer();
    void afterTheAlarm();
    void afterTheAlarmWasReset();
    void inAStopwatch();
    void whenTheWindowComesBack();
    void afterAMenu();
    void notWhatWasBegunBeforeAMenu();
    void notWhereTheUserHasPutTheCaret();
    void notAfterAnEdit();
    void theNameKeepsTheFocus();
    void aBoxKeepsTheFocus();
    void aClickOnTheButtonLeavesTheFocusInTheField();
    void nothingIsSelectedWhileItRuns();
    void selectingKeepsTheMarkOfAPreset();
    void theWheelChangesNoClosedBox();

private:
    static void show(const TimerFixture &t);
    static void turnTo(QWidget &other);
    static void type(const char *text);
    /// Moves the focus to the menu bar and back, as Alt and Escape do.
    static void openAndCloseMenuBar()
    {
        for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
            QFocusEvent event(type, Qt::MenuBarFocusReason);
            QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
        }
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
};

void tst_TypingReplaces::show(const TimerFixture &t)
{
    t.timer.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
}

void tst_TypingReplaces::turnTo(QWidget &other)
{
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
}

void tst_TypingReplaces::type(const char *text)
{
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
}

void tst_TypingReplaces::ofTheTimerOfTheLastTime()
{
    TimerFixture t;
    t.set("defaultWufferSettings",
          QVariantMap{{QStringLiteral("minutes"), 4}, {QStringLiteral("seconds"), 57}});
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("defaultWufferSettings"), true);
    show(t);
    type("10");
    QCOMPARE(t.fields(), QStringLiteral("0 10 57"));
}

void tst_TypingReplaces::ofANewTimer()
{
    TimerFixture t;
    show(t);
    type("25");
    QCOMPARE(t.fields(), QStringLiteral("0 25 0"));
}

void tst_TypingReplaces::ofAPreset()
{
    TimerFixture t;
    t.set("Preset 3", QVariantMap{{QStringLiteral("minutes"), 25}});
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 3"), true);
    show(t);
    type("5");
    QCOMPARE(t.fields(), QStringLiteral("0 5 0"));
}

void tst_TypingReplaces::afterAStop()
{
    TimerFixture t;
    show(t);
    type("5");
    press(Qt::Key_Return);
    t.pass(62);
    press(Qt::Key_Return);
    type("8");
    QCOMPARE(t.fields().section(QLatin1Char(' '), 0, 1), QStringLiteral("0 8"));
}

void tst_TypingReplaces::afterAStopInTheFieldThatWasUsedLast()
{
    TimerFixture t;
    show(t);
    t.typeDuration(1, 2, 3);
    t.part<QLineEdit>("_hoursField").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    t.pass(10);
    press(Qt::Key_Return);
    type("2");
    QCOMPARE(t.fields().section(QLatin1Char(' '), 0, 1), QStringLiteral("2 1"));
}

void tst_TypingReplaces::afterAResetOfARun()
{
    TimerFixture t;
    show(t);
    type("5");
    press(Qt::Key_Return);
    t.pass(62);
    t.timer.resetWuffer();
    type("7");
    QCOMPARE(t.fields(), QStringLiteral("0 7 0"));
}

void tst_TypingReplaces::afterAResetOfAnIdleTimer()
{
    TimerFixture t;
    show(t);
    type("5");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    press(Qt::Key_End);
    t.timer.resetWuffer();
    type("7");
    QCOMPARE(t.fields(), QStringLiteral("0 7 0"));
}

void tst_TypingReplaces::afterTheAlarm()
{
    TimerFixture t;
    show(t);
    type("5");
    press(Qt::Key_Return);
    t.pass(301);
    t.sounds.endAll();
    t.pass(0.3);
    QCOMPARE(t.go(), QStringLiteral("Start"));
    type("8");
    QCOMPARE(t.fields(), QStringLiteral("0 8 0"));
}

void tst_TypingReplaces::afterTheAlarmWasReset()
{
    TimerFixture t;
    show(t);
    type("5");
    press(Qt::Key_Return);
    t.pass(301);
    press(Qt::Key_Return);
    type("8");
    QCOMPARE(t.fields(), QStringLiteral("0 8 0"));
}

void tst_TypingReplaces::inAStopwatch()
{
    TimerFixture t;
    show(t);
    t.typeDuration(1, 2, 3);
    t.timer.stopwatch();
    type("8");
    QCOMPARE(t.fields(), QStringLiteral("0 8 0"));
    t.timer.stopwatch();
    t.timer.stopwatch();
    type("9");
    QCOMPARE(t.fields(), QStringLiteral("0 9 0"));
}

void tst_TypingReplaces::whenTheWindowComesBack()
{
    TimerFixture t;
    QWidget other;
    show(t);
    turnTo(other);
    t.typeDuration(0, 4, 57);
    show(t);
    type("10");
    QCOMPARE(t.fields(), QStringLiteral("0 10 57"));
}

void tst_TypingReplaces::afterAMenu()
{
    TimerFixture t;
    show(t);
    t.timer.setFieldsWithTimeLeft(297);
    openAndCloseMenuBar();
    type("10");
    QCOMPARE(t.fields(), QStringLiteral("0 10 57"));
}

void tst_TypingReplaces::notWhatWasBegunBeforeAMenu()
{
    TimerFixture t;
    show(t);
    type("1");
    openAndCloseMenuBar();
    type("0");
    QCOMPARE(t.fields(), QStringLiteral("0 10 0"));
}

void tst_TypingReplaces::notWhereTheUserHasPutTheCaret()
{
    TimerFixture t;
    QWidget other;
    show(t);
    t.timer.setFieldsWithTimeLeft(300);
    press(Qt::Key_End);
    turnTo(other);
    show(t);
    type("0");
    QCOMPARE(t.fields(), QStringLiteral("0 50 0"));
    // A caret set with the mouse stays, too.
    t.timer.setFieldsWithTimeLeft(300);
    auto &minutes = t.part<QLineEdit>("_minutesField");
    QTest::mouseClick(&minutes, Qt::LeftButton, {}, minutes.rect().center());
    QVERIFY(!minutes.hasSelectedText());
    turnTo(other);
    show(t);
    QVERIFY(!minutes.hasSelectedText());
}

void tst_TypingReplaces::notAfterAnEdit()
{
    TimerFixture t;
    QWidget other;
    show(t);
    type("5");
    turnTo(other);
    show(t);
    type("0");
    QCOMPARE(t.fields(), QStringLiteral("0 50 0"));
}

void tst_TypingReplaces::theNameKeepsTheFocus()
{
    TimerFixture t;
    show(t);
    t.titleField.setFocus();
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("defaultWufferSettings"), true);
    t.pressGo();
    t.pressGo();
    t.timer.resetWuffer();
    QCOMPARE(QApplication::focusWidget(), &t.titleField);
    type("2 eggs");
    QCOMPARE(t.timer.title(), QStringLiteral("2 eggs"));
}

void tst_TypingReplaces::aBoxKeepsTheFocus()
{
    TimerFixture t;
    show(t);
    t.timer.showHideAdvanced();
    auto &box = t.part<QComboBox>("_finishedCombo");
    box.setFocus();
    t.pressGo();
    t.pressGo();
    t.timer.resetWuffer();
    QCOMPARE(QApplication::focusWidget(), &box);
    const QString fields = t.fields();
    type("8");
    QCOMPARE(t.fields(), fields);
}

void tst_TypingReplaces::aClickOnTheButtonLeavesTheFocusInTheField()
{
    TimerFixture t;
    show(t);
    type("5");
    QTest::mouseClick(&t.goButton(), Qt::LeftButton);
    QVERIFY(t.timer.isRunning());
    t.pass(10);
    QTest::mouseClick(&t.goButton(), Qt::LeftButton);
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(QApplication::focusWidget(), &t.part<QLineEdit>("_minutesField"));
    type("8");
    QCOMPARE(t.fields().section(QLatin1Char(' '), 0, 1), QStringLiteral("0 8"));
}

void tst_TypingReplaces::nothingIsSelectedWhileItRuns()
{
    // In a window that is not active.
    TimerFixture t;
    t.timer.setFieldsWithTimeLeft(300);
    const auto &minutes = t.part<QLineEdit>("_minutesField");
    QVERIFY(minutes.hasSelectedText());
    t.pressGo();
    QVERIFY(!minutes.hasSelectedText());
    t.pressGo();
    QVERIFY(minutes.hasSelectedText());
}

void tst_TypingReplaces::selectingKeepsTheMarkOfAPreset()
{
    TimerFixture t;
    t.set("Preset 3", QVariantMap{{QStringLiteral("minutes"), 25}});
    show(t);
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 3"), true);
    QCOMPARE(t.part<QLineEdit>("_minutesField").selectedText(), QStringLiteral("25"));
    QCOMPARE(t.elapsed(), QStringLiteral("Preset 3"));
    QCOMPARE(t.color(), QColor(Qt::blue));
    type("5");
    QCOMPARE(t.elapsed(), QString());
    QCOMPARE(t.color(), QColor(Qt::black));
}

void tst_TypingReplaces::theWheelChangesNoClosedBox()
{
    TimerFixture t;
    show(t);
    t.timer.showHideAdvanced();
    t.chooseFinish(QStringLiteral("Start a Preset"));
    for (auto *box : t.timer.window()->findChildren<QComboBox *>()) {
        const int before = box->currentIndex();
        box->setFocus();
        for (const int eighths : {-120, 120}) {
            QWheelEvent event({5, 5}, box->mapToGlobal(QPointF(5, 5)), {}, {0, eighths},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(box, &event);
            QCOMPARE(box->currentIndex(), before);
        }
    }
}

WUFFER_TEST(tst_TypingReplaces)
#include "tst_TypingReplaces.moc"
