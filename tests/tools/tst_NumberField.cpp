#include "support/NumberFieldFixture.h"
#include "support/TestMain.h"

/// Typing in a field whose number is set at each keystroke.
class tst_NumberField final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberIsShownAndReadInTheUsersLocale();
    void selectingMovesTheFocus();
    void aNumberSetByTheProgramIsNoEdit();
    void aTextThatReadsAsTheNumberStays_data();
    void aTextThatReadsAsTheNumberStays();
    void typingThatStaysCanBeUndone();
    void typingGoesOnFromWhatWasTyped();
    void deletingGoesOnFromWhatWasTyped();
    void typingInTheMiddleGoesOnThere();
    void deletingInTheMiddleGoesOnThere();
    void pastingGoesOnFromWhatWasTyped();
    void movingTheCursorKeepsWhatWasTyped();
    void selectingKeepsWhatWasTyped();
    void aNumberSetLaterTakesThePlaceOfWhatWasTyped();
    void anEmptiedFieldStaysEmpty();
    void anInputMethodMayDeleteWhatWasTyped();
    void aShorterNumberKeepsThePlaceOfTheTyping();
};

void tst_NumberField::aNumberIsShownAndReadInTheUsersLocale()
{
    const QLocale usual;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    NumberField field;
    field.setFloatValue(12.5F);
    QCOMPARE(field.text(), QStringLiteral("12,5"));
    field.setText(QStringLiteral("1.234,75 g"));
    QCOMPARE(field.floatValue(), 1234.75F);
    QLocale::setDefault(usual);
}

void tst_NumberField::selectingMovesTheFocus()
{
    QWidget window;
    NumberField first(&window);
    NumberField second(&window);
    second.setFloatValue(7.0F);
    window.show();
    first.setFocus();
    second.selectText();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(second.hasFocus());
    QCOMPARE(second.selectedText(), QStringLiteral("7"));
}

void tst_NumberField::aNumberSetByTheProgramIsNoEdit()
{
    NumberFieldFixture f;
    f.field.setFloatValue(7.0F);
    QCOMPARE(f.typed, QList<float>());
}

void tst_NumberField::aTextThatReadsAsTheNumberStays_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("a point at the end") << QStringLiteral("12.");
    QTest::newRow("zeros at the end") << QStringLiteral("12.50");
    QTest::newRow("zeros after the point") << QStringLiteral("0.00");
    QTest::newRow("zeros at the beginning") << QStringLiteral("007");
    QTest::newRow("a sign") << QStringLiteral("-");
    QTest::newRow("an exponent") << QStringLiteral("1e3");
    QTest::newRow("half an exponent") << QStringLiteral("1e");
}

void tst_NumberField::aTextThatReadsAsTheNumberStays()
{
    QFETCH(const QString, keys);
    NumberFieldFixture f;
    QTest::keyClicks(&f.field, keys);
    QCOMPARE(f.shown(), keys + QLatin1Char('|'));
}

void tst_NumberField::typingThatStaysCanBeUndone()
{
    NumberFieldFixture f;
    f.type("12");
    f.field.undo();
    QCOMPARE(f.field.text(), QStringLiteral("0"));
}

void tst_NumberField::typingGoesOnFromWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("1");
    QCOMPARE(f.shown(), QStringLiteral("1|"));
    f.type("2.5");
    QCOMPARE(f.typed, QList<float>({1.0F, 12.0F, 12.0F, 12.5F}));
    QCOMPARE(f.shown(), QStringLiteral("12.5|"));
}

void tst_NumberField::deletingGoesOnFromWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("36");
    f.press(Qt::Key_Backspace);
    QCOMPARE(f.typed.back(), 3.0F);
    f.press(Qt::Key_Backspace);
    QCOMPARE(f.typed.back(), 0.0F);
    QCOMPARE(f.shown(), QStringLiteral("|"));
    f.type("8");
    QCOMPARE(f.typed.back(), 8.0F);
}

void tst_NumberField::typingInTheMiddleGoesOnThere()
{
    NumberFieldFixture f(kALittleMore);
    f.field.setFloatValue(45.0F);
    f.press(Qt::Key_Home);
    f.type("12");
    QCOMPARE(f.typed, QList<float>({145.0F, 1245.0F}));
    QCOMPARE(f.field.cursorPosition(), 2);
    f.type(".");
    QCOMPARE(f.typed.back(), 12.45F);
}

void tst_NumberField::deletingInTheMiddleGoesOnThere()
{
    NumberFieldFixture f(kALittleMore);
    f.field.setFloatValue(1234.0F);
    f.press(Qt::Key_Home);
    f.press(Qt::Key_Delete);
    f.press(Qt::Key_Delete);
    QCOMPARE(f.typed, QList<float>({234.0F, 34.0F}));
    f.type("5");
    f.press(Qt::Key_Backspace);
    QCOMPARE(f.typed, QList<float>({234.0F, 34.0F, 534.0F, 34.0F}));
}

void tst_NumberField::pastingGoesOnFromWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("1");
    f.paste("2.5 cups");
    QCOMPARE(f.typed.back(), 12.5F);
    f.type("5");
    QCOMPARE(f.typed.back(), 12.5F); // what follows the blank is not part of the number
    f.field.selectAll();
    f.paste("7.25");
    QCOMPARE(f.typed.back(), 7.25F);
}

void tst_NumberField::movingTheCursorKeepsWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("1");
    f.press(Qt::Key_Left);
    f.type("5");
    QVERIFY(f.typed.back() == 51.0F);
}

void tst_NumberField::selectingKeepsWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("1");
    f.press(Qt::Key_Left, Qt::ShiftModifier);
    f.type("3");
    QVERIFY(f.typed.back() == 3.0F);
}

void tst_NumberField::aNumberSetLaterTakesThePlaceOfWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("1");
    f.field.setFloatValue(40.0F);
    QCOMPARE(f.shown(), QStringLiteral("40|"));
    f.type("5");
    QCOMPARE(f.typed.back(), 405.0F);
}

void tst_NumberField::anEmptiedFieldStaysEmpty()
{
    NumberFieldFixture f;
    f.press(Qt::Key_Delete);
    QCOMPARE(f.typed, QList<float>({0.0F}));
    QCOMPARE(f.shown(), QStringLiteral("|"));
}

void tst_NumberField::anInputMethodMayDeleteWhatWasTyped()
{
    NumberFieldFixture f(kALittleMore);
    f.type("12");
    QInputMethodEvent takesBack;
    takesBack.setCommitString({}, -2, 2);
    QCoreApplication::sendEvent(&f.field, &takesBack);
    QCOMPARE(f.shown(), QStringLiteral("|"));
    QCOMPARE(f.typed.back(), 0.0F);
    f.type("8");
    QCOMPARE(f.typed.back(), 8.0F);
}

void tst_NumberField::aShorterNumberKeepsThePlaceOfTheTyping()
{
    NumberFieldFixture f(0.0F);
    f.field.setFloatValue(13.0F);
    f.press(Qt::Key_Home);
    f.press(Qt::Key_Right);
    f.type("2");
    QCOMPARE(f.shown(), QStringLiteral("12|3"));
    f.type("5");
    QCOMPARE(f.typed, QList<float>({123.0F, 1253.0F}));
}

WUFFER_TEST(tst_NumberField)
#include "tst_NumberField.moc"
