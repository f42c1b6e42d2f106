#include "support/NumberFieldFixture.h"
#include "support/TestMain.h"

/// The number of a field, and the text that shows it.
class tst_NumberFieldFigures final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberIsShownRoundedAndKeptInFull();
    void aNumberCanBeShownWithAllItsDigits();
    void anEditReplacesTheKeptNumber();
    void aTextSetByTheProgramReplacesTheKeptNumber();
    void theNumberSetWhileTypingCounts();
    void leavingTheFieldShowsItsNumber_data();
    void leavingTheFieldShowsItsNumber();
    void leavingAFieldWithoutASetNumberKeepsItsText();
    void textThatIsNoNumberIsDroppedWhenTheFieldIsLeft();
};

void tst_NumberFieldFigures::aNumberIsShownRoundedAndKeptInFull()
{
    NumberFieldFixture f;
    f.field.setFloatValue(-17.777779F);
    QCOMPARE(f.field.text(), QStringLiteral("-17.778"));
    QVERIFY(f.field.floatValue() == -17.777779F);
    f.press(Qt::Key_Return);
    QCOMPARE(f.field.text(), QStringLiteral("-17.778"));
    QVERIFY(f.field.floatValue() == -17.777779F);
}

void tst_NumberFieldFigures::aNumberCanBeShownWithAllItsDigits()
{
    NumberFieldFixture f;
    f.field.setFloatValue(236.588237F);
    f.field.showAllDigits();
    QCOMPARE(f.field.text(), QStringLiteral("236.58824"));
    f.press(Qt::Key_Return);
    QCOMPARE(f.field.text(), QStringLiteral("236.58824"));
    QVERIFY(f.field.floatValue() == 236.588237F);
}

void tst_NumberFieldFigures::anEditReplacesTheKeptNumber()
{
    NumberField field;
    field.setFloatValue(28.349524F);
    QCOMPARE(field.text(), QStringLiteral("28.35"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    QVERIFY(field.floatValue() == 28.3F);
    // The same text as before, but now it is what the user has typed.
    QTest::keyClicks(&field, QStringLiteral("5"));
    QVERIFY(field.floatValue() == 28.35F);
}

void tst_NumberFieldFigures::aTextSetByTheProgramReplacesTheKeptNumber()
{
    NumberField field;
    field.setFloatValue(28.349524F);
    field.setText(QStringLiteral("7"));
    QVERIFY(field.floatValue() == 7.0F);
}

void tst_NumberFieldFigures::theNumberSetWhileTypingCounts()
{
    NumberFieldFixture f(kALittleMore);
    f.type("3");
    QCOMPARE(f.field.text(), QStringLiteral("3"));
    QVERIFY(f.field.floatValue() == 3.0000005F);
    f.press(Qt::Key_Return);
    QCOMPARE(f.field.text(), QStringLiteral("3"));
    QVERIFY(f.field.floatValue() == 3.0000005F);
}

void tst_NumberFieldFigures::leavingTheFieldShowsItsNumber_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, float factor, const char *keys, const char *shown) {
        QTest::newRow(name) << factor << QString::fromLatin1(keys) << QString::fromLatin1(shown);
    };
    row("a text that shows it", 1.0F, "007.50", "007.50");
    row("a text with more digits", kALittleMore, "3.1415927", "3.1415927");
    row("another number", 2.0F, "12.5", "25");
    row("a rounded number", 1.0F / 3.0F, "1", "0.33333");
    row("a number with a unit", 1.0F, "12.5 cups", "12.5");
    row("words", 1.0F, "cups", "0");
    row("too large", 0.5F, "1e99", "1.7014117E38");
}

void tst_NumberFieldFigures::leavingTheFieldShowsItsNumber()
{
    QFETCH(const float, factor);
    QFETCH(const QString, keys);
    NumberFieldFixture f(factor);
    QTest::keyClicks(&f.field, keys);
    QCOMPARE(f.field.text(), keys);
    const float number = f.field.floatValue();
    f.press(Qt::Key_Return);
    QTEST(f.field.text(), "shown");
    QVERIFY(f.field.floatValue() == number);
}

void tst_NumberFieldFigures::leavingAFieldWithoutASetNumberKeepsItsText()
{
    NumberField field;
    field.setFloatValue(1.0F);
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("12.5 cups"));
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(field.text(), QStringLiteral("12.5 cups"));
    QVERIFY(field.floatValue() == 12.5F);
}

void tst_NumberFieldFigures::textThatIsNoNumberIsDroppedWhenTheFieldIsLeft()
{
    NumberFieldFixture f;
    f.type("1b2.c5.");
    QCOMPARE(f.shown(), QStringLiteral("1b2.c5.|"));
    QVERIFY(f.typed.back() == 1.0F);
    f.press(Qt::Key_Return);
    QCOMPARE(f.field.text(), QStringLiteral("1"));
    f.field.selectAll();
    f.paste("cups");
    QCOMPARE(f.shown(), QStringLiteral("cups|"));
    QVERIFY(f.typed.back() == 0.0F);
    f.press(Qt::Key_Return);
    QCOMPARE(f.field.text(), QStringLiteral("0"));
}

WUFFER_TEST(tst_NumberFieldFigures)
#include "tst_NumberFieldFigures.moc"
