#include "base/RegularFile.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace
{
/// A folder with a file named "file" that contains "tea".
struct Fixture
{
    Fixture()
    {
        QFile made(path("file"));
        if (!made.open(QIODevice::WriteOnly) || made.write("tea") != 3)
            qFatal("the file could not be written");
    }

    [[nodiscard]] QString path(const char *name) const
    {
        return folder.filePath(QString::fromLatin1(name));
    }

    QTemporaryDir folder;
};

using Access = RegularFile::Access;
} // namespace

/// Which paths are opened as regular files.
class tst_RegularFile final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsReadFromItsBeginning();
    void aDeviceOutlivesWhatHasOpenedIt();
    void aFileIsGivenAwayOnce();
    void aPathWithoutAFileIsMissing();
    void aLinkThatLeadsNowhereIsMissing();
    void foldersPipesAndDevicesAreNeitherOpenedNorMissing_data();
    void foldersPipesAndDevicesAreNeitherOpenedNorMissing();
};

void tst_RegularFile::aFileIsReadFromItsBeginning()
{
    const Fixture f;
    for (const Access access : {Access::Read, Access::ReadAndWrite}) {
        RegularFile file(f.path("file"), access);
        QVERIFY(file.isOpen());
        QVERIFY(!file.isMissing());
        QCOMPARE(file.takeDevice()->readAll(), QByteArray("tea"));
    }
}

void tst_RegularFile::aDeviceOutlivesWhatHasOpenedIt()
{
    const Fixture f;
    const auto device = RegularFile(f.path("file"), Access::Read).takeDevice();
    QCOMPARE(device->size(), 3);
    QCOMPARE(device->readAll(), QByteArray("tea"));
}

void tst_RegularFile::aFileIsGivenAwayOnce()
{
    const Fixture f;
    RegularFile file(f.path("file"), Access::Read);
    const auto device = file.takeDevice();
    QVERIFY(device);
    QVERIFY(!file.isOpen());
    QVERIFY(!file.takeDevice());
}

void tst_RegularFile::aPathWithoutAFileIsMissing()
{
    const Fixture f;
    RegularFile file(f.path("other"), Access::Read);
    QVERIFY(!file.isOpen());
    QVERIFY(file.isMissing());
    QVERIFY(!file.takeDevice());
    QVERIFY(!QFile::exists(f.path("other")));
}

void tst_RegularFile::aLinkThatLeadsNowhereIsMissing()
{
    const Fixture f;
    QVERIFY(QFile::link(f.path("other"), f.path("link")));
    QVERIFY(RegularFile(f.path("link"), Access::Read).isMissing());
    QVERIFY(QFile::link(f.path("file"), f.path("good link")));
    QVERIFY(RegularFile(f.path("good link"), Access::Read).isOpen());
}

void tst_RegularFile::foldersPipesAndDevicesAreNeitherOpenedNorMissing_data()
{
    QTest::addColumn<Access>("access");
    QTest::newRow("to read") << Access::Read;
    QTest::newRow("to read and write") << Access::ReadAndWrite;
}

void tst_RegularFile::foldersPipesAndDevicesAreNeitherOpenedNorMissing()
{
    QFETCH(const Access, access);
    const Fixture f;
    // An ordinary open() of a pipe would block until another process opens its other end.
    QCOMPARE(::mkfifo(QFile::encodeName(f.path("pipe")).constData(), 0600), 0);
    for (const QString &path : {f.path("pipe"), f.folder.path(), QStringLiteral("/dev/null")}) {
        const RegularFile file(path, access);
        QVERIFY2(!file.isOpen(), qPrintable(path));
        QVERIFY2(!file.isMissing(), qPrintable(path));
    }
}

WUFFER_TEST(tst_RegularFile)
#include "tst_RegularFile.moc"
