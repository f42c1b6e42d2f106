#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <unistd.h>
#include <vector>

namespace
{
const QString kKey = QStringLiteral("key");
constexpr int kChanges = 20;

/// The lock that another process holds while it writes this file.
class ForeignLock final
{
public:
    explicit ForeignLock(const SettingsFile &file) :
        _folder(::open(QFile::encodeName(QFileInfo(file.path()).path()).constData(), O_RDONLY))
    {
        if (flock(_folder, LOCK_EX | LOCK_NB) != 0)
            qFatal("the folder could not be locked");
    }
    ~ForeignLock() { ::close(_folder); }
    Q_DISABLE_COPY_MOVE(ForeignLock)

private:
    const int _folder;
};

/// Writes a file beside the settings, as another program may leave it as a lock.
void writeLockFile(const SettingsFile &file, const QByteArray &text)
{
    QFile lock(file.path() + QStringLiteral(".lock"));
    if (!lock.open(QIODevice::WriteOnly) || lock.write(text) != text.size())
        qFatal("the lock could not be made");
}

/// Starts a process of this test program that adds many settings with this name, one by one.
std::unique_ptr<QProcess> startWriter(const SettingsFile &file, const QString &name)
{
    auto process = std::make_unique<QProcess>();
    process->start(QCoreApplication::applicationFilePath(),
                   {QStringLiteral("SettingsLock"), QStringLiteral("--write"), file.path(), name});
    return process;
}

/// The main function of that process.
int writeSettings(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString path = arguments.at(2);
    UserDefaults defaults(path);
    QString key;
    for (int change = 0; change < kChanges; ++change) {
        key = arguments.at(3) + QString::number(change);
        defaults.setObject(change, key);
        QCoreApplication::processEvents();
    }
    // At its end it would wait for the other writers for a moment only.
    while (!SettingsFile::objectAt(path).contains(key))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return 0;
}
} // namespace

/// That no lock stops the program, and no change of another process is lost. These tests take real
/// time, because they wait for timers and other processes.
class tst_SettingsLock final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aLockFileBesideTheSettingsIsNotWaitedFor_data();
    void aLockFileBesideTheSettingsIsNotWaitedFor();
    void aFolderInPlaceOfALockFileIsNotWaitedFor();
    void aChangeIsWrittenWhenTheOtherWriterIsDone();
    void aWriterThatHangsIsNotWaitedForLong();
    void aWriterThatHangsDoesNotKeepTheLastChangesBack();
    void noChangeOfSeveralWritersIsLost();
};

void tst_SettingsLock::aLockFileBesideTheSettingsIsNotWaitedFor_data()
{
    const QByteArray self = QByteArray::number(QCoreApplication::applicationPid());
    const QByteArray host = QSysInfo::machineHostName().toUtf8();
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("junk") << QByteArray("\0\xFF no lock", 10);
    QTest::newRow("of a living process") << self + "\ntests_base\n" + host + "\n";
    QTest::newRow("of the first process") << "1\ninit\n" + host + "\n";
    QTest::newRow("of a killed process") << "2147483647\nwuffer\n" + host + "\n";
}

void tst_SettingsLock::aLockFileBesideTheSettingsIsNotWaitedFor()
{
    QFETCH(const QByteArray, text);
    const SettingsFile file;
    writeLockFile(file, text);
    QElapsedTimer elapsed;
    elapsed.start();

    UserDefaults defaults(file.path());
    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QVERIFY2(elapsed.elapsed() < 5000, qPrintable(QString::number(elapsed.elapsed())));
}

void tst_SettingsLock::aFolderInPlaceOfALockFileIsNotWaitedFor()
{
    const SettingsFile file;
    QVERIFY(QDir().mkpath(file.path() + QStringLiteral(".lock/inside")));

    UserDefaults defaults(file.path());
    defaults.setObject(2, kKey);
    defaults.synchronize();

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_SettingsLock::aChangeIsWrittenWhenTheOtherWriterIsDone()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    auto other = std::make_unique<ForeignLock>(file);
    defaults.setObject(2, kKey);
    defaults.synchronize();
    QVERIFY(!QFile::exists(file.path()));

    file.write("{\"another\": 1}");
    other.reset();

    QTRY_COMPARE_WITH_TIMEOUT(file.object(),
                              (QJsonObject{{QStringLiteral("another"), 1}, {kKey, 2}}), 20'000);
}

void tst_SettingsLock::aWriterThatHangsIsNotWaitedForLong()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    const ForeignLock other(file);
    defaults.setObject(2, kKey);

    QTRY_COMPARE_WITH_TIMEOUT(file.object(), (QJsonObject{{kKey, 2}}), 20'000);
}

void tst_SettingsLock::aWriterThatHangsDoesNotKeepTheLastChangesBack()
{
    const SettingsFile file;
    auto defaults = std::make_unique<UserDefaults>(file.path());
    const ForeignLock other(file);
    defaults->setObject(2, kKey);

    defaults.reset();

    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
}

void tst_SettingsLock::noChangeOfSeveralWritersIsLost()
{
    const SettingsFile file;
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const char *name : {"a", "b", "c", "d"})
        writers.push_back(startWriter(file, QString::fromLatin1(name)));
    for (const auto &writer : writers) {
        QVERIFY(writer->waitForFinished());
        QCOMPARE(writer->exitCode(), 0);
    }

    QCOMPARE(file.object().size(), kChanges * qsizetype(writers.size()));
}

static int writeOrTest(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], "--write") == 0)
        return writeSettings(argc, argv);
    return runTest<tst_SettingsLock, WithoutWindows>(argc, argv);
}

namespace
{
const KnownTest known("tst_SettingsLock", &writeOrTest);
}
#include "tst_SettingsLock.moc"
