#include "rules/NumberText.h"
#include "support/TestMain.h"

#include <QTest>

class tst_NumberText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textReadsAsItsLeadingInteger_data();
    void textReadsAsItsLeadingInteger();
    void secondsShowTheirFraction_data();
    void secondsShowTheirFraction();
};

void tst_NumberText::textReadsAsItsLeadingInteger_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("nothing") << "" << 0;
    QTest::newRow("a number") << "25" << 25;
    QTest::newRow("after blanks") << "  \t7" << 7;
    QTest::newRow("a plus sign") << "+7" << 7;
    QTest::newRow("a minus sign") << "-7" << -7;
    QTest::newRow("two signs") << "--7" << 0;
    QTest::newRow("a sign alone") << "-" << 0;
    QTest::newRow("a blank after the sign") << "- 7" << 0;
    QTest::newRow("a fraction is cut") << "5.9" << 5;
    QTest::newRow("a fraction with a comma too") << "5,9" << 5;
    QTest::newRow("a negative fraction") << "-5.9" << -5;
    QTest::newRow("something after it") << "12 min" << 12;
    QTest::newRow("something before it") << "about 12" << 0;
    QTest::newRow("words") << "five" << 0;
    QTest::newRow("leading zeros") << "007" << 7;
    QTest::newRow("the largest") << "2147483647" << 2147483647;
    QTest::newRow("too large") << "2147483648" << 2147483647;
    QTest::newRow("the smallest") << "-2147483648" << -2147483647 - 1;
    QTest::newRow("too small") << "-2147483649" << -2147483647 - 1;
    QTest::newRow("beyond all bounds") << QString(400, QLatin1Char('9')) << 2147483647;
    QTest::newRow("digits of another script") << QString::fromUtf8("१२") << 12;
}

void tst_NumberText::textReadsAsItsLeadingInteger()
{
    QFETCH(const QString, text);
    QTEST(NumberText::integerFrom(text), "number");
}

void tst_NumberText::secondsShowTheirFraction_data()
{
    QTest::addColumn<float>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0.0F << "0";
    QTest::newRow("whole") << 12.0F << "12";
    QTest::newRow("a tenth") << 5.4F << "5.4";
    QTest::newRow("to the millisecond") << 5.41278F << "5.413";
    QTest::newRow("never up to the next second") << 59.9999F << "59.999";
    QTest::newRow("negative") << -5.5F << "-5.5";
    QTest::newRow("negative, never up to the next second") << -5.9999F << "-5.999";
    QTest::newRow("a very small one") << 0.0001F << "0";
    QTest::newRow("large") << 2147483648.0F << "2147483648";
}

void tst_NumberText::secondsShowTheirFraction()
{
    QFETCH(const float, seconds);
    QTEST(NumberText::fromSeconds(seconds), "text");
}

WUFFER_TEST(tst_NumberText, WithoutApplication)
#include "tst_NumberText.moc"
