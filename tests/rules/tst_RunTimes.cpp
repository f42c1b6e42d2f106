#include "rules/RunTimes.h"
#include "support/TestMain.h"

#include <limits>

/// The share of a run that is left.
class tst_RunTimes final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theShareIsThatOfTheWholeRun_data();
    void theShareIsThatOfTheWholeRun();
};

void tst_RunTimes::theShareIsThatOfTheWholeRun_data()
{
    QTest::addColumn<double>("remaining");
    QTest::addColumn<double>("elapsed");
    QTest::addColumn<double>("share");
    QTest::newRow("at the start") << 300.0 << 0.0 << 1.0;
    QTest::newRow("after a quarter") << 225.0 << 75.0 << 0.75;
    QTest::newRow("at the end") << 0.0 << 300.0 << 0.0;
    QTest::newRow("after the end") << -5.0 << 305.0 << 0.0;
    QTest::newRow("before the start") << 301.0 << -1.0 << 1.0;
    QTest::newRow("no duration") << 0.0 << 0.0 << 0.0;
    QTest::newRow("a negative duration") << -7.0 << 2.0 << 0.0;
    QTest::newRow("without end") << std::numeric_limits<double>::max() << 5.0 << 1.0;
}

void tst_RunTimes::theShareIsThatOfTheWholeRun()
{
    QFETCH(const double, remaining);
    QFETCH(const double, elapsed);
    QFETCH(const double, share);
    QCOMPARE(shareLeft({remaining, elapsed}), share);
}

WUFFER_TEST(tst_RunTimes)
#include "tst_RunTimes.moc"
