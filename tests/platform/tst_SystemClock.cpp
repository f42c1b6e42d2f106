#include "base/ClockTimer.h"
#include "base/Date.h"
#include "base/Service.h"
#include "platform/SystemClock.h"
#include "support/TestMain.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <cmath>

/// These tests let real time pass, but only little.
class tst_SystemClock final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTimeComesInStepsOfAPowerOfTwo();
    void theTimeIsThatOfTheCalendarToBeginWith();
    void theTimeNeverGoesBack();
    void aRepeatingTimerFiresInTheEventLoop();
    void aOneShotDoesNotFireEarly();
    void aWaitOfYearsDoesNotFireAtOnce();
    void othersGoOnInTheEventLoopOfAnAction();
    void nothingWakesTheProcessOnceNoTimerIsActive();
};

namespace
{
/// How often the event loop wakes in this many milliseconds, including the end of the wait.
int wakeUpsIn(int milliseconds)
{
    int wakeUps = 0;
    QEventLoop loop;
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &loop, [&] { ++wakeUps; });
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    return wakeUps;
}
} // namespace

void tst_SystemClock::theTimeComesInStepsOfAPowerOfTwo()
{
    const SystemClock clock;
    for (int i = 0; i < 1000; ++i) {
        const double steps = clock.now() * 0x1p20;
        QVERIFY(steps == std::floor(steps));
    }
}

void tst_SystemClock::theTimeIsThatOfTheCalendarToBeginWith()
{
    const auto before = static_cast<double>(QDateTime::currentMSecsSinceEpoch());
    const SystemClock clock;
    const double now = clock.now() * 1000.0;
    const auto after = static_cast<double>(QDateTime::currentMSecsSinceEpoch());

    QVERIFY2(now >= before - 1 && now <= after + 1, qPrintable(QString::number(now - before)));
    QVERIFY(qAbs(clock.calendarNow().msecsTo(QDateTime::currentDateTime())) < 1000);
}

void tst_SystemClock::theTimeNeverGoesBack()
{
    const SystemClock clock;
    double last = clock.now();
    const double first = last;
    while (last < first + 0.01) {
        const double now = clock.now();
        QVERIFY(now >= last);
        last = now;
    }
}

void tst_SystemClock::aRepeatingTimerFiresInTheEventLoop()
{
    SystemClock clock;
    const Service<Clock> service(clock);
    int fired = 0;
    ClockTimer timer([&] { ++fired; });
    const Date start = Date::now();
    timer.startRepeating(0.005);

    QTRY_VERIFY_WITH_TIMEOUT(fired >= 10, 2000);

    QVERIFY(Date::now().timeIntervalSinceDate(start) >= 0.05);
}

void tst_SystemClock::aOneShotDoesNotFireEarly()
{
    SystemClock clock;
    const Service<Clock> service(clock);
    double waited = 0;
    const Date start = Date::now();
    ClockTimer timer([&] { waited = Date::now().timeIntervalSinceDate(start); });
    timer.startOnce(0.0123);

    QTRY_VERIFY_WITH_TIMEOUT(waited > 0, 2000);

    QVERIFY2(waited >= 0.0123, qPrintable(QString::number(waited)));
}

void tst_SystemClock::aWaitOfYearsDoesNotFireAtOnce()
{
    SystemClock clock;
    const Service<Clock> service(clock);
    int fired = 0;
    ClockTimer timer([&] { ++fired; });

    timer.startOnce(1e9);

    QVERIFY(wakeUpsIn(20) <= 3);
    QCOMPARE(fired, 0);
}

void tst_SystemClock::othersGoOnInTheEventLoopOfAnAction()
{
    SystemClock clock;
    const Service<Clock> service(clock);
    QEventLoop question;
    int ticks = 0;
    bool answered = false;
    ClockTimer asking([&] { answered = question.exec() == 3; });
    ClockTimer repeating([&] {
        if (++ticks == 3)
            question.exit(3);
    });
    asking.startOnce(0.001);
    repeating.startRepeating(0.005);
    QTimer::singleShot(2000, &question, &QEventLoop::quit);

    QTRY_VERIFY_WITH_TIMEOUT(ticks >= 3, 3000);

    QVERIFY(answered);
}

void tst_SystemClock::nothingWakesTheProcessOnceNoTimerIsActive()
{
    SystemClock clock;
    const Service<Clock> service(clock);
    ClockTimer timer([] {});
    // The test's own event loop wakes once at its end, and perhaps once at its start.
    constexpr int unavoidable = 2;
    QVERIFY(wakeUpsIn(60) <= unavoidable);
    timer.startRepeating(0.005);
    QVERIFY(wakeUpsIn(60) > unavoidable + 2);

    timer.invalidate();

    QVERIFY(wakeUpsIn(60) <= unavoidable);
}

WUFFER_TEST(tst_SystemClock, WithoutWindows)
#include "tst_SystemClock.moc"
