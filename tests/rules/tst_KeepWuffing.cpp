#include "rules/KeepWuffing.h"
#include "support/TestMain.h"

/// The hint of the keep-wuffing box.
class tst_KeepWuffing final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theReasonThatIsHardestToRemoveComesFirst_data();
    void theReasonThatIsHardestToRemoveComesFirst();
};

void tst_KeepWuffing::theReasonThatIsHardestToRemoveComesFirst_data()
{
    QTest::addColumn<bool>("stopwatch");
    QTest::addColumn<bool>("follows");
    QTest::addColumn<bool>("muted");
    QTest::addColumn<QString>("hint");
    const auto may = QStringLiteral("Repeat the alarm sound until you press Reset");
    const auto muted = QStringLiteral("The sound of all timers is off");
    const auto follows =
        QStringLiteral("Only a timer that is to “Do Nothing” when finished can go on wuffing");
    const auto stopwatch = QStringLiteral("A stopwatch has no alarm that could go on");
    QTest::newRow("it may") << false << false << false << may;
    QTest::newRow("muted") << false << false << true << muted;
    QTest::newRow("something follows") << false << true << false << follows;
    QTest::newRow("something follows, muted") << false << true << true << follows;
    QTest::newRow("stopwatch") << true << false << false << stopwatch;
    QTest::newRow("stopwatch, muted") << true << false << true << stopwatch;
    QTest::newRow("all at once") << true << true << true << stopwatch;
}

void tst_KeepWuffing::theReasonThatIsHardestToRemoveComesFirst()
{
    QFETCH(const bool, stopwatch);
    QFETCH(const bool, follows);
    QFETCH(const bool, muted);
    QTEST(KeepWuffing::hint(stopwatch, follows, muted), "hint");
}

WUFFER_TEST(tst_KeepWuffing)
#include "tst_KeepWuffing.moc"
