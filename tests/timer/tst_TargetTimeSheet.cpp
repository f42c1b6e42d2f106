#include "support/ClockFixture.h"
#include "support/Find.h"
#include "support/TestMain.h"
#include "timer/TargetTimeSheet.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

namespace
{
/// The sheet over a window, not shown yet, which asks for a time in four hours.
struct Fixture : ClockFixture
{
    Fixture()
    {
        parent.show();
        sheet.setMinDate(clock.calendarNow());
        sheet.setDateValue(clock.calendarNow().addSecs(4 * 3600));
    }

    [[nodiscard]] QDateTimeEdit &field() const
    {
        return child<QDateTimeEdit>(sheet, "_targetDateField");
    }
    [[nodiscard]] QCalendarWidget &calendar() const
    {
        return child<QCalendarWidget>(sheet, "_targetCalendar");
    }
    [[nodiscard]] QString distance() const
    {
        return child<QLabel>(sheet, "_targetDistance").text();
    }
    [[nodiscard]] QPushButton &button(QDialogButtonBox::StandardButton which) const
    {
        return *child<QDialogButtonBox>(sheet, "_targetButtons").button(which);
    }

    QWidget parent;
    TargetTimeSheet sheet{parent};
};

/// The style of a desktop whose buttons have icons, for as long as it lives.
class ButtonsWithIcons final
{
public:
    ButtonsWithIcons() { QApplication::setStyle(new Style); }
    ~ButtonsWithIcons() { QApplication::setStyle(_usual); }
    Q_DISABLE_COPY_MOVE(ButtonsWithIcons)

private:
    class Style final : public QProxyStyle
    {
    public:
        int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                      QStyleHintReturn *data) const override
        {
            return hint == SH_DialogButtonBox_ButtonsHaveIcons
                       ? 1
                       : QProxyStyle::styleHint(hint, option, widget, data);
        }
    };

    const QString _usual = QApplication::style()->name();
};
} // namespace

/// The sheet by itself. What a timer makes of it is tested in tst_TargetTime.
class tst_TargetTimeSheet final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theDateIsWrittenAsTheUserDoes_data();
    void theDateIsWrittenAsTheUserDoes();
    void theButtonsSayWhatTheyDo();
    void theCalendarHasNoNumbersOfWeeks();
    void theArrowsOfTheCalendarHaveNames();
    void theSheetBlocksItsWindowOnly();
    void startAcceptsAndHides();
    void cancelRejectsAndHides();
    void thePartsOfASecondAreLeftOut();
    void nothingEarlierCanBePicked();
    void theCalendarAndTheFieldFollowEachOther();
    void theDistanceIsFromTheMomentOfOpening();
    void theDistanceFollowsTheClockEachSecond();
    void nothingTicksUnlessTheSheetIsInSight();
    void theHourIsSelectedAtEachOpening();
    void theHourStaysSelectedUntilTheUserSelectsAnother();
    void theOpenSheetCanBeDestroyed();
    void showingTheOpenSheetAgainKeepsTheSelection();
};

void tst_TargetTimeSheet::theDateIsWrittenAsTheUserDoes_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("format");
    const auto row = [](const char *name, const char *locale, const char *format) {
        QTest::newRow(name) << QString::fromLatin1(locale) << QString::fromLatin1(format);
    };
    row("two digits of the year and half days", "en_US", "M/d/yyyy  h:mm:ss AP");
    row("two digits of the year and whole days", "de_DE", "dd.MM.yyyy  HH:mm:ss");
    row("four digits of the year", "sv_SE", "yyyy-MM-dd  HH:mm:ss");
}

void tst_TargetTimeSheet::theDateIsWrittenAsTheUserDoes()
{
    QFETCH(const QString, locale);
    const QLocale usual;
    QLocale::setDefault(QLocale(locale));
    const Fixture f;
    QLocale::setDefault(usual);
    QTEST(f.field().displayFormat(), "format");
}

void tst_TargetTimeSheet::theButtonsSayWhatTheyDo()
{
    const ButtonsWithIcons style;
    const QDialogButtonBox ordinary(QDialogButtonBox::Ok);
    QVERIFY(!ordinary.button(QDialogButtonBox::Ok)->icon().isNull());
    const Fixture f;
    QCOMPARE(f.button(QDialogButtonBox::Ok).text(), QStringLiteral("Start"));
    for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel})
        QVERIFY(f.button(which).icon().isNull());
}

void tst_TargetTimeSheet::theCalendarHasNoNumbersOfWeeks()
{
    const Fixture f;
    QCOMPARE(f.calendar().verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
}

void tst_TargetTimeSheet::theArrowsOfTheCalendarHaveNames()
{
    const Fixture f;
    QStringList names;
    for (QToolButton *button : f.calendar().findChildren<QToolButton *>())
        names.append(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name));

    QCOMPARE(names.first(2),
             QStringList({QStringLiteral("Previous month"), QStringLiteral("Next month")}));
    QVERIFY(!names.contains(QString()));
}

void tst_TargetTimeSheet::theSheetBlocksItsWindowOnly()
{
    const Fixture f;
    QCOMPARE(f.sheet.windowModality(), Qt::WindowModal);
    QCOMPARE(f.sheet.parentWidget(), &f.parent);
    QVERIFY(f.sheet.windowFlags().testFlag(Qt::Sheet));
}

void tst_TargetTimeSheet::startAcceptsAndHides()
{
    Fixture f;
    const QSignalSpy accepted(&f.sheet, &QDialog::accepted);
    f.sheet.open();
    f.button(QDialogButtonBox::Ok).click();
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!f.sheet.isVisible());
}

void tst_TargetTimeSheet::cancelRejectsAndHides()
{
    Fixture f;
    const QSignalSpy rejected(&f.sheet, &QDialog::rejected);
    f.sheet.open();
    f.button(QDialogButtonBox::Cancel).click();
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!f.sheet.isVisible());
}

void tst_TargetTimeSheet::thePartsOfASecondAreLeftOut()
{
    Fixture f;
    const QDateTime now = f.clock.calendarNow();
    QVERIFY(now.time().msec() != 0);
    QCOMPARE(f.sheet.dateValue().time().msec(), 0);
    // Nor does the earliest moment have them.
    f.sheet.setDateValue(now);
    QCOMPARE(f.sheet.dateValue(), now.addMSecs(-now.time().msec()));
}

void tst_TargetTimeSheet::nothingEarlierCanBePicked()
{
    Fixture f;
    const QDateTime now = f.clock.calendarNow();
    f.sheet.setDateValue(now.addSecs(-60));
    QCOMPARE(f.sheet.dateValue().toSecsSinceEpoch(), now.toSecsSinceEpoch());
    QCOMPARE(f.calendar().minimumDate(), now.date());
}

void tst_TargetTimeSheet::theCalendarAndTheFieldFollowEachOther()
{
    Fixture f;
    const QTime time = f.field().time();
    const QDate day = f.clock.calendarNow().date().addDays(5);
    f.calendar().setSelectedDate(day);
    QCOMPARE(f.sheet.dateValue(), QDateTime(day, time));
    f.field().setDate(day.addDays(35));
    QCOMPARE(f.calendar().selectedDate(), day.addDays(35));
}

void tst_TargetTimeSheet::theDistanceIsFromTheMomentOfOpening()
{
    Fixture f;
    f.sheet.setDateValue(f.clock.calendarNow().addSecs(90));
    f.clock.advance(30);
    f.sheet.open();
    QCOMPARE(f.distance(), QStringLiteral("in 1 min"));
    f.field().setDateTime(f.field().dateTime().addSecs(60));
    QCOMPARE(f.distance(), QStringLiteral("in 2 min"));
}

void tst_TargetTimeSheet::theDistanceFollowsTheClockEachSecond()
{
    Fixture f;
    f.sheet.setDateValue(f.clock.calendarNow().addSecs(59));
    f.sheet.open();
    for (const int left : {58, 57, 56}) {
        f.clock.advance(1);
        QCOMPARE(f.distance(), QStringLiteral("in %1 s").arg(left));
    }
    QCOMPARE(f.clock.wakeUps(), 3);
}

void tst_TargetTimeSheet::nothingTicksUnlessTheSheetIsInSight()
{
    Fixture f;
    QVERIFY(f.clock.isIdle());
    f.sheet.open();
    QVERIFY(!f.clock.isIdle());
    f.sheet.hide();
    QVERIFY(f.clock.isIdle());
}

void tst_TargetTimeSheet::theHourIsSelectedAtEachOpening()
{
    Fixture f;
    for (int opening = 1; opening <= 2; ++opening) {
        f.sheet.open();
        QCOMPARE(f.field().currentSection(), QDateTimeEdit::HourSection);
        f.field().setSelectedSection(QDateTimeEdit::MinuteSection);
        f.sheet.hide();
    }
}

void tst_TargetTimeSheet::theHourStaysSelectedUntilTheUserSelectsAnother()
{
    Fixture f;
    f.sheet.open();
    QVERIFY(QTest::qWaitForWindowActive(&f.sheet));
    QVERIFY(f.field().hasFocus());
    QCOMPARE(f.field().currentSection(), QDateTimeEdit::HourSection);
    f.field().setSelectedSection(QDateTimeEdit::MinuteSection);
    f.calendar().setFocus();
    f.field().setFocus(Qt::MouseFocusReason);
    QCOMPARE(f.field().currentSection(), QDateTimeEdit::MinuteSection);
}

void tst_TargetTimeSheet::theOpenSheetCanBeDestroyed()
{
    auto f = std::make_unique<Fixture>();
    f->sheet.open();
    QVERIFY(QTest::qWaitForWindowActive(&f->sheet));
    QVERIFY(f->field().hasFocus());
    const QPointer<QDateTimeEdit> field(&f->field());
    f.reset();
    QVERIFY(!field);
}

void tst_TargetTimeSheet::showingTheOpenSheetAgainKeepsTheSelection()
{
    Fixture f;
    f.sheet.open();
    QVERIFY(QTest::qWaitForWindowActive(&f.sheet));
    f.field().setSelectedSection(QDateTimeEdit::MinuteSection);
    f.sheet.open();
    QCOMPARE(f.field().currentSection(), QDateTimeEdit::MinuteSection);
}

WUFFER_TEST(tst_TargetTimeSheet)
#include "tst_TargetTimeSheet.moc"
