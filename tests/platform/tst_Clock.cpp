#include "platform/ClockTimer.h"
#include "platform/Date.h"
#include "platform/Service.h"
#include "support/TestClock.h"

#include <QTest>

class tst_Clock final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timersOfOneIntervalFireTogether();
};

void tst_Clock::timersOfOneIntervalFireTogether()
{
    TestClock clock;
    const Service<Clock> service(clock);
    int fired = 0;
    ClockTimer first([&] { ++fired; });
    ClockTimer second([&] { ++fired; });

    first.startRepeating(0.5);
    clock.advance(0.2);
    second.startRepeating(0.5);
    clock.advance(0.31);

    QCOMPARE(fired, 2);
    QCOMPARE(clock.wakeUps(), 1);
}

QTEST_GUILESS_MAIN(tst_Clock)
#include "tst_Clock.moc"
