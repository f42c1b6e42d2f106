#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <QDateTime>
#include <QFileInfo>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QString kFileName = QStringLiteral("settings.json");

QString beside(const SettingsFile &file, const QString &name)
{
    return QFileInfo(file.path()).path() + QLatin1Char('/') + name;
}

void makeOlder(const QString &path, int minutes)
{
    QFile file(path);
    const QDateTime then = QDateTime::currentDateTime().addSecs(-60LL * minutes);
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(then, QFileDevice::FileModificationTime))
        qFatal("the time of the file could not be set");
}

/// Makes a file of this age beside the settings, and returns its path.
QString makeFile(const SettingsFile &file, const QString &name, int minutes)
{
    QFile made(beside(file, name));
    if (!made.open(QIODevice::WriteOnly) || made.write("{\"key\": 1}") < 0)
        qFatal("the file could not be written");
    made.close();
    makeOlder(made.fileName(), minutes);
    return made.fileName();
}

void start(const SettingsFile &file)
{
    const UserDefaults defaults(file.path());
}
} // namespace

/// Which files beside the settings are removed at the start.
class tst_SettingsLeftovers final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void onlyOldTemporaryFilesAndLocksAreRemoved_data();
    void onlyOldTemporaryFilesAndLocksAreRemoved();
    void whatIsNoFileStays();
    void theFileOfAnotherUserStays();
    void aLeftoverBesideALinkedFileIsRemoved();
    void nothingElsewhereIsRemoved();
};

void tst_SettingsLeftovers::onlyOldTemporaryFilesAndLocksAreRemoved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<bool>("stays");
    const auto row = [](const char *what, const char *name, int minutes, bool stays) {
        QTest::newRow(what) << QString::fromLatin1(name) << minutes << stays;
    };
    row("a temporary file", "settings.json.xPAzzF", 61, false);
    row("another temporary file", "settings.json.QeOTgl", 100'000, false);
    row("a temporary file with a capital at its end", "settings.json.qeOtgL", 61, false);
    row("a lock", "settings.json.lock", 61, false);
    row("a young temporary file", "settings.json.xPAzzF", 59, true);
    row("a young lock", "settings.json.lock", 59, true);
    row("a file of the future", "settings.json.xPAzzF", -100'000, true);
    row("a copy", "settings.json.backup", 61, true);
    row("a copy in capitals", "settings.json.BACKUP", 61, true);
    row("a copy with a capital", "settings.json.Backup", 61, true);
    row("a copy with two words", "settings.json.myCopy", 61, true);
    row("a copy with two words in capitals", "settings.json.OldOne", 61, true);
    row("a copy with three words", "settings.json.asOfMy", 61, true);
    row("a longer name", "settings.json.xPAzzFi", 61, true);
    row("a shorter name", "settings.json.xPAzz", 61, true);
    row("digits", "settings.json.xPAzz1", 61, true);
    row("the temporary file of another file", "another.json.xPAzzF", 61, true);
    row("a temporary file of a copy", "settings.json.unreadable.xPAzzF", 61, true);
    row("a file set aside", "settings.json.unreadable", 61, true);
    row("the settings", "settings.json", 61, true);
}

void tst_SettingsLeftovers::onlyOldTemporaryFilesAndLocksAreRemoved()
{
    QFETCH(const QString, name);
    QFETCH(const int, minutes);
    QFETCH(const bool, stays);
    const SettingsFile file;
    makeFile(file, name, minutes);

    start(file);

    QCOMPARE(file.folder(), stays ? QStringList{name} : QStringList());
}

void tst_SettingsLeftovers::whatIsNoFileStays()
{
    const SettingsFile file;
    const QString target = makeFile(file, QStringLiteral("target"), 61);
    QVERIFY(QFile::link(target, beside(file, QStringLiteral("settings.json.lINked"))));
    QVERIFY(QDir().mkdir(beside(file, QStringLiteral("settings.json.foLDer"))));
    const QString pipe = beside(file, QStringLiteral("settings.json.piPEee"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const std::array<timespec, 2> longAgo{{{1, 0}, {1, 0}}};
    for (const char *name :
         {"settings.json.lINked", "settings.json.foLDer", "settings.json.piPEee"}) {
        const QByteArray path = QFile::encodeName(beside(file, QString::fromLatin1(name)));
        QCOMPARE(::utimensat(AT_FDCWD, path.constData(), longAgo.data(), AT_SYMLINK_NOFOLLOW), 0);
    }
    const QStringList before =
        QDir(QFileInfo(file.path()).path()).entryList(QDir::AllEntries | QDir::System);

    start(file);

    QCOMPARE(QDir(QFileInfo(file.path()).path()).entryList(QDir::AllEntries | QDir::System),
             before);
}

void tst_SettingsLeftovers::theFileOfAnotherUserStays()
{
    if (::geteuid() != 0)
        QSKIP("only root can make a file of another user");
    const SettingsFile file;
    const QString path = makeFile(file, QStringLiteral("settings.json.xPAzzF"), 61);
    QCOMPARE(::chown(QFile::encodeName(path).constData(), 65534, 65534), 0);

    start(file);

    QVERIFY(QFile::exists(path));
}

void tst_SettingsLeftovers::aLeftoverBesideALinkedFileIsRemoved()
{
    const SettingsFile file;
    const SettingsFile elsewhere;
    elsewhere.write("{}");
    QVERIFY(QFile::link(elsewhere.path(), file.path()));
    makeFile(elsewhere, QStringLiteral("settings.json.xPAzzF"), 61);

    start(file);

    QCOMPARE(elsewhere.folder(), QStringList{kFileName});
}

void tst_SettingsLeftovers::nothingElsewhereIsRemoved()
{
    const SettingsFile file;
    QVERIFY(QDir().mkdir(beside(file, QStringLiteral("folder"))));
    const QString path = makeFile(file, QStringLiteral("folder/settings.json.xPAzzF"), 61);

    start(file);

    QVERIFY(QFile::exists(path));
}

WUFFER_TEST(tst_SettingsLeftovers, WithoutWindows)
#include "tst_SettingsLeftovers.moc"
