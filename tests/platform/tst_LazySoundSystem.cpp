#include "platform/LazySoundSystem.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>

class tst_LazySoundSystem final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theModuleIsLoadedForTheFirstSound();
    void withoutTheModuleThereAreNoSounds();
};

namespace
{
bool soundLibraryIsLoaded()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libcubeb");
}
} // namespace

void tst_LazySoundSystem::theModuleIsLoadedForTheFirstSound()
{
    LazySoundSystem system;
    QVERIFY(!soundLibraryIsLoaded());

    const auto blip = system.soundNamed(QStringLiteral("test-blip.wav"));

    QVERIFY(soundLibraryIsLoaded());
    QVERIFY(blip);
    QCOMPARE(blip->duration(), 0.3);
    QVERIFY(!system.soundNamed(QStringLiteral("missing.wav")));
    QVERIFY(system.canOpenFiles());
    const auto missing = system.soundWithContentsOfFile(QStringLiteral("/missing"));
    QTRY_COMPARE(missing->duration(), 0.0);
    QVERIFY(missing->isMissing());
}

void tst_LazySoundSystem::withoutTheModuleThereAreNoSounds()
{
    LazySoundSystem system(QStringLiteral("/missing/module"));

    QVERIFY(!system.soundNamed(QStringLiteral("test-blip.wav")));
    QVERIFY(!system.canOpenFiles());

    const auto sound = system.soundWithContentsOfFile(QStringLiteral("/some/file"));
    QCOMPARE(sound->name(), QStringLiteral("/some/file"));
    QCOMPARE(sound->duration(), 0.0);
    QVERIFY(sound->hasAnswered());
    QVERIFY(!sound->isMissing());
    sound->setWhenAnswered([] { QFAIL("it has answered already"); });
    sound->keep(nullptr);
    QVERIFY(!sound->takeKept());
    sound->setStandIn(QStringLiteral("test-blip.wav"));
    sound->play();
    QVERIFY(!sound->isPlaying());
}

WUFFER_TEST(tst_LazySoundSystem, WithoutWindows)
#include "tst_LazySoundSystem.moc"
