#include "support/Fakes.h"
#include "support/TestMain.h"

/// The fakes must behave, because all other tests rely on them.
class tst_Fakes final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundEndsUnlessItLoops();
    void endingAllSoundsDoesNotReviveAStoppedSound();
};

void tst_Fakes::aSoundEndsUnlessItLoops()
{
    FakeSoundSystem sounds;
    const auto once = sounds.soundNamed(QStringLiteral("once.wav"));
    const auto forEver = sounds.soundNamed(QStringLiteral("forever.wav"));
    forEver->setLoops(true);
    once->play();
    forEver->play();
    sounds.endAll();
    QVERIFY(!once->isPlaying());
    QVERIFY(forEver->isPlaying());
}

void tst_Fakes::endingAllSoundsDoesNotReviveAStoppedSound()
{
    FakeSoundSystem sounds;
    const auto stopped = sounds.soundNamed(QStringLiteral("stopped.wav"));
    const auto neverPlayed = sounds.soundNamed(QStringLiteral("never.wav"));
    stopped->setLoops(true);
    neverPlayed->setLoops(true);
    stopped->play();
    stopped->stop();
    sounds.endAll();
    QVERIFY(!stopped->isPlaying());
    QVERIFY(!neverPlayed->isPlaying());
}

WUFFER_TEST(tst_Fakes)
#include "tst_Fakes.moc"
