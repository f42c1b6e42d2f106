#include "base/UserDefaults.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTimer>

#include <cstdio>
#include <memory>

namespace
{
const QString kKey = QStringLiteral("count");
const QString kText = QStringLiteral("text");

enum class Mode { Once, Endlessly };

/// A second process of this test program that changes settings until it is killed.
class Writer final
{
public:
    Writer(const SettingsFile &file, Mode mode)
    {
        const QString how = QString::number(static_cast<int>(mode));
        _process.start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("SettingsDurability"), QStringLiteral("--write"), file.path(), how});
        // It prints a line after its first change.
        if (!_process.waitForReadyRead())
            qFatal("the writer did not start");
    }
    ~Writer()
    {
        _process.kill();
        _process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Writer)

private:
    QProcess _process;
};

/// The main function of the second process.
int writeSettings(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    UserDefaults defaults(arguments.at(2));
    const auto change = [&] {
        defaults.setObject(defaults.integerForKey(kKey) + 1, kKey);
        defaults.setObject(QString(100'000, QLatin1Char('x')), kText);
    };
    QTimer again;
    again.callOnTimeout(change);
    if (arguments.at(3).toInt() == static_cast<int>(Mode::Endlessly))
        again.start(0);
    change();
    std::puts("changed");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
} // namespace

/// When changes reach the disk, and that the file is never half written. These tests take real
/// time, because they wait for other processes.
class tst_SettingsDurability final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeIsOnDiskAfterSynchronizing();
    void aChangeIsOnDiskByItselfWithinASecond();
    void aChangeIsOnDiskWhenTheSettingsEnd();
    void theFileIsReplacedAndNotRewritten();
    void nothingIsWrittenWithoutAChange();
    void aChangeOutlivesAKillOneSecondLater();
    void aKillAtAnyMomentLeavesAWholeFile();
};

void tst_SettingsDurability::aChangeIsOnDiskAfterSynchronizing()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());

    defaults.setObject(1, kKey);
    defaults.synchronize();
    QCOMPARE(file.object(), (QJsonObject{{kKey, 1}}));

    defaults.removeObjectForKey(kKey);
    defaults.synchronize();
    QCOMPARE(file.object(), QJsonObject());
    QCOMPARE(file.text(), QByteArray("{\n}\n"));
}

void tst_SettingsDurability::aChangeIsOnDiskByItselfWithinASecond()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());

    defaults.setObject(1, kKey);
    QTRY_COMPARE_WITH_TIMEOUT(file.object(), (QJsonObject{{kKey, 1}}), 1000);
    defaults.removeObjectForKey(kKey);
    QTRY_COMPARE_WITH_TIMEOUT(file.text(), QByteArray("{\n}\n"), 1000);
}

void tst_SettingsDurability::aChangeIsOnDiskWhenTheSettingsEnd()
{
    const SettingsFile file;
    auto defaults = std::make_unique<UserDefaults>(file.path());

    defaults->setObject(1, kKey);
    defaults.reset();

    QCOMPARE(file.object(), (QJsonObject{{kKey, 1}}));
}

void tst_SettingsDurability::theFileIsReplacedAndNotRewritten()
{
    const SettingsFile file;
    UserDefaults defaults(file.path());
    defaults.setObject(1, kKey);
    defaults.synchronize();
    QFile before(file.path());
    QVERIFY(before.open(QIODevice::ReadOnly));

    defaults.setObject(2, kKey);
    defaults.synchronize();

    // A reader that had the file open still sees the whole old one.
    QCOMPARE(QJsonDocument::fromJson(before.readAll()).object(), (QJsonObject{{kKey, 1}}));
    QCOMPARE(file.object(), (QJsonObject{{kKey, 2}}));
    QCOMPARE(file.folder().size(), 1);
}

void tst_SettingsDurability::nothingIsWrittenWithoutAChange()
{
    const SettingsFile file;
    {
        UserDefaults defaults(file.path());
        QCOMPARE(defaults.integerForKey(kKey), 0);
        defaults.synchronize();
    }
    QCOMPARE(file.folder(), QStringList());
}

void tst_SettingsDurability::aChangeOutlivesAKillOneSecondLater()
{
    const SettingsFile file;
    {
        const Writer writer(file, Mode::Once);
        QTest::qWait(1000);
    }
    QCOMPARE(file.object().value(kKey), QJsonValue(1));
    QCOMPARE(file.object().value(kText).toString().size(), 100'000);
}

void tst_SettingsDurability::aKillAtAnyMomentLeavesAWholeFile()
{
    const SettingsFile file;
    QRandomGenerator random(1);
    QElapsedTimer elapsed;
    elapsed.start();
    int last = 0;
    int kills = 0;
    for (; kills < 36 && (kills < 5 || elapsed.elapsed() < 3000); ++kills) {
        {
            const Writer writer(file, Mode::Endlessly);
            QTest::qWait(static_cast<int>(random.bounded(30)));
        }
        const QJsonObject settings = file.object();
        QVERIFY2(settings.isEmpty() ? last == 0 : settings.value(kKey).toInt() >= last,
                 qPrintable(QStringLiteral("after %1").arg(last)));
        last = settings.value(kKey).toInt();
    }
    QVERIFY(last > 0);
    QVERIFY(file.textBeside(QStringLiteral("settings.json.unreadable")).isNull());
}

static int writeOrTest(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], "--write") == 0)
        return writeSettings(argc, argv);
    return runTest<tst_SettingsDurability, WithoutWindows>(argc, argv);
}

namespace
{
const KnownTest known("tst_SettingsDurability", &writeOrTest);
}
#include "tst_SettingsDurability.moc"
