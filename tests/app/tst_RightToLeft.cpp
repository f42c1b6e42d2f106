#include "support/ConverterFixture.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"
#include "timer/TargetTimeSheet.h"

#include <QDateTimeEdit>

namespace
{
/// Where the text cursor of the field stands before the character at the place.
int cursorAt(QLineEdit &field, int place)
{
    field.setCursorPosition(place);
    // The field aligns its text when it is painted.
    field.grab();
    return field.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
}

int leftOf(const QWidget &widget)
{
    return widget.mapTo(widget.window(), QPoint()).x();
}
} // namespace

/// Where people read from right to left, windows are mirrored, but times and numbers are not.
class tst_RightToLeft final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }

    void theWindowOfATimerIsMirrored();
    void theFieldsOfATimeAreNot();
    void aDateReadsAsItDoesFromLeftToRight();
    void aDateStandsBesideItsWord();
    void theSignOfANumberStandsBeforeIt();
    void aNumberStandsBesideItsWord();
};

void tst_RightToLeft::theWindowOfATimerIsMirrored()
{
    const TimerFixture f;
    f.timer.window()->show();
    QVERIFY(leftOf(f.goButton()) < leftOf(f.part<QLineEdit>("_hoursField")));
    QVERIFY(leftOf(f.part<QCheckBox>("_fullScreenBox")) <
            leftOf(f.part<QCheckBox>("_keepWuffingBox")));
}

void tst_RightToLeft::theFieldsOfATimeAreNot()
{
    const TimerFixture f;
    f.timer.window()->show();
    int left = 0;
    for (const char *name : {"_hoursField", "_hoursWord", "_minutesField", "_minutesWord",
                             "_secondsField", "_secondsWord"}) {
        const auto &part = f.part<QWidget>(name);
        QVERIFY2(leftOf(part) > left, name);
        left = leftOf(part);
    }
    // The block of fields stands where the window begins.
    QVERIFY(f.timer.window()->width() - left < 100);
}

void tst_RightToLeft::aDateReadsAsItDoesFromLeftToRight()
{
    const TimerFixture f;
    QWidget parent;
    const QDateTime date(QDate(2027, 3, 14), QTime(14, 25, 7));
    const QLocale german(QLocale::German, QLocale::Germany);
    QLocale::setDefault(german);
    TargetTimeSheet sheet(parent);
    QLocale::setDefault(QLocale::system());
    sheet.setDateValue(date);
    QCOMPARE(child<QDateTimeEdit>(sheet, "_targetDateField").text(),
             QStringLiteral("14.03.2027  14:25:07"));
}

void tst_RightToLeft::aDateStandsBesideItsWord()
{
    const TimerFixture f;
    QWidget parent;
    TargetTimeSheet sheet(parent);
    sheet.show();
    auto &field =
        child<QLineEdit>(child<QDateTimeEdit>(sheet, "_targetDateField"), "qt_spinbox_lineedit");
    QVERIFY(field.width() - cursorAt(field, int(field.text().size())) < 20);
}

void tst_RightToLeft::theSignOfANumberStandsBeforeIt()
{
    const ConverterFixture f;
    NumberField &field = f.window.field("_cField");
    field.setText(QStringLiteral("-17"));
    QVERIFY(cursorAt(field, 0) < cursorAt(field, 1));
    QVERIFY(cursorAt(field, 1) < cursorAt(field, 3));
}

void tst_RightToLeft::aNumberStandsBesideItsWord()
{
    const ConverterFixture f;
    NumberField &field = f.window.field("_cField");
    field.setText(QStringLiteral("17"));
    QVERIFY(field.width() - cursorAt(field, 2) < 20);
}

WUFFER_TEST(tst_RightToLeft)
#include "tst_RightToLeft.moc"
