#include "support/TestMain.h"
#include "support/TimerFixture.h"
#include "timer/TargetTimeSheet.h"

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QLabel>

/// Counting down to a date picked in the sheet.
class tst_TargetTime final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theSheetBeginsAtTheDurationTyped();
    void nothingEarlierThanNowCanBePicked();
    void whatIsPickedIsAWholeSecond();
    void theCalendarAndTheFieldFollowEachOther();
    void theTimeAfterConfirmingIsAnOrdinaryCountdown();
    void theFractionOfTheSecondsIsCutByTheStart();
    void cancellingChangesNothing();
    void aRunningTimerDoesNotAsk();
    void aDateThatHasPassedMeanwhileEndsAtOnce();
    void theComputersClockDecidesOnlyWhatIsPicked();
    void changesOfSummerTimeAreCounted();
    void theSheetBeginsAnewEachTime();
    void confirmingHidesTheSheet();
    void aStartMeanwhileEndsTheSheet();
    void theSheetSaysHowLongThatIsFromNow();
    void howLongFollowsWhatIsPicked();
    void howLongFollowsTheClock();
    void nothingTicksWhileNoSheetIsOpen();
    void theHourIsSelectedWheneverTheSheetOpens();
    void theHourStaysSelectedWhenTheSheetGetsTheKeyboard();
    void theHourIsSelectedOnlyOnce();

private:
    static QString distance(const TimerFixture &t)
    {
        return child<QLabel>(sheet(t), "_targetDistance").text();
    }
    static QDateTimeEdit &field(const TimerFixture &t)
    {
        return child<QDateTimeEdit>(sheet(t), "_targetDateField");
    }
    static TargetTimeSheet &sheet(const TimerFixture &t)
    {
        return child<TargetTimeSheet>(*t.timer.window(), "_targetTimeWindow");
    }
};

void tst_TargetTime::theSheetBeginsAtTheDurationTyped()
{
    TimerFixture t;
    t.typeDuration(30, 0, 10);
    t.timer.targetTime();
    QVERIFY(sheet(t).isVisible());
    QCOMPARE(sheet(t).windowModality(), Qt::WindowModal);
    const QDateTime now = t.clock.calendarNow();
    QCOMPARE(sheet(t).dateValue().toSecsSinceEpoch(), now.toSecsSinceEpoch() + 108010);
}

void tst_TargetTime::nothingEarlierThanNowCanBePicked()
{
    TimerFixture t;
    t.timer.targetTime();
    const QDateTime now = t.clock.calendarNow();
    sheet(t).setDateValue(now.addDays(-3));
    QCOMPARE(sheet(t).dateValue().toSecsSinceEpoch(), now.toSecsSinceEpoch());
    const auto &calendar = child<QCalendarWidget>(sheet(t), "_targetCalendar");
    QCOMPARE(calendar.minimumDate(), now.date());
}

void tst_TargetTime::theCalendarAndTheFieldFollowEachOther()
{
    TimerFixture t;
    t.timer.targetTime();
    auto &calendar = child<QCalendarWidget>(sheet(t), "_targetCalendar");
    auto &field = child<QDateTimeEdit>(sheet(t), "_targetDateField");
    const QDate today = t.clock.calendarNow().date();
    calendar.setSelectedDate(today.addDays(5));
    QCOMPARE(field.date(), today.addDays(5));
    field.setDate(today.addDays(40));
    QCOMPARE(calendar.selectedDate(), today.addDays(40));
}

void tst_TargetTime::theTimeAfterConfirmingIsAnOrdinaryCountdown()
{
    TimerFixture t;
    t.timer.targetTime();
    sheet(t).setDateValue(t.clock.calendarNow().addSecs(7200));
    child<QDialogButtonBox>(sheet(t), "_targetButtons").button(QDialogButtonBox::Ok)->click();
    QVERIFY(!sheet(t).isVisible());
    QVERIFY(t.timer.isRunning());
    // The test clock begins at three eighths of a second.
    QCOMPARE(t.fields(), QStringLiteral("1 59 59.625"));
    QCOMPARE(t.display(), QStringLiteral("1h 59m 59s"));
    t.pass(7199.04);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_TargetTime::theFractionOfTheSecondsIsCutByTheStart()
{
    TimerFixture t;
    t.timer.targetTime();
    sheet(t).setDateValue(t.clock.calendarNow().addSecs(10));
    t.timer.startWithTargetTime();
    QCOMPARE(t.timer.targetDate()->timeIntervalSinceNow(), 9.0);
}

void tst_TargetTime::cancellingChangesNothing()
{
    TimerFixture t;
    t.typeDuration(0, 5, 0);
    t.timer.targetTime();
    sheet(t).setDateValue(t.clock.calendarNow().addSecs(7200));
    QTest::keyClick(&sheet(t), Qt::Key_Escape);
    QVERIFY(!sheet(t).isVisible());
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.fields(), QStringLiteral("0 5 0"));
}

void tst_TargetTime::aRunningTimerDoesNotAsk()
{
    TimerFixture t;
    t.startCountdown(60);
    t.timer.targetTime();
    QVERIFY(!t.timer.window()->findChild<TargetTimeSheet *>());
}

void tst_TargetTime::aDateThatHasPassedMeanwhileEndsAtOnce()
{
    TimerFixture t;
    t.timer.targetTime();
    t.pass(3);
    t.timer.startWithTargetTime();
    t.pass(0.04);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_TargetTime::theComputersClockDecidesOnlyWhatIsPicked()
{
    TimerFixture t;
    t.timer.targetTime();
    sheet(t).setDateValue(t.clock.calendarNow().addSecs(3600));
    t.timer.startWithTargetTime();
    t.clock.setCalendarOffset(86400);
    t.pass(1800);
    QCOMPARE(t.display(), QStringLiteral("29m 59s"));
}

void tst_TargetTime::changesOfSummerTimeAreCounted()
{
    TimerFixture t;
    const QDateTime now = t.clock.calendarNow();
    t.timer.targetTime();
    // In a zone with summer time, as one of those that this test runs in, the same time of day in
    // half a year is an hour nearer or farther.
    sheet(t).setDateValue(now.addDays(180));
    const qint64 expected = now.secsTo(now.addDays(180)) - 1;
    t.timer.startWithTargetTime();
    QCOMPARE(t.timer.targetDate()->timeIntervalSinceNow(), double(expected));
}

void tst_TargetTime::theSheetBeginsAnewEachTime()
{
    TimerFixture t;
    t.timer.targetTime();
    sheet(t).setDateValue(t.clock.calendarNow().addDays(3));
    t.timer.endTargetTimeSheet();
    t.pass(3600);
    t.typeDuration(0, 1, 0);
    t.timer.targetTime();
    const QDateTime now = t.clock.calendarNow();
    QCOMPARE(sheet(t).dateValue().toSecsSinceEpoch(), now.toSecsSinceEpoch() + 60);
    sheet(t).setDateValue(now.addDays(-3));
    QCOMPARE(sheet(t).dateValue().toSecsSinceEpoch(), now.toSecsSinceEpoch());
}

void tst_TargetTime::confirmingHidesTheSheet()
{
    TimerFixture t;
    t.timer.targetTime();
    t.timer.startWithTargetTime();
    QVERIFY(!sheet(t).isVisible());
}

void tst_TargetTime::aStartMeanwhileEndsTheSheet()
{
    TimerFixture t;
    t.typeDuration(0, 1, 0);
    t.timer.targetTime();
    t.pressGo();
    QVERIFY(!sheet(t).isVisible());
    QVERIFY(t.timer.isRunning());
}

void tst_TargetTime::whatIsPickedIsAWholeSecond()
{
    TimerFixture t;
    QVERIFY(t.clock.calendarNow().time().msec() != 0);
    t.timer.targetTime();
    QCOMPARE(sheet(t).dateValue().time().msec(), 0);
}

void tst_TargetTime::theSheetSaysHowLongThatIsFromNow()
{
    TimerFixture t;
    t.typeDuration(4, 12, 0);
    t.timer.targetTime();
    QCOMPARE(distance(t), QStringLiteral("in 4 h 12 min"));
    t.timer.endTargetTimeSheet();
    t.typeDuration(0, 0, 0);
    t.timer.targetTime();
    QCOMPARE(distance(t), QStringLiteral("now"));
}

void tst_TargetTime::howLongFollowsWhatIsPicked()
{
    TimerFixture t;
    t.typeDuration(4, 0, 0);
    t.timer.targetTime();
    field(t).stepUp();
    QCOMPARE(distance(t), QStringLiteral("in 5 h"));
    const QDate day = t.clock.calendarNow().date().addDays(1);
    child<QCalendarWidget>(sheet(t), "_targetCalendar").setSelectedDate(day);
    QCOMPARE(distance(t), QStringLiteral("in 1 d 5 h"));
}

void tst_TargetTime::howLongFollowsTheClock()
{
    TimerFixture t;
    t.typeDuration(0, 1, 30);
    t.timer.targetTime();
    QCOMPARE(distance(t), QStringLiteral("in 1 min 30 s"));
    t.pass(31);
    QCOMPARE(distance(t), QStringLiteral("in 59 s"));
    t.clock.setCalendarOffset(-3600);
    t.pass(1);
    QCOMPARE(distance(t), QStringLiteral("in 1 h"));
    t.clock.setCalendarOffset(0);
    t.pass(100);
    QCOMPARE(distance(t), QStringLiteral("now"));
}

void tst_TargetTime::nothingTicksWhileNoSheetIsOpen()
{
    TimerFixture t;
    QVERIFY(t.clock.isIdle());
    t.timer.targetTime();
    QVERIFY(!t.clock.isIdle());
    QTest::keyClick(&sheet(t), Qt::Key_Escape);
    QVERIFY(t.clock.isIdle());
}

void tst_TargetTime::theHourIsSelectedWheneverTheSheetOpens()
{
    TimerFixture t;
    t.timer.window()->show();
    for (int time = 1; time <= 2; ++time) {
        t.timer.targetTime();
        QCOMPARE(field(t).currentSection(), QDateTimeEdit::HourSection);
        const QString hour = t.clock.calendarNow().toString(QStringLiteral("HH"));
        QCOMPARE(child<QLineEdit>(field(t), "qt_spinbox_lineedit").selectedText(), hour);
        field(t).setSelectedSection(QDateTimeEdit::MinuteSection);
        t.timer.endTargetTimeSheet();
    }
}

void tst_TargetTime::theHourStaysSelectedWhenTheSheetGetsTheKeyboard()
{
    TimerFixture t;
    t.timer.window()->show();
    t.timer.targetTime();
    QVERIFY(QTest::qWaitForWindowActive(&sheet(t)));
    QVERIFY(field(t).hasFocus());
    QCOMPARE(field(t).currentSection(), QDateTimeEdit::HourSection);
    QVERIFY(!child<QLineEdit>(field(t), "qt_spinbox_lineedit").selectedText().isEmpty());
}

void tst_TargetTime::theHourIsSelectedOnlyOnce()
{
    TimerFixture t;
    t.timer.window()->show();
    t.timer.targetTime();
    QVERIFY(QTest::qWaitForWindowActive(&sheet(t)));
    field(t).setSelectedSection(QDateTimeEdit::MinuteSection);
    child<QCalendarWidget>(sheet(t), "_targetCalendar").setFocus();
    field(t).setFocus(Qt::MouseFocusReason);
    QCOMPARE(field(t).currentSection(), QDateTimeEdit::MinuteSection);
}

WUFFER_TEST(tst_TargetTime)
#include "tst_TargetTime.moc"
