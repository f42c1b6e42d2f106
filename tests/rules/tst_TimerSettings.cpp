#include "rules/TimerSettings.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <limits>

Q_DECLARE_METATYPE(TimerSettings)

namespace
{
const QString kKey = QStringLiteral("Preset 1");

QVariantMap recordIn(const QByteArray &json)
{
    const SettingsFile file;
    file.write("{\"Preset 1\": " + json + "}");
    return UserDefaults(file.path()).dictionaryForKey(kKey);
}

TimerSettings withTitle(const QString &title)
{
    TimerSettings settings;
    settings.title = title;
    return settings;
}

TimerSettings withHours(qint32 hours)
{
    TimerSettings settings;
    settings.hours = hours;
    return settings;
}
} // namespace

/// The settings of a timer as a value, and as the record that is stored.
class tst_TimerSettings final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsMissingHasNoKey();
    void everySettingHasItsKey();
    void numbersAreStoredAsWholeNumbers();
    void whatWasStoredReadsTheSame();
    void whatAPersonWritesReadsAsTheRulesSay_data();
    void whatAPersonWritesReadsAsTheRulesSay();
    void aBoxIsOnForAnyNumberOtherThanZero_data();
    void aBoxIsOnForAnyNumberOtherThanZero();

private:
    static TimerSettings full()
    {
        TimerSettings settings;
        settings.title = QStringLiteral("Tea & <b>toast</b>");
        settings.hours = 1;
        settings.minutes = -2;
        settings.seconds = std::numeric_limits<qint32>::max();
        settings.keepWuffing = true;
        settings.fullScreen = true;
        settings.finishOption = QStringLiteral("Start a Preset");
        settings.presetSelection = 9;
        settings.individualAlarmPath = QStringLiteral("/sounds/bell.wav");
        settings.individualCountdownPath = QStringLiteral("/sounds/tick.wav");
        return settings;
    }
};

void tst_TimerSettings::whatIsMissingHasNoKey()
{
    const QVariantMap record = TimerSettings().record();
    const QStringList expected{QStringLiteral("fullScreen"),  QStringLiteral("hours"),
                               QStringLiteral("keepWuffing"), QStringLiteral("minutes"),
                               QStringLiteral("seconds"),     QStringLiteral("title")};
    QCOMPARE(record.keys(), expected);
    QCOMPARE(record.value(QStringLiteral("title")), QVariant(QString()));
    QCOMPARE(record.value(QStringLiteral("keepWuffing")), QVariant(0));
}

void tst_TimerSettings::everySettingHasItsKey()
{
    const QVariantMap expected{
        {QStringLiteral("title"), QStringLiteral("Tea & <b>toast</b>")},
        {QStringLiteral("hours"), 1},
        {QStringLiteral("minutes"), -2},
        {QStringLiteral("seconds"), 2147483647},
        {QStringLiteral("keepWuffing"), 1},
        {QStringLiteral("fullScreen"), 1},
        {QStringLiteral("finishOption"), QStringLiteral("Start a Preset")},
        {QStringLiteral("presetSelection"), 9},
        {QStringLiteral("individualAlarmPath"), QStringLiteral("/sounds/bell.wav")},
        {QStringLiteral("individualCountdownPath"), QStringLiteral("/sounds/tick.wav")},
    };
    QCOMPARE(full().record(), expected);
}

void tst_TimerSettings::numbersAreStoredAsWholeNumbers()
{
    const QVariantMap record = full().record();
    for (const char *key : {"hours", "minutes", "seconds", "keepWuffing", "fullScreen"})
        QCOMPARE(record.value(QString::fromLatin1(key)).typeId(), QMetaType::Int);
}

void tst_TimerSettings::whatWasStoredReadsTheSame()
{
    const SettingsFile file;
    {
        UserDefaults defaults(file.path());
        defaults.setObject(full().record(), kKey);
        QVERIFY(TimerSettings::fromRecord(defaults.dictionaryForKey(kKey)) == full());
    }
    const UserDefaults defaults(file.path());
    QVERIFY(TimerSettings::fromRecord(defaults.dictionaryForKey(kKey)) == full());
}

void tst_TimerSettings::whatAPersonWritesReadsAsTheRulesSay_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<TimerSettings>("expected");
    const TimerSettings nothing;
    TimerSettings option;
    option.finishOption = QStringLiteral("Dance");
    TimerSettings selection;
    selection.presetSelection = std::numeric_limits<qint32>::min();
    TimerSettings emptyPath;
    emptyPath.individualAlarmPath = QString();

    QTest::newRow("nothing") << QByteArray("{}") << nothing;
    QTest::newRow("a list") << QByteArray("[1, 2]") << nothing;
    QTest::newRow("a text") << QByteArray("\"hours\"") << nothing;
    QTest::newRow("only strangers") << QByteArray(R"({"colour": {"hours": 7}})") << nothing;
    QTest::newRow("a number for a title") << QByteArray(R"({"title": 7})") << nothing;
    QTest::newRow("a null for a title") << QByteArray(R"({"title": null})") << nothing;
    QTest::newRow("a title") << QByteArray(R"({"title": "x\ny"})")
                             << withTitle(QStringLiteral("x\ny"));
    QTest::newRow("a text for a number") << QByteArray(R"({"hours": "7"})") << nothing;
    QTest::newRow("a list for a number") << QByteArray(R"({"hours": [7]})") << nothing;
    QTest::newRow("nested junk") << QByteArray(R"({"hours": {"hours": {"hours": 7}}})") << nothing;
    QTest::newRow("a fraction is cut") << QByteArray(R"({"hours": 7.9})") << withHours(7);
    QTest::newRow("a negative fraction") << QByteArray(R"({"hours": -7.9})") << withHours(-7);
    QTest::newRow("too large") << QByteArray(R"({"hours": 1e300})")
                               << withHours(std::numeric_limits<qint32>::max());
    QTest::newRow("too small") << QByteArray(R"({"hours": -99999999999})")
                               << withHours(std::numeric_limits<qint32>::min());
    QTest::newRow("true for a number") << QByteArray(R"({"hours": true})") << withHours(1);
    QTest::newRow("an unknown option") << QByteArray(R"({"finishOption": "Dance"})") << option;
    QTest::newRow("a number for an option") << QByteArray(R"({"finishOption": 2})") << nothing;
    QTest::newRow("a selection out of range")
        << QByteArray(R"({"presetSelection": -1e20})") << selection;
    QTest::newRow("a text for a selection") << QByteArray(R"({"presetSelection": "3"})") << nothing;
    QTest::newRow("a path that is none") << QByteArray(R"({"individualAlarmPath": 5})") << nothing;
    QTest::newRow("an empty path") << QByteArray(R"({"individualAlarmPath": ""})") << emptyPath;
}

void tst_TimerSettings::whatAPersonWritesReadsAsTheRulesSay()
{
    QFETCH(const QByteArray, json);
    QFETCH(const TimerSettings, expected);
    QVERIFY(TimerSettings::fromRecord(recordIn(json)) == expected);
}

void tst_TimerSettings::aBoxIsOnForAnyNumberOtherThanZero_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("2") << QByteArray("2") << true;
    QTest::newRow("-1") << QByteArray("-1") << true;
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("a text") << QByteArray("\"1\"") << false;
}

void tst_TimerSettings::aBoxIsOnForAnyNumberOtherThanZero()
{
    QFETCH(const QByteArray, value);
    const TimerSettings settings = TimerSettings::fromRecord(
        recordIn("{\"keepWuffing\": " + value + ", \"fullScreen\": " + value + "}"));
    QTEST(settings.keepWuffing, "on");
    QTEST(settings.fullScreen, "on");
}

WUFFER_TEST(tst_TimerSettings)
#include "tst_TimerSettings.moc"
