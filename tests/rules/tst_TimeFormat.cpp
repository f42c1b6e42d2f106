#include "rules/TimeFormat.h"
#include "support/TestMain.h"

#include <QTest>

#include <limits>

class tst_TimeFormat final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTimeIsWrittenInDaysHoursMinutesAndSeconds_data();
    void aTimeIsWrittenInDaysHoursMinutesAndSeconds();
    void millisecondsAreThreeDigits_data();
    void millisecondsAreThreeDigits();
    void aSetTimeShowsEveryPart();
};

void tst_TimeFormat::aTimeIsWrittenInDaysHoursMinutesAndSeconds_data()
{
    constexpr double minute = 60;
    constexpr double hour = 3600;
    constexpr double day = 86400;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("no time at all") << 0.0 << "";
    QTest::newRow("no time at all, from below") << -0.0 << "";
    QTest::newRow("a fraction of a second") << 0.4 << "0s";
    QTest::newRow("seconds") << 59.9 << "59s";
    QTest::newRow("a minute and seconds") << 65.0 << "1m 5s";
    QTest::newRow("a full minute") << minute << "1m 0s";
    QTest::newRow("a full hour leaves the minutes out") << hour << "1h 0s";
    QTest::newRow("all but days, cut") << 3725.9 << "1h 2m 5s";
    QTest::newRow("a day leaves the seconds out and ends in a blank") << day << "1d ";
    QTest::newRow("just before a day") << day - 0.1 << "23h 59m 59s";
    QTest::newRow("every part of a day") << 90061.0 << "1d 1h 1m ";
    QTest::newRow("a day and seconds") << day + 59 << "1d ";
    QTest::newRow("nine days still have minutes") << 9 * day + 5 * minute << "9d 5m ";
    QTest::newRow("ten days have none") << 10 * day + 5 * minute << "10d ";
    QTest::newRow("eleven days and hours") << 11 * day + 3 * hour + 4 * minute << "11d 3h ";
    QTest::newRow("a negative time") << -5.5 << "-5s";
    QTest::newRow("a small negative time") << -0.5 << "0s";
    QTest::newRow("a negative hour") << -3725.0 << "-1h -2m -5s";
    QTest::newRow("negative days") << -2 * day - 61 << "-2d -1m ";
    QTest::newRow("more than 32 bits of seconds") << 5e9 << "57870d 3h ";
    QTest::newRow("for ever") << infinity << "2147483647d 3h ";
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << "0s";
}

void tst_TimeFormat::aTimeIsWrittenInDaysHoursMinutesAndSeconds()
{
    QFETCH(const double, seconds);
    QTEST(TimeFormat::stringForTime(seconds), "text");
}

void tst_TimeFormat::millisecondsAreThreeDigits_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("a full second") << 12.0 << "000";
    QTest::newRow("leading zeros") << 3.0625 << "062";
    QTest::newRow("a quarter") << 63.25 << "250";
    QTest::newRow("cut and not rounded") << 0.9999 << "999";
    QTest::newRow("a negative time") << -5.5 << "-500";
    QTest::newRow("not a number") << std::numeric_limits<double>::infinity() << "000";
}

void tst_TimeFormat::millisecondsAreThreeDigits()
{
    QFETCH(const double, seconds);
    QTEST(TimeFormat::msStringForTime(seconds), "text");
}

void tst_TimeFormat::aSetTimeShowsEveryPart()
{
    QCOMPARE(TimeFormat::hmsString(0, 30, 0), QStringLiteral("0h 30m 0s"));
    QCOMPARE(TimeFormat::hmsString(-1, 2, 300), QStringLiteral("-1h 2m 300s"));
}

WUFFER_TEST(tst_TimeFormat, WithoutApplication)
#include "tst_TimeFormat.moc"
