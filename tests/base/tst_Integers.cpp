#include "base/Integers.h"
#include "base/SinglePrecision.h"
#include "support/TestMain.h"

/// Conversions between number types, with limits and rounding.
class tst_Integers final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreCutAndLimited_data();
    void numbersAreCutAndLimited();
    void aLimitedNumberKeepsItsFraction();
    void longIntegersAreLimited();
    void longIntegersWrapRound();
    void singlePrecisionIsLimited();
};

void tst_Integers::numbersAreCutAndLimited_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<qint32>("integer");
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("toward zero") << 2.9 << 2;
    QTest::newRow("toward zero from below") << -2.9 << -2;
    QTest::newRow("the largest") << 2147483647.0 << kLargestInteger;
    QTest::newRow("a little more") << 2147483647.5 << kLargestInteger;
    QTest::newRow("much more") << 1e300 << kLargestInteger;
    QTest::newRow("the smallest") << -2147483648.0 << kSmallestInteger;
    QTest::newRow("a little less") << -2147483648.5 << kSmallestInteger;
    QTest::newRow("without end") << -infinity << kSmallestInteger;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void tst_Integers::numbersAreCutAndLimited()
{
    QFETCH(const double, number);
    QTEST(cutToInteger(number), "integer");
}

void tst_Integers::aLimitedNumberKeepsItsFraction()
{
    QCOMPARE(limitedToIntegers(-2.75), -2.75);
    QCOMPARE(limitedToIntegers(1e10), 2147483647.0);
    QCOMPARE(limitedToIntegers(-1e10), -2147483648.0);
    QCOMPARE(limitedToIntegers(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

void tst_Integers::longIntegersAreLimited()
{
    QCOMPARE(limitedToInteger(-7), -7);
    QCOMPARE(limitedToInteger(2'147'483'648), kLargestInteger);
    QCOMPARE(limitedToInteger(-2'147'483'649), kSmallestInteger);
}

void tst_Integers::longIntegersWrapRound()
{
    QCOMPARE(wrappedToInteger(-7), -7);
    QCOMPARE(wrappedToInteger(2'147'483'648), kSmallestInteger);
    QCOMPARE(wrappedToInteger(-2'147'483'649), kLargestInteger);
}

void tst_Integers::singlePrecisionIsLimited()
{
    constexpr float largest = std::numeric_limits<float>::max();
    QCOMPARE(toSinglePrecision(0.1), 0.1F);
    QCOMPARE(toSinglePrecision(1e300), largest);
    QCOMPARE(toSinglePrecision(-std::numeric_limits<double>::infinity()), -largest);
}

WUFFER_TEST(tst_Integers)
#include "tst_Integers.moc"
