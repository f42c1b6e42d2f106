#include "rules/TimeText.h"
#include "support/FakeTranslator.h"
#include "support/TestMain.h"

using TimeText::Time;
using TimeText::Unit;

/// Parsing times as people write them.
class tst_TimeText final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aTimeReadsAsPeopleWriteIt_data();
    void aTimeReadsAsPeopleWriteIt();
    void otherTextsAreNoTimes_data();
    void otherTextsAreNoTimes();
    void numbersAndTheirBeginnings_data();
    void numbersAndTheirBeginnings();
    void aFractionIsSpreadOverTheSmallerUnits_data();
    void aFractionIsSpreadOverTheSmallerUnits();
    void unitsHaveNames_data();
    void unitsHaveNames();
    void unitsAreUnderstoodInTheUsersLanguageToo();
    void aTextOfAnyLengthIsReadAtOnce();

private:
    static QString written(const std::optional<TimeText::Time> &time);
};

QString tst_TimeText::written(const std::optional<TimeText::Time> &time)
{
    if (!time)
        return QStringLiteral("nothing");
    return QStringLiteral("%1 %2 %3").arg(time->hours).arg(time->minutes).arg(time->seconds);
}

void tst_TimeText::aTimeReadsAsPeopleWriteIt_data()
{
    QTest::addColumn<QString>("time");
    const auto row = [](const char *text, const char *time) {
        QTest::newRow(text) << QString::fromLatin1(time);
    };
    row("5:30", "0 5 30");
    row("1:02:03", "1 2 3");
    row("90s", "0 0 90");
    row("1h 5m", "1 5 0");
    row("1h05", "1 5 0");
    row("5 min", "0 5 0");
    row("1.5h", "1 30 0");
    row("1,5 h", "1 30 0");
    row("2d 3h", "51 0 0");
    row("  5:30 \n", "0 5 30");
    row("90 m", "0 90 0");
    row("90:00", "0 90 0");
    row("5:90", "0 5 90");
    row("0:00", "0 0 0");
    row(":30", "0 0 30");
    row("5:", "0 5 0");
    row("1::30", "1 0 30");
    row("5 : 30", "0 5 30");
    row("5:30.9", "0 5 30");
    row("5 30", "0 5 30");
    row("1 2 3", "1 2 3");
    row("1H 5M 3S", "1 5 3");
    row("1h5m3s", "1 5 3");
    row("1h 3s", "1 0 3");
    row("1 hour, 5 minutes and 30 seconds", "1 5 30");
    row("1 hour and 5 minutes", "1 5 0");
    row("2 hrs. 1 min.", "2 1 0");
    row("5m30", "0 5 30");
    row("2d 3", "51 0 0");
    row("1 day", "24 0 0");
    row("0.5d", "12 0 0");
    row(".5h", "0 30 0");
    row("1.5h 15m", "1 45 0");
    row("0.7h", "0 42 0");
    row("1.15h", "1 9 0");
    row("0.1m", "0 0 6");
    row("0.9999m", "0 1 0");
    row("1.99999h", "2 0 0");
    row("2.9s", "0 0 2");
    row("0.3333333333333333h", "0 20 0");
    row("99999999999 s", "0 0 2147483647");
    row("99999999999 d", "2147483647 0 0");
    QTest::newRow("۵:۳۰") << QStringLiteral("0 5 30");
    QTest::newRow("１：０２：０３") << QStringLiteral("1 2 3");
    QTest::newRow("１．５ｈ") << QStringLiteral("1 30 0");
    QTest::newRow("1h、5m") << QStringLiteral("1 5 0");
}

void tst_TimeText::aTimeReadsAsPeopleWriteIt()
{
    QFETCH(const QString, time);
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    QCOMPARE(written(TimeText::read(text)), time);
}

void tst_TimeText::otherTextsAreNoTimes_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"",
                             " ",
                             "5",
                             "1.5",
                             "-5",
                             "-5:30",
                             "-5m",
                             "Rice",
                             "5 eggs",
                             "35 min at 180°",
                             "5m 1h",
                             "5m 5m",
                             "m",
                             "h 5",
                             "5 m s",
                             "30s 5",
                             "1:2:3:4",
                             "1.5:30",
                             "5:x",
                             ":",
                             "::",
                             "1h05:30",
                             "12:30 pm",
                             "5.30.10",
                             "and",
                             "5 min or",
                             "1 000 000 000",
                             "0x10m",
                             "5,",
                             "5h,x"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void tst_TimeText::otherTextsAreNoTimes()
{
    QFETCH(const QString, text);
    QCOMPARE(written(TimeText::read(text)), QStringLiteral("nothing"));
}

void tst_TimeText::numbersAndTheirBeginnings_data()
{
    QTest::addColumn<bool>("begun");
    QTest::addColumn<bool>("whole");
    const auto row = [](const char *text, bool begun, bool whole) {
        QTest::newRow(text) << begun << whole;
    };
    row("", true, false);
    row("-", true, false);
    row("+", true, false);
    row(".", true, false);
    row("5", true, true);
    row("-5", true, true);
    row("+5", true, true);
    row("1.", true, true);
    row("1.5", true, true);
    row("1,5", true, true);
    row("-,5", true, true);
    row(" 5 ", false, true);
    row("1.5.", false, false);
    row("--5", false, false);
    row("5-", false, false);
    row("5s", false, false);
    row("5:", false, false);
    row("five", false, false);
}

void tst_TimeText::numbersAndTheirBeginnings()
{
    QFETCH(const bool, begun);
    QFETCH(const bool, whole);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(TimeText::isNumberBegun(text), begun);
    QCOMPARE(TimeText::isNumber(text), whole);
}

void tst_TimeText::aFractionIsSpreadOverTheSmallerUnits_data()
{
    QTest::addColumn<Unit>("unit");
    QTest::addColumn<QString>("time");
    QTest::newRow("1.5") << Unit::Hours << QStringLiteral("1 30 0");
    QTest::newRow("1,5") << Unit::Minutes << QStringLiteral("0 1 30");
    QTest::newRow("0.01") << Unit::Hours << QStringLiteral("0 0 36");
    QTest::newRow("90.5") << Unit::Minutes << QStringLiteral("0 90 30");
    QTest::newRow("2.0") << Unit::Minutes << QStringLiteral("0 2 0");
    QTest::newRow("2") << Unit::Minutes << QStringLiteral("nothing");
    QTest::newRow("2.") << Unit::Minutes << QStringLiteral("nothing");
    QTest::newRow("-1.5") << Unit::Hours << QStringLiteral("nothing");
    QTest::newRow("1.5x") << Unit::Hours << QStringLiteral("nothing");
    QTest::newRow("") << Unit::Hours << QStringLiteral("nothing");
}

void tst_TimeText::aFractionIsSpreadOverTheSmallerUnits()
{
    QFETCH(const Unit, unit);
    QFETCH(const QString, time);
    const QString number = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(written(TimeText::spread(number, unit)), time);
}

void tst_TimeText::unitsHaveNames_data()
{
    QTest::addColumn<Unit>("unit");
    for (const char *name : {"d", "day", "Days"})
        QTest::newRow(name) << Unit::Days;
    for (const char *name : {"h", "H", "hr", "hrs", "hour", "hours"})
        QTest::newRow(name) << Unit::Hours;
    for (const char *name : {"m", "min", "MINS", "minute", "minutes"})
        QTest::newRow(name) << Unit::Minutes;
    for (const char *name : {"s", "sec", "secs", "second", "seconds"})
        QTest::newRow(name) << Unit::Seconds;
}

void tst_TimeText::unitsHaveNames()
{
    QFETCH(const Unit, unit);
    QCOMPARE(TimeText::unitNamed(QString::fromLatin1(QTest::currentDataTag())),
             std::optional(unit));
    QVERIFY(!TimeText::unitNamed(u"x"));
    QVERIFY(!TimeText::unitNamed(u""));
}

void tst_TimeText::unitsAreUnderstoodInTheUsersLanguageToo()
{
    const FakeTranslator language(
        {{QStringLiteral("h hr hrs hour hours"), QStringLiteral("Std  Stunde Stunden 時 m")},
         {QStringLiteral("m min mins minute minutes"), QStringLiteral("Minute Minuten")},
         {QStringLiteral("and"), QStringLiteral("und")}});
    QCOMPARE(TimeText::unitNamed(u"STUNDEN"), std::optional(Unit::Hours));
    QCOMPARE(TimeText::unitNamed(u"時"), std::optional(Unit::Hours));
    QCOMPARE(TimeText::unitNamed(u"hours"), std::optional(Unit::Hours));
    // An English word keeps its meaning, whatever a translation says.
    QCOMPARE(TimeText::unitNamed(u"m"), std::optional(Unit::Minutes));
    QVERIFY(!TimeText::unitNamed(u""));
    QCOMPARE(TimeText::read(u"1 Stunde und 5 Minuten"), std::optional(Time{1, 5, 0}));
    QCOMPARE(TimeText::read(u"1 Std. 5"), std::optional(Time{1, 5, 0}));
    QCOMPARE(TimeText::read(u"1 hour and 5 minutes"), std::optional(Time{1, 5, 0}));
}

void tst_TimeText::aTextOfAnyLengthIsReadAtOnce()
{
    const QString book(10'000'000, u'5');
    QVERIFY(!TimeText::isNumber(book));
    QVERIFY(!TimeText::read(book + u's'));
    QVERIFY(!TimeText::read(QString(1'000'000, u':')));
}

WUFFER_TEST(tst_TimeText)
#include "tst_TimeText.moc"
