#include "base/Service.h"
#include "base/UserDefaults.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <limits>

namespace
{
const QString kKey = QStringLiteral("key");

/// A settings file in which "key" has this JSON value.
struct Read
{
    explicit Read(const QByteArray &value) { file.write("{\"key\": " + value + "}"); }

    SettingsFile file;
};
} // namespace

/// How values are stored and read. tst_JsonSettingsFormat tests what happens to the file.
class tst_UserDefaults final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aMissingKeyReadsAsNothing();
    void valuesReadTheSameBeforeAndAfterARestart();
    void aValueOfAnotherTypeReadsAsMissing_data();
    void aValueOfAnotherTypeReadsAsMissing();
    void numbersAreCutAndLimited_data();
    void numbersAreCutAndLimited();
    void aBoolIsAnyNumberOtherThanZero_data();
    void aBoolIsAnyNumberOtherThanZero();
    void aListLosesTheMembersThatAreNotTexts();
    void aValueReplacesOneOfAnotherType();
    void aRemovedValueIsGone();
    void unknownKeysAreKept();
    void nestedValuesAreKept();
    void anInfiniteNumberDoesNoHarm();
    void aKeyOfTheProgramIsReadAsItsType();
    void whatIsMissingUnderAKeyOfTheProgramReadsAsNothing();
    void aSwitchIsStoredAsANumber();
    void theSettingsInForceAreThoseInstalled();
};

void tst_UserDefaults::aMissingKeyReadsAsNothing()
{
    const SettingsFile file;
    const UserDefaults defaults(file.path());

    QVERIFY(!defaults.stringForKey(kKey).has_value());
    QCOMPARE(defaults.integerForKey(kKey), 0);
    QCOMPARE(defaults.boolForKey(kKey), false);
    QCOMPARE(defaults.floatForKey(kKey), 0.0F);
    QVERIFY(defaults.dictionaryForKey(kKey).isEmpty());
    QVERIFY(defaults.stringArrayForKey(kKey).isEmpty());
}

void tst_UserDefaults::valuesReadTheSameBeforeAndAfterARestart()
{
    const SettingsFile file;
    const QStringList list{QStringLiteral("b"), QString(), QStringLiteral("a")};
    const QVariantMap dictionary{{QStringLiteral("h"), 2}, {QStringLiteral("t"), list}};
    const auto check = [&](const UserDefaults &defaults) {
        QCOMPARE(defaults.stringForKey(QStringLiteral("text")), QStringLiteral("Grüße \"\\\n☕"));
        QCOMPARE(defaults.stringForKey(QStringLiteral("empty")), QString());
        QCOMPARE(defaults.integerForKey(QStringLiteral("unsigned")), 7);
        QCOMPARE(defaults.floatForKey(QStringLiteral("float")), 0.1F);
        QCOMPARE(defaults.boolForKey(QStringLiteral("yes")), true);
        QCOMPARE(defaults.stringArrayForKey(QStringLiteral("list")), list);
        const QVariantMap read = defaults.dictionaryForKey(QStringLiteral("dictionary"));
        QCOMPARE(read.value(QStringLiteral("h")).toInt(), 2);
        QCOMPARE(read.value(QStringLiteral("t")).typeId(), int(QMetaType::QVariantList));
    };
    {
        UserDefaults defaults(file.path());
        defaults.setObject(QStringLiteral("Grüße \"\\\n☕"), QStringLiteral("text"));
        defaults.setObject(QStringLiteral(""), QStringLiteral("empty"));
        defaults.setObject(7U, QStringLiteral("unsigned"));
        defaults.setObject(0.1F, QStringLiteral("float"));
        defaults.setObject(true, QStringLiteral("yes"));
        defaults.setObject(list, QStringLiteral("list"));
        defaults.setObject(dictionary, QStringLiteral("dictionary"));
        check(defaults);
    }
    check(UserDefaults(file.path()));
}

void tst_UserDefaults::aValueOfAnotherTypeReadsAsMissing_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("onlyType");
    QTest::newRow("a text") << QByteArray("\"7\"") << QByteArray("text");
    QTest::newRow("a number") << QByteArray("7") << QByteArray("number");
    QTest::newRow("a fraction") << QByteArray("7.5") << QByteArray("number");
    QTest::newRow("a truth") << QByteArray("true") << QByteArray("number");
    QTest::newRow("a list") << QByteArray("[\"7\"]") << QByteArray("list");
    QTest::newRow("a dictionary") << QByteArray("{\"a\": 7}") << QByteArray("dictionary");
    QTest::newRow("null") << QByteArray("null") << QByteArray("none");
}

void tst_UserDefaults::aValueOfAnotherTypeReadsAsMissing()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QByteArray, onlyType);
    const Read read(value);
    const UserDefaults defaults(read.file.path());

    QCOMPARE(defaults.stringForKey(kKey).has_value(), onlyType == "text");
    QCOMPARE(defaults.integerForKey(kKey) != 0, onlyType == "number");
    QCOMPARE(defaults.boolForKey(kKey), onlyType == "number");
    QCOMPARE(defaults.floatForKey(kKey) != 0, onlyType == "number");
    QCOMPARE(!defaults.stringArrayForKey(kKey).isEmpty(), onlyType == "list");
    QCOMPARE(!defaults.dictionaryForKey(kKey).isEmpty(), onlyType == "dictionary");
}

void tst_UserDefaults::numbersAreCutAndLimited_data()
{
    using Int = std::numeric_limits<int>;
    constexpr float largest = std::numeric_limits<float>::max();
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("integer");
    QTest::addColumn<float>("real");
    QTest::newRow("cut toward zero") << QByteArray("2.9") << 2 << 2.9F;
    QTest::newRow("cut toward zero from below") << QByteArray("-2.9") << -2 << -2.9F;
    QTest::newRow("largest integer") << QByteArray("2147483647") << Int::max() << 2147483648.0F;
    QTest::newRow("one more") << QByteArray("2147483648") << Int::max() << 2147483648.0F;
    QTest::newRow("smallest integer") << QByteArray("-2147483648") << Int::min() << -2147483648.0F;
    QTest::newRow("one less") << QByteArray("-2147483649") << Int::min() << -2147483648.0F;
    QTest::newRow("64 bits") << QByteArray("9223372036854775807") << Int::max() << 0x1p63F;
    QTest::newRow("more than 64 bits") << QByteArray("-1e30") << Int::min() << -1e30F;
    QTest::newRow("more than a float") << QByteArray("1e300") << Int::max() << largest;
    QTest::newRow("less than a float") << QByteArray("-1e300") << Int::min() << -largest;
    QTest::newRow("tiny") << QByteArray("1e-300") << 0 << 0.0F;
}

void tst_UserDefaults::numbersAreCutAndLimited()
{
    QFETCH(const QByteArray, value);
    QFETCH(const int, integer);
    QFETCH(const float, real);
    const Read read(value);
    const UserDefaults defaults(read.file.path());

    QCOMPARE(defaults.integerForKey(kKey), integer);
    QVERIFY(defaults.floatForKey(kKey) == real);
}

void tst_UserDefaults::aBoolIsAnyNumberOtherThanZero_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("one") << QByteArray("1") << true;
    QTest::newRow("zero") << QByteArray("0") << false;
    QTest::newRow("a negative number") << QByteArray("-3") << true;
    QTest::newRow("less than one") << QByteArray("0.5") << true;
    QTest::newRow("a word") << QByteArray("\"true\"") << false;
}

void tst_UserDefaults::aBoolIsAnyNumberOtherThanZero()
{
    QFETCH(const QByteArray, value);
    QFETCH(const bool, expected);
    const Read read(value);

    QCOMPARE(UserDefaults(read.file.path()).boolForKey(kKey), expected);
}

void tst_UserDefaults::aListLosesTheMembersThatAreNotTexts()
{
    const Read read("[\"a\", 1, null, [\"x\"], \"b\", {\"k\": \"v\"}, true, \"\"]");
    const UserDefaults defaults(read.file.path());

    QCOMPARE(defaults.stringArrayForKey(kKey),
             (QStringList{QStringLiteral("a"), QStringLiteral("b"), QString()}));
}

void tst_UserDefaults::aValueReplacesOneOfAnotherType()
{
    const Read read("{\"a\": {\"b\": 1}}");
    UserDefaults defaults(read.file.path());

    defaults.setObject(QStringLiteral("text"), kKey);
    defaults.synchronize();

    QVERIFY(defaults.dictionaryForKey(kKey).isEmpty());
    QCOMPARE(read.file.object(), (QJsonObject{{kKey, QStringLiteral("text")}}));
}

void tst_UserDefaults::aRemovedValueIsGone()
{
    const Read read("\"text\"");
    UserDefaults defaults(read.file.path());

    defaults.removeObjectForKey(kKey);
    QVERIFY(!defaults.stringForKey(kKey).has_value());
    defaults.synchronize();

    QCOMPARE(read.file.object(), QJsonObject());
}

void tst_UserDefaults::unknownKeysAreKept()
{
    const SettingsFile file;
    const QByteArray text =
        R"({"": 1, "a": 2, "A": 3, "a/b": 4, "/a//b/": 5, "%20": 6, "naïve ☕": 7,
                                "null": null, "General/x": 8, "known": "old"})";
    file.write(text);
    {
        UserDefaults defaults(file.path());
        defaults.setObject(QStringLiteral("new"), QStringLiteral("known"));
    }

    QJsonObject expected = QJsonDocument::fromJson(text).object();
    expected[QStringLiteral("known")] = QStringLiteral("new");
    QCOMPARE(file.object(), expected);
}

void tst_UserDefaults::nestedValuesAreKept()
{
    const SettingsFile file;
    const QByteArray text = R"({"other": {"list": [1, 2.5, "three", null, true, [], {}, -0.1,
                                9007199254740993, 1e300], "deeper": {"a": {"b": {"": [[[0]]]}}}}})";
    file.write(text);
    {
        UserDefaults defaults(file.path());
        defaults.setObject(1, kKey);
    }

    QJsonObject expected = QJsonDocument::fromJson(text).object();
    expected[kKey] = 1;
    QCOMPARE(file.object(), expected);
}

void tst_UserDefaults::anInfiniteNumberDoesNoHarm()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(std::numeric_limits<double>::infinity(), kKey);
    defaults.setObject(std::numeric_limits<double>::quiet_NaN(), QStringLiteral("nan"));
    defaults.setObject(1, QStringLiteral("other"));
    defaults.synchronize();

    QCOMPARE(defaults.integerForKey(kKey), 0);
    QCOMPARE(defaults.floatForKey(QStringLiteral("nan")), 0.0F);
    QCOMPARE(UserDefaults(file.path()).integerForKey(QStringLiteral("other")), 1);
}

void tst_UserDefaults::aKeyOfTheProgramIsReadAsItsType()
{
    SettingsFile file;
    const QStringList sounds{QStringLiteral("/b.wav"), QStringLiteral("/a.wav")};
    const QVariantMap timer{{QStringLiteral("hours"), 2}};
    const auto check = [&](const UserDefaults &defaults) {
        QCOMPARE(defaults.value(Keys::kSoundOff), true);
        QCOMPARE(defaults.value(Keys::kFinishedText), QStringLiteral("Tea!"));
        QCOMPARE(defaults.value(Keys::kGramsValue), 0.1F);
        QCOMPARE(defaults.value(Keys::kSoundHistory), sounds);
        QCOMPARE(defaults.value(Keys::kDefaultWufferSettings).value(QStringLiteral("hours")), 2);
    };
    UserDefaults defaults(file.path());
    defaults.setValue(true, Keys::kSoundOff);
    defaults.setValue(QStringLiteral("Tea!"), Keys::kFinishedText);
    defaults.setValue(0.1F, Keys::kGramsValue);
    defaults.setValue(sounds, Keys::kSoundHistory);
    defaults.setValue(timer, Keys::kDefaultWufferSettings);
    check(defaults);
    defaults.synchronize();
    check(UserDefaults(file.path()));
}

void tst_UserDefaults::whatIsMissingUnderAKeyOfTheProgramReadsAsNothing()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(QStringLiteral("a text"), QStringLiteral("soundOff"));
    defaults.setObject(7, QStringLiteral("finishedText"));
    defaults.setValue(QStringLiteral("/a.wav"), Keys::kAlarmPath);
    defaults.removeValue(Keys::kAlarmPath);

    QCOMPARE(defaults.value(Keys::kSoundOff), false);
    QCOMPARE(defaults.value(Keys::kFinishedText), QString());
    QCOMPARE(defaults.value(Keys::kAlarmPath), QString());
    QCOMPARE(defaults.value(Keys::kGramsValue), 0.0F);
    QVERIFY(defaults.value(Keys::kSoundHistory).isEmpty());
    QVERIFY(defaults.value(Keys::kWindowFrames).isEmpty());
}

void tst_UserDefaults::aSwitchIsStoredAsANumber()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setValue(true, Keys::kSoundOff);
    defaults.setValue(false, Keys::kNoStatusBar);
    defaults.synchronize();
    QCOMPARE(file.object().value(QStringLiteral("soundOff")), QJsonValue(1));
    QCOMPARE(file.object().value(QStringLiteral("noStatusBar")), QJsonValue(0));
}

void tst_UserDefaults::theSettingsInForceAreThoseInstalled()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    const Service<UserDefaults> service(defaults);

    QCOMPARE(&UserDefaults::standardUserDefaults(), &defaults);
}

WUFFER_TEST(tst_UserDefaults, WithoutWindows)
#include "tst_UserDefaults.moc"
