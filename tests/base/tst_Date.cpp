#include "base/Clock.h"
#include "base/Date.h"
#include "support/ClockFixture.h"
#include "support/TestMain.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

class tst_Date final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingWholeSecondsLosesNothing_data();
    void addingWholeSecondsLosesNothing();
    void addingWholeSecondsLosesNothingWheneverItBegins();
    void theDistantFutureIsLaterThanEveryRun();
    void datesAreOrdered();
    void theIntervalSinceNowIsNegativeForThePast();
    void nowIsWhatTheClockSays();
};

void tst_Date::addingWholeSecondsLosesNothing_data()
{
    using Limits = std::numeric_limits<int>;
    QTest::addColumn<int>("total");
    QTest::newRow("nothing") << 0;
    QTest::newRow("a second") << 1;
    QTest::newRow("a second back") << -1;
    QTest::newRow("a week") << 604'800;
    QTest::newRow("the longest run") << Limits::max();
    QTest::newRow("one less than the longest run") << Limits::max() - 1;
    QTest::newRow("the longest way back") << Limits::min();
}

void tst_Date::addingWholeSecondsLosesNothing()
{
    QFETCH(const int, total);
    const ClockFixture f;
    const Date start = Date::now();

    const Date end = start.addingTimeInterval(total);

    QVERIFY(end.timeIntervalSinceDate(start) == static_cast<double>(total));
    QVERIFY(end.addingTimeInterval(-static_cast<double>(total)) == start);
}

void tst_Date::addingWholeSecondsLosesNothingWheneverItBegins()
{
    ClockFixture f;
    QRandomGenerator random(1);
    for (int i = 0; i < 20'000; ++i) {
        f.clock.advance(random.generateDouble());
        const auto total = static_cast<int>(random.generate());
        const Date start = Date::now();
        QVERIFY2(start.addingTimeInterval(total).timeIntervalSinceDate(start) ==
                     static_cast<double>(total),
                 qPrintable(QString::number(total)));
    }
}

void tst_Date::theDistantFutureIsLaterThanEveryRun()
{
    const ClockFixture f;
    const Date lastEnd = Date::now().addingTimeInterval(std::numeric_limits<int>::max());

    QVERIFY(Date::distantFuture() > lastEnd);
    QVERIFY(Date::distantFuture().timeIntervalSinceNow() > 1e9);
    // Arithmetic with it gives no NaN: the difference to itself is 0.
    QCOMPARE(Date::distantFuture().timeIntervalSinceDate(Date::distantFuture()), 0.0);
}

void tst_Date::datesAreOrdered()
{
    const ClockFixture f;
    const Date now = Date::now();
    const Date later = now.addingTimeInterval(0x1p-20);

    QVERIFY(now < later);
    QVERIFY(later > now);
    QVERIFY(now != later);
    QVERIFY(now == later.addingTimeInterval(-0x1p-20));
}

void tst_Date::theIntervalSinceNowIsNegativeForThePast()
{
    ClockFixture f;
    const Date moment = Date::now().addingTimeInterval(10);

    f.clock.advance(4);
    QCOMPARE(moment.timeIntervalSinceNow(), 6.0);
    f.clock.advance(10);
    QCOMPARE(moment.timeIntervalSinceNow(), -4.0);
}

void tst_Date::nowIsWhatTheClockSays()
{
    ClockFixture f;
    const Date before = Date::now();

    f.clock.advance(2.5);
    // A change of the calendar time does not affect dates.
    f.clock.setCalendarOffset(3600);

    QCOMPARE(Date::now().timeIntervalSinceDate(before), 2.5);
}

WUFFER_TEST(tst_Date, WithoutWindows)
#include "tst_Date.moc"
