#include "rules/TimeDistance.h"
#include "support/TestMain.h"

#include <limits>

/// The text for the time until a moment.
class tst_TimeDistance final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theTwoLargestUnitsAreNamed_data();
    void theTwoLargestUnitsAreNamed();
};

void tst_TimeDistance::theTwoLargestUnitsAreNamed_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, qint64 seconds, const char *text) {
        QTest::newRow(name) << seconds << QString::fromLatin1(text);
    };
    row("long past", std::numeric_limits<qint64>::min(), "now");
    row("past", -1, "now");
    row("now", 0, "now");
    row("one second", 1, "in 1 s");
    row("the last of the seconds", 59, "in 59 s");
    row("a minute", 60, "in 1 min");
    row("a minute and a second", 61, "in 1 min 1 s");
    row("the last of the minutes", 3599, "in 59 min 59 s");
    row("an hour", 3600, "in 1 h");
    row("an hour and seconds, which are cut", 3659, "in 1 h");
    row("hours and minutes", 15120, "in 4 h 12 min");
    row("hours and minutes, cut", 15179, "in 4 h 12 min");
    row("the last of the hours", 86399, "in 23 h 59 min");
    row("a day", 86400, "in 1 d");
    row("a day and minutes, which are cut", 89999, "in 1 d");
    row("days and hours", 273600, "in 3 d 4 h");
    row("years", 4000 * qint64(86400), "in 4000 d");
    row("the end of numbers", std::numeric_limits<qint64>::max(), "in 106751991167300 d 15 h");
}

void tst_TimeDistance::theTwoLargestUnitsAreNamed()
{
    QFETCH(const qint64, seconds);
    QTEST(TimeDistance::text(seconds), "text");
}

WUFFER_TEST(tst_TimeDistance)
#include "tst_TimeDistance.moc"
