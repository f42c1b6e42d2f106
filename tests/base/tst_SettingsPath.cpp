#include "base/SettingsPath.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <QFileInfo>

#include <sys/stat.h>

namespace
{
const QString kKey = QStringLiteral("key");
const QString kFileName = QStringLiteral("settings.json");
const QString kSetAside = QStringLiteral("settings.json.unreadable");

constexpr auto kOnlyTheOwner = QFile::ReadOwner | QFile::WriteOwner;

/// The permissions of owner, group and others, without the flags for the current user.
QFile::Permissions permissionsOf(const QString &path)
{
    return QFileInfo(path).permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
}

void changeASetting(const QString &path, int value)
{
    UserDefaults defaults(path);
    defaults.setObject(value, kKey);
}
} // namespace

/// What may be found at the path of the settings file, and its permissions.
class tst_SettingsPath final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aPipeIsSetAsideAndNotWaitedFor();
    void aLinkToADeviceIsSetAside();
    void aLinkToItselfIsSetAside();
    void aLinkToNothingLeadsToTheNewFile();
    void theFileThatALinkLeadsToIsSetAsideAndTheLinkStays();
    void aFileTooLargeForSettingsIsSetAside();
    void aFileThatGrowsTooLargeMeanwhileIsSetAside();
    void anEarlierFileSetAsideIsNotOverwritten();
    void onlyTheOwnerMayReadANewFile();
    void onlyTheOwnerMayReadARewrittenFile();
    void onlyTheOwnerMayLookIntoANewFolder();
    void aFolderThatIsThereStaysAsItIs();
};

void tst_SettingsPath::aPipeIsSetAsideAndNotWaitedFor()
{
    const SettingsFile file;
    QCOMPARE(mkfifo(QFile::encodeName(file.path()).constData(), 0600), 0);

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QVERIFY(file.folder().contains(kFileName));
}

void tst_SettingsPath::aLinkToADeviceIsSetAside()
{
    const SettingsFile file;
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), file.path()));

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QVERIFY(!QFileInfo(file.path()).isSymbolicLink());
    QCOMPARE(QFileInfo(file.path() + QStringLiteral(".unreadable")).symLinkTarget(),
             QStringLiteral("/dev/full"));
}

void tst_SettingsPath::aLinkToItselfIsSetAside()
{
    const SettingsFile file;
    QVERIFY(QFile::link(file.path(), file.path()));

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_SettingsPath::aLinkToNothingLeadsToTheNewFile()
{
    const SettingsFile file;
    const SettingsFile elsewhere;
    QVERIFY(QFile::link(elsewhere.path(), file.path()));

    changeASetting(file.path(), 2);

    QVERIFY(QFileInfo(file.path()).isSymbolicLink());
    QCOMPARE(elsewhere.object(), (QJsonObject{{kKey, 2}}));
}

void tst_SettingsPath::theFileThatALinkLeadsToIsSetAsideAndTheLinkStays()
{
    const SettingsFile file;
    const SettingsFile elsewhere;
    elsewhere.write("no settings");
    QVERIFY(QFile::link(elsewhere.path(), file.path()));

    changeASetting(file.path(), 2);

    QCOMPARE(file.folder(), QStringList{kFileName});
    QCOMPARE(elsewhere.object(), (QJsonObject{{kKey, 2}}));
    QCOMPARE(elsewhere.textBeside(kSetAside), QByteArray("no settings"));
}

void tst_SettingsPath::aFileTooLargeForSettingsIsSetAside()
{
    const SettingsFile file;
    const QByteArray text = "{\"key\": \"" + QByteArray(100'000'000, 'x') + "\"}";
    file.write(text);

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QCOMPARE(file.textBeside(kSetAside).size(), text.size());
}

void tst_SettingsPath::aFileThatGrowsTooLargeMeanwhileIsSetAside()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(1, kKey);
    defaults.synchronize();
    file.write("{\"key\": \"" + QByteArray(20'000'000, 'x') + "\"}");

    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QVERIFY(file.textBeside(kSetAside).size() > 20'000'000);
}

void tst_SettingsPath::anEarlierFileSetAsideIsNotOverwritten()
{
    const SettingsFile file;
    // A dangling link takes the name as well.
    QVERIFY(QFile::link(QStringLiteral("/nonexistent/file"),
                        file.path() + QStringLiteral(".unreadable")));
    file.write("no settings");

    QVERIFY(SettingsPath::setAside(file.path()));

    QCOMPARE(file.textBeside(kSetAside + QStringLiteral(".2")), QByteArray("no settings"));
}

void tst_SettingsPath::onlyTheOwnerMayReadANewFile()
{
    const SettingsFile file;

    changeASetting(file.path(), 2);

    QCOMPARE(permissionsOf(file.path()), kOnlyTheOwner);
}

void tst_SettingsPath::onlyTheOwnerMayReadARewrittenFile()
{
    const SettingsFile file;
    file.write("{\"key\": 1}");
    QVERIFY(QFile::setPermissions(file.path(), kOnlyTheOwner | QFile::ReadGroup | QFile::ReadOther |
                                                   QFile::WriteOther));

    changeASetting(file.path(), 2);

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QCOMPARE(permissionsOf(file.path()), kOnlyTheOwner);
}

void tst_SettingsPath::onlyTheOwnerMayLookIntoANewFolder()
{
    const QTemporaryDir folder;

    changeASetting(folder.filePath(QStringLiteral("some/where/settings.json")), 2);

    for (const char *made : {"some", "some/where"}) {
        QCOMPARE(permissionsOf(folder.filePath(QString::fromLatin1(made))),
                 kOnlyTheOwner | QFile::ExeOwner);
    }
}

void tst_SettingsPath::aFolderThatIsThereStaysAsItIs()
{
    const QTemporaryDir folder;
    constexpr auto permissions = kOnlyTheOwner | QFile::ExeOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(folder.path(), permissions));

    changeASetting(folder.filePath(kFileName), 2);

    QCOMPARE(permissionsOf(folder.path()), QFile::Permissions(permissions));
}

WUFFER_TEST(tst_SettingsPath, WithoutWindows)
#include "tst_SettingsPath.moc"
