#include "base/UserDefaults.h"
#include "support/OrdinaryUser.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

namespace
{
const QString kKey = QStringLiteral("key");
const QString kFileName = QStringLiteral("settings.json");
const QString kSetAside = QStringLiteral("settings.json.unreadable");

/// Opens the settings, changes one and closes them, as a run of the program does.
void changeASetting(const QString &path, int value)
{
    UserDefaults defaults(path);
    defaults.setObject(value, kKey);
}
} // namespace

/// The format of the settings file, and what happens to an invalid one.
class tst_JsonSettingsFormat final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theFileIsReadableWithSortedKeys();
    void aFileThatCannotBeUnderstoodIsSetAside_data();
    void aFileThatCannotBeUnderstoodIsSetAside();
    void aSecondFileThatCannotBeUnderstoodGetsANumber();
    void aFileThatIsSpoiledMeanwhileIsSetAsideToo();
    void readingAloneSetsAsideButWritesNothing();
    void aFileWithoutContentIsNoSettings_data();
    void aFileWithoutContentIsNoSettings();
    void aMissingFolderIsMade();
    void aDeeplyNestedFileDoesNoHarm_data();
    void aDeeplyNestedFileDoesNoHarm();
    void aFileWithTooManyKeysIsSetAside();
    void aLongListOfSoundsIsKept();
    void aFolderInItsPlaceIsSetAside();
    void aFileThatMayNotBeReadIsSetAside();
    void aFileThatMayNotBeReadAnyMoreIsNotOverwritten();
    void aFileThatMayNotBeWrittenIsLeftAlone();
    void whatCannotBeSetAsideIsNotOverwritten();
    void aFolderThatMayNotBeWrittenKeepsTheValuesInMemory();
    void aChangeByAnotherProgramIsKept();
    void aLinkedFileStaysLinked();
};

void tst_JsonSettingsFormat::theFileIsReadableWithSortedKeys()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(QStringLiteral("Grüße"), QStringLiteral("b"));
    defaults.setObject(QStringList{QStringLiteral("x")}, QStringLiteral("c"));
    defaults.setObject(true, QStringLiteral("a"));
    defaults.synchronize();

    QCOMPARE(file.text(), QByteArray("{\n"
                                     "    \"a\": true,\n"
                                     "    \"b\": \"Grüße\",\n"
                                     "    \"c\": [\n"
                                     "        \"x\"\n"
                                     "    ]\n"
                                     "}\n"));
}

void tst_JsonSettingsFormat::aFileThatCannotBeUnderstoodIsSetAside_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no JSON") << QByteArray("[General]\nkey=1\n");
    QTest::newRow("cut off") << QByteArray("{\"key\": 1, \"other");
    QTest::newRow("a comma too many") << QByteArray("{\"key\": 1,}");
    QTest::newRow("something after the end") << QByteArray("{\"key\": 1} {}");
    QTest::newRow("a list") << QByteArray("[1, 2]");
    QTest::newRow("an empty list") << QByteArray("[]");
    QTest::newRow("a text") << QByteArray("\"key\"");
    QTest::newRow("a number") << QByteArray("1");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("zero bytes") << QByteArray(64, '\0');
    QTest::newRow("not UTF-8") << QByteArray("{\"key\": \"\xFF\xFE\"}");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE{\0}\0", 6);
    QTest::newRow("a number beyond all") << QByteArray("{\"key\": 1e999}");
}

void tst_JsonSettingsFormat::aFileThatCannotBeUnderstoodIsSetAside()
{
    QFETCH(const QByteArray, text);
    const SettingsFile file;
    file.write(text);

    changeASetting(file.path(), 2);

    QCOMPARE(file.textBeside(kSetAside), text);
    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_JsonSettingsFormat::aSecondFileThatCannotBeUnderstoodGetsANumber()
{
    const SettingsFile file;
    for (const char *text : {"first", "second", "third"}) {
        file.write(text);
        changeASetting(file.path(), 1);
    }

    QCOMPARE(file.textBeside(kSetAside), QByteArray("first"));
    QCOMPARE(file.textBeside(kSetAside + QStringLiteral(".2")), QByteArray("second"));
    QCOMPARE(file.textBeside(kSetAside + QStringLiteral(".3")), QByteArray("third"));
    QCOMPARE(file.folder().size(), 4);
}

void tst_JsonSettingsFormat::aFileThatIsSpoiledMeanwhileIsSetAsideToo()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(1, kKey);
    defaults.synchronize();

    file.write("{\"key\": 1, \"mended by hand\": }");
    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(file.textBeside(kSetAside), QByteArray("{\"key\": 1, \"mended by hand\": }"));
    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_JsonSettingsFormat::readingAloneSetsAsideButWritesNothing()
{
    const SettingsFile file;
    file.write("no settings");

    QCOMPARE(UserDefaults(file.path()).integerForKey(kKey), 0);

    QCOMPARE(file.folder(), QStringList{kSetAside});
}

void tst_JsonSettingsFormat::aFileWithoutContentIsNoSettings_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blank") << QByteArray(" \n\t\r\n");
    QTest::newRow("an empty object") << QByteArray("{}");
    QTest::newRow("a byte order mark") << QByteArray("\xEF\xBB\xBF{}");
}

void tst_JsonSettingsFormat::aFileWithoutContentIsNoSettings()
{
    QFETCH(const QByteArray, text);
    const SettingsFile file;
    file.write(text);

    changeASetting(file.path(), 2);

    QCOMPARE(file.folder(), QStringList{kFileName});
    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_JsonSettingsFormat::aMissingFolderIsMade()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("some/where/settings.json"));

    changeASetting(path, 2);

    QCOMPARE(UserDefaults(path).integerForKey(kKey), 2);
    QVERIFY(QFile::exists(path));
}

void tst_JsonSettingsFormat::aDeeplyNestedFileDoesNoHarm_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("understood");
    QTest::newRow("deep") << 500 << true;
    QTest::newRow("too deep") << 600 << false;
    QTest::newRow("far too deep") << 100'000 << false;
}

void tst_JsonSettingsFormat::aDeeplyNestedFileDoesNoHarm()
{
    QFETCH(const int, depth);
    QFETCH(const bool, understood);
    const SettingsFile file;
    file.write("{\"deep\": " + QByteArray(depth, '[') + QByteArray(depth, ']') + "}");

    changeASetting(file.path(), 2);

    QCOMPARE(file.object().value(kKey), QJsonValue(2));
    QCOMPARE(file.object().contains(QStringLiteral("deep")), understood);
    QCOMPARE(file.folder().contains(kSetAside), !understood);
}

void tst_JsonSettingsFormat::aFileWithTooManyKeysIsSetAside()
{
    QByteArray text = "{\"key\": 1";
    for (int number = 0; number < 200'000; ++number)
        text += ", \"" + QByteArray::number(number) + "\": 1";
    text += "}";
    const SettingsFile file;
    file.write(text);

    changeASetting(file.path(), 2);

    QCOMPARE(file.textBeside(kSetAside), text);
    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_JsonSettingsFormat::aLongListOfSoundsIsKept()
{
    QStringList sounds;
    for (int number = 0; number < 200'000; ++number)
        sounds << QStringLiteral("/%1.wav").arg(number);
    const SettingsFile file;
    {
        UserDefaults defaults(file.path());
        defaults.setValue(sounds, Keys::kSoundHistory);
    }

    changeASetting(file.path(), 2);

    QCOMPARE(UserDefaults(file.path()).value(Keys::kSoundHistory), sounds);
    QCOMPARE(file.folder(), QStringList{kFileName});
}

void tst_JsonSettingsFormat::aFolderInItsPlaceIsSetAside()
{
    const SettingsFile file;
    QVERIFY(QDir().mkpath(file.path() + QStringLiteral("/inside")));

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QVERIFY(QFile::exists(file.path() + QStringLiteral(".unreadable/inside")));
}

void tst_JsonSettingsFormat::aFileThatMayNotBeReadIsSetAside()
{
    const OrdinaryUser user;
    const SettingsFile file;
    file.write("{\"key\": 1}");
    QVERIFY(QFile::setPermissions(file.path(), {}));

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    const QString aside = file.path() + QStringLiteral(".unreadable");
    QVERIFY(QFile::setPermissions(aside, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(file.textBeside(kSetAside), QByteArray("{\"key\": 1}"));
}

void tst_JsonSettingsFormat::aFileThatMayNotBeReadAnyMoreIsNotOverwritten()
{
    const OrdinaryUser user;
    const SettingsFile file;
    UserDefaults defaults(file.path());
    file.write("{\"key\": 1}");
    QVERIFY(QFile::setPermissions(file.path(), {}));

    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(defaults.integerForKey(kKey), 2);
    QVERIFY(QFile::setPermissions(file.path(), QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(file.text(), QByteArray("{\"key\": 1}"));
}

void tst_JsonSettingsFormat::aFileThatMayNotBeWrittenIsLeftAlone()
{
    const OrdinaryUser user;
    const SettingsFile file;
    file.write("{\"key\": 1}");
    QVERIFY(QFile::setPermissions(file.path(), QFile::ReadOwner));
    UserDefaults defaults(file.path());

    QCOMPARE(defaults.integerForKey(kKey), 1);
    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(defaults.integerForKey(kKey), 2);
    QCOMPARE(file.text(), QByteArray("{\"key\": 1}"));
    QCOMPARE(file.folder(), QStringList{kFileName});
}

void tst_JsonSettingsFormat::whatCannotBeSetAsideIsNotOverwritten()
{
    const QTemporaryDir folder;
    // The name with the suffix for files set aside would be too long.
    QFile file(folder.filePath(QString(245, QLatin1Char('s'))));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no settings") > 0);
    file.close();
    {
        UserDefaults defaults(file.fileName());
        defaults.setObject(2, kKey);
        defaults.synchronize();
        QCOMPARE(defaults.integerForKey(kKey), 2);
    }

    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("no settings"));
}

void tst_JsonSettingsFormat::aFolderThatMayNotBeWrittenKeepsTheValuesInMemory()
{
    const OrdinaryUser user;
    const SettingsFile file;
    file.write("{\"key\": 1}");
    const QString folder = QFileInfo(file.path()).path();
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        UserDefaults defaults(file.path());
        QCOMPARE(defaults.integerForKey(kKey), 1);
        defaults.setObject(2, kKey);
        defaults.synchronize();
        QCOMPARE(defaults.integerForKey(kKey), 2);
        QCOMPARE(file.text(), QByteArray("{\"key\": 1}"));

        QVERIFY(
            QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        defaults.synchronize();
    }
    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_JsonSettingsFormat::aChangeByAnotherProgramIsKept()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(1, kKey);
    defaults.synchronize();

    file.write("{\"key\": 1, \"mended by hand\": true}");
    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}, {QStringLiteral("mended by hand"), true}}));
}

void tst_JsonSettingsFormat::aLinkedFileStaysLinked()
{
    const SettingsFile file;
    const QString elsewhere = QFileInfo(file.path()).path() + QStringLiteral("/elsewhere.json");
    changeASetting(elsewhere, 1);
    QVERIFY(QFile::link(elsewhere, file.path()));

    changeASetting(file.path(), 2000);

    QVERIFY(QFileInfo(file.path()).isSymbolicLink());
    QCOMPARE(UserDefaults(elsewhere).integerForKey(kKey), 2000);
}

WUFFER_TEST(tst_JsonSettingsFormat, WithoutWindows)
#include "tst_JsonSettingsFormat.moc"
