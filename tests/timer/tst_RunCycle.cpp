#include "support/TestMain.h"
#include "support/TimerFixture.h"

class tst_RunCycle final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aCountdownRunsToItsEnd();
};

void tst_RunCycle::aCountdownRunsToItsEnd()
{
    TimerFixture t;
    t.startCountdown(5);
    QCOMPARE(t.go(), QStringLiteral("Stop"));
    t.pass(5.04);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.go(), QStringLiteral("Reset"));
}

WUFFER_TEST_MAIN(tst_RunCycle)
#include "tst_RunCycle.moc"
