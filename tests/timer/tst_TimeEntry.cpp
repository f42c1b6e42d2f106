#include "support/TestMain.h"
#include "support/TimerFixture.h"
#include "timer/TimeField.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QWheelEvent>

#include <functional>

namespace
{
/// A timer in its window, with a time in its fields.
class Typist final : public TimerFixture
{
public:
    explicit Typist(int hours = 0, int minutes = 4, int seconds = 57)
    {
        timer.setFieldsWithTimeLeft(hours * 3600.0 + minutes * 60.0 + seconds);
        timer.showWufferWindow();
        if (!QTest::qWaitForWindowActive(timer.window()))
            qFatal("the timer is not active");
    }

    /// Types into the widget that has the focus, which may change from key to key.
    static void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static void paste(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Paste);
    }
    [[nodiscard]] QLineEdit &field(const char *name) const { return part<QLineEdit>(name); }
};
} // namespace

/// How the user enters a time into the fields.
class tst_TimeEntry final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aTimeIsTypedAsPeopleWriteIt_data();
    void aTimeIsTypedAsPeopleWriteIt();
    void aColonSelectsTheNextNumber();
    void aNumberThatWasNotTypedGoesNowhere();
    void anotherFieldBeginsAnew();
    void aComposedTimeLeadsThroughTheFields();
    void whatIsDroppedFillsTheFields();
    void whatIsPastedIntoARunGoesNowhere();
    void whatWasBegunGoesOnWhenTheWindowComesBack();
    void aTextThatSaysATimeFillsAllFields_data();
    void aTextThatSaysATimeFillsAllFields();
    void whatWasPastedIsReplacedByTheNext();
    void aFractionIsSpreadWhenTheEditingEnds();
    void aFractionIsSpreadAtTheStart();
    void aFractionIsSpreadInAPreset();
    void aFractionIsSpreadForTheDateSheet();
    void aFractionOfTheProgramStaysAsItIs();
    void aFractionOfASecondStays();
    void everyWayToEditRemovesTheMarkOfAPreset_data();
    void everyWayToEditRemovesTheMarkOfAPreset();
    void everyFieldThatChangesTellsTheTimerBefore();
    void aNumberTypedOnAButtonGoesIntoTheFieldUsedLast();
    void lettersAndKeysOnAButtonGoNowhere();
    void aNumberTypedOnAButtonWhileItRunsGoesNowhere();
};

void tst_TimeEntry::aTimeIsTypedAsPeopleWriteIt_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("fields");
    const auto row = [](const char *text, const char *field, const char *fields) {
        QTest::addRow("%s in %s", text, field)
            << QString::fromLatin1(field) << QString::fromLatin1(fields);
    };
    // The fields hold 7 4 57.
    row("10", "_minutesField", "7 10 57");
    row("5:30", "_minutesField", "7 5 30");
    row("1:02:03", "_minutesField", "1 02 03");
    row("1:02:03", "_hoursField", "1 02 03");
    row("1:02:03", "_secondsField", "1 02 03");
    row("5:30", "_secondsField", "7 5 30");
    row("5:30", "_hoursField", "5 30 57");
    row("1:2:3:4", "_minutesField", "1 2 34");
    row(":30", "_minutesField", "7 4 30");
    row(":30", "_secondsField", "7 4 30");
    row("90s", "_minutesField", "7 0 90");
    row("90s", "_hoursField", "0 4 90");
    row("90s", "_secondsField", "7 4 90");
    row("1h", "_minutesField", "1 0 57");
    row("1h5m", "_minutesField", "1 5 57");
    row("1h5m30s", "_minutesField", "1 5 30");
    row("1H5M30S", "_hoursField", "1 5 30");
    row("5m30", "_minutesField", "7 5 30");
    row("5m", "_hoursField", "0 5 57");
    row("5m", "_secondsField", "7 5 0");
    row("1.5h", "_minutesField", "1 30 0");
    row("1,5h", "_hoursField", "1 30 0");
    row("1.5m", "_minutesField", "7 1 30");
    row("1.5:", "_minutesField", "7 1 30");
    row("2d", "_minutesField", "7 2 57");
    row("Rice", "_minutesField", "7 4 57");
    row("-5", "_minutesField", "7 -5 57");
    row("hms", "_minutesField", "7 4 57");
}

void tst_TimeEntry::aTimeIsTypedAsPeopleWriteIt()
{
    QFETCH(const QString, field);
    QFETCH(const QString, fields);
    const Typist t(7);
    t.field(field.toLatin1().constData()).setFocus(Qt::TabFocusReason);
    Typist::type(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0));
    QCOMPARE(t.fields(), fields);
}

void tst_TimeEntry::aColonSelectsTheNextNumber()
{
    const Typist t;
    Typist::type(QStringLiteral("5:"));
    QCOMPARE(QApplication::focusWidget(), &t.field("_secondsField"));
    QCOMPARE(t.field("_secondsField").selectedText(), QStringLiteral("57"));
    QCOMPARE(t.fields(), QStringLiteral("0 5 57"));
}

void tst_TimeEntry::aNumberThatWasNotTypedGoesNowhere()
{
    const Typist t;
    Typist::type(QStringLiteral("s"));
    QCOMPARE(t.fields(), QStringLiteral("0 4 57"));
    Typist::type(QStringLiteral("5"));
    Typist::press(Qt::Key_Backspace);
    Typist::type(QStringLiteral("s"));
    QCOMPARE(t.fields(), QStringLiteral("0  57"));
}

void tst_TimeEntry::anotherFieldBeginsAnew()
{
    const Typist t(7);
    Typist::type(QStringLiteral("5:3"));
    // Leaves the field and comes back; this ends the time typed before.
    Typist::press(Qt::Key_Backtab);
    Typist::press(Qt::Key_Tab);
    Typist::type(QStringLiteral("9:1"));
    QCOMPARE(t.fields(), QStringLiteral("7 9 1"));
}

void tst_TimeEntry::aComposedTimeLeadsThroughTheFields()
{
    const Typist t(7);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("5:30"));
    QCoreApplication::sendEvent(&t.field("_minutesField"), &composed);
    QCOMPARE(t.fields(), QStringLiteral("7 5 30"));
}

void tst_TimeEntry::whatIsDroppedFillsTheFields()
{
    const Typist t(7);
    auto &field = t.part<TimeField>("_secondsField");
    Q_EMIT field.textOffered(QStringLiteral("1h 5m"));
    QCOMPARE(t.fields(), QStringLiteral("1 5 0"));
    QCOMPARE(QApplication::focusWidget(), &field);
    t.titleField.setFocus();
    Q_EMIT field.textOffered(QStringLiteral("Rice"));
    QCOMPARE(QApplication::focusWidget(), &t.titleField);
}

void tst_TimeEntry::whatIsPastedIntoARunGoesNowhere()
{
    const Typist t;
    Typist::press(Qt::Key_Return);
    Q_EMIT t.part<TimeField>("_minutesField").textOffered(QStringLiteral("9"));
    QCOMPARE(t.fields(), QStringLiteral("0 4 57"));
}

void tst_TimeEntry::whatWasBegunGoesOnWhenTheWindowComesBack()
{
    const Typist t(7);
    QWidget other;
    Typist::type(QStringLiteral("1:0"));
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    t.timer.window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
    Typist::type(QStringLiteral("2:03"));
    QCOMPARE(t.fields(), QStringLiteral("1 02 03"));
}

void tst_TimeEntry::aTextThatSaysATimeFillsAllFields_data()
{
    QTest::addColumn<QString>("fields");
    const auto row = [](const char *text, const char *fields) {
        QTest::newRow(text) << QString::fromLatin1(fields);
    };
    // The fields hold 7 4 57, and the minutes have the focus.
    row("5:30", "0 5 30");
    row("1:02:03", "1 2 3");
    row("90s", "0 0 90");
    row("1h 5m", "1 5 0");
    row("1h05", "1 5 0");
    row("5 min", "0 5 0");
    row("1.5h", "1 30 0");
    row("1,5 h", "1 30 0");
    row("2d 3h", "51 0 0");
    row("25", "7 25 57");
    row(" 25\n", "7 25 57");
    row("-3", "7 -3 57");
    row("Rice", "7 4 57");
    row("", "7 4 57");
}

void tst_TimeEntry::aTextThatSaysATimeFillsAllFields()
{
    QFETCH(const QString, fields);
    const Typist t(7);
    Typist::paste(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(t.fields(), fields);
}

void tst_TimeEntry::whatWasPastedIsReplacedByTheNext()
{
    const Typist t;
    Typist::paste(QStringLiteral("1h 5m"));
    Typist::type(QStringLiteral("8"));
    QCOMPARE(t.fields(), QStringLiteral("1 8 0"));
    Typist::paste(QStringLiteral("6"));
    QCOMPARE(t.fields(), QStringLiteral("1 6 0"));
}

void tst_TimeEntry::aFractionIsSpreadWhenTheEditingEnds()
{
    const Typist t(7);
    Typist::type(QStringLiteral("2.25"));
    QCOMPARE(t.fields(), QStringLiteral("7 2.25 57"));
    Typist::press(Qt::Key_Tab);
    QCOMPARE(t.fields(), QStringLiteral("7 2 15"));
    t.field("_hoursField").setFocus(Qt::TabFocusReason);
    Typist::type(QStringLiteral("0,5"));
    Typist::press(Qt::Key_Tab);
    QCOMPARE(t.fields(), QStringLiteral("0 30 0"));
}

void tst_TimeEntry::aFractionIsSpreadAtTheStart()
{
    const Typist t(0, 4, 0);
    Typist::type(QStringLiteral("1.5"));
    Typist::press(Qt::Key_Return);
    QCOMPARE(t.display(), QStringLiteral("1m 30s"));
    QCOMPARE(t.fields(), QStringLiteral("0 1 30"));
}

void tst_TimeEntry::aFractionIsSpreadInAPreset()
{
    Typist t(0, 4, 0);
    Typist::type(QStringLiteral("1.5"));
    t.timer.setPreset(3);
    const QVariantMap record = t.defaults.dictionaryForKey(QStringLiteral("Preset 3"));
    QCOMPARE(record[QStringLiteral("minutes")].toInt(), 1);
    QCOMPARE(record[QStringLiteral("seconds")].toInt(), 30);
    QCOMPARE(t.milliseconds(), QStringLiteral("0h 1m 30s"));
}

void tst_TimeEntry::aFractionIsSpreadForTheDateSheet()
{
    Typist t(0, 4, 0);
    Typist::type(QStringLiteral("1.5"));
    t.timer.targetTime();
    QCOMPARE(t.fields(), QStringLiteral("0 1 30"));
    t.timer.endTargetTimeSheet();
}

void tst_TimeEntry::aFractionOfTheProgramStaysAsItIs()
{
    const Typist t;
    t.field("_minutesField").setText(QStringLiteral("1.5"));
    Typist::press(Qt::Key_Tab);
    QCOMPARE(t.fields(), QStringLiteral("0 1.5 57"));
    Typist::press(Qt::Key_Return);
    QCOMPARE(t.display(), QStringLiteral("1m 57s"));
}

void tst_TimeEntry::aFractionOfASecondStays()
{
    const Typist t;
    t.field("_secondsField").setFocus(Qt::TabFocusReason);
    Typist::type(QStringLiteral("5.4"));
    Typist::press(Qt::Key_Backtab);
    QCOMPARE(t.fields(), QStringLiteral("0 4 5.4"));
}

void tst_TimeEntry::everyWayToEditRemovesTheMarkOfAPreset_data()
{
    QTest::addColumn<std::function<void()>>("edit");
    const auto row = [](const char *name, std::function<void()> edit) {
        QTest::newRow(name) << std::move(edit);
    };
    row("a digit", [] { Typist::type(QStringLiteral("5")); });
    row("an arrow", [] { Typist::press(Qt::Key_Up); });
    row("the wheel", [] {
        QWidget &field = *QApplication::focusWidget();
        QWheelEvent event({5, 5}, field.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&field, &event);
    });
    row("a composed digit", [] {
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("5"));
        QCoreApplication::sendEvent(QApplication::focusWidget(), &composed);
    });
    row("a page key", [] { Typist::press(Qt::Key_PageDown); });
    row("a paste", [] { Typist::paste(QStringLiteral("5:30")); });
}

void tst_TimeEntry::everyWayToEditRemovesTheMarkOfAPreset()
{
    QFETCH(const std::function<void()>, edit);
    Typist t;
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 3"), false);
    t.timer.setPreset(3);
    QCOMPARE(t.color(), QColor(Qt::blue));
    Typist::type(QStringLiteral("h:x"));
    QCOMPARE(t.color(), QColor(Qt::blue));
    edit();
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsed(), QString());
}

void tst_TimeEntry::everyFieldThatChangesTellsTheTimerBefore()
{
    Typist t;
    TimerUser before;
    before.timer.setTargetWuffer(&t.timer);
    Typist::paste(QStringLiteral("1h 5m"));
    QCOMPARE(before.picker().currentText(), QStringLiteral("Wuffer - 1h 5m 0s"));
    Typist::type(QStringLiteral("8s"));
    QCOMPARE(before.picker().currentText(), QStringLiteral("Wuffer - 1h 0m 8s"));
    Typist::press(Qt::Key_Up);
    QCOMPARE(before.picker().currentText(), QStringLiteral("Wuffer - 1h 0m 9s"));
}

void tst_TimeEntry::aNumberTypedOnAButtonGoesIntoTheFieldUsedLast()
{
    const Typist t;
    t.part<QCheckBox>("_keepWuffingBox").setFocus(Qt::TabFocusReason);
    Typist::type(QStringLiteral("25"));
    QCOMPARE(t.fields(), QStringLiteral("0 25 57"));
    t.field("_secondsField").setFocus(Qt::TabFocusReason);
    t.goButton().setFocus(Qt::TabFocusReason);
    Typist::type(QStringLiteral("8"));
    QCOMPARE(t.fields(), QStringLiteral("0 25 8"));
}

void tst_TimeEntry::lettersAndKeysOnAButtonGoNowhere()
{
    const Typist t;
    t.part<QCheckBox>("_keepWuffingBox").setFocus();
    Typist::type(QStringLiteral("x:"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_5, Qt::AltModifier | Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), &t.part<QCheckBox>("_keepWuffingBox"));
    QCOMPARE(t.fields(), QStringLiteral("0 4 57"));
}

void tst_TimeEntry::aNumberTypedOnAButtonWhileItRunsGoesNowhere()
{
    const Typist t;
    Typist::press(Qt::Key_Return);
    Typist::type(QStringLiteral("5"));
    QVERIFY(t.timer.isRunning());
    QCOMPARE(t.fields(), QStringLiteral("0 4 57"));
}

WUFFER_TEST(tst_TimeEntry)
#include "tst_TimeEntry.moc"
