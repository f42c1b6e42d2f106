#include "base/SettingsPath.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <sys/file.h>

/// Makes an empty lock file, which names no process; returns its path.
static QString emptyLock(const SettingsFile &file)
{
    QFile lock(file.path() + QStringLiteral(".lock"));
    if (!lock.open(QIODevice::WriteOnly))
        qFatal("the lock could not be made");
    return lock.fileName();
}

/// An empty lock beside the settings file, which its process has not yet written its number into.
/// Only Linux tells whether that process still runs.
class tst_SettingsLock final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyLockOfAKilledProcessIsNotWaitedFor();
    void anEmptyLockThatIsHeldStays();
};

void tst_SettingsLock::anEmptyLockOfAKilledProcessIsNotWaitedFor()
{
    const SettingsFile file;
    const QString lock = emptyLock(file);

    QCOMPARE(SettingsPath::cleared(file.path()), file.path());
    QVERIFY(!QFile::exists(lock));
}

void tst_SettingsLock::anEmptyLockThatIsHeldStays()
{
    const SettingsFile file;
    QFile lock(emptyLock(file));
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QCOMPARE(flock(lock.handle(), LOCK_EX), 0);

    QCOMPARE(SettingsPath::cleared(file.path()), file.path());
    QVERIFY(lock.exists());

    lock.close();
    QCOMPARE(SettingsPath::cleared(file.path()), file.path());
    QVERIFY(!lock.exists());
}

WUFFER_TEST(tst_SettingsLock, WithoutWindows)
#include "tst_SettingsLock.moc"
