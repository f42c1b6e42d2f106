#include "audio/CubebSoundSystem.h"
#include "support/SoundFiles.h"
#include "support/SoundLengths.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

namespace
{
qsizetype threadCount()
{
    return QDir(QStringLiteral("/proc/self/task"))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
        .size();
}
} // namespace

/// The sound system on a computer without a sound device.
class tst_CubebSoundSystem final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aSoundTellsItsNameAndLength();
    void aNewSoundIsSilentAndLoud();
    void theVolumeIsLimited_data();
    void theVolumeIsLimited();
    void aSoundOfTheProgramIsFoundByName();
    void aFileThatIsNoSoundNeverPlays();
    void aSoundPlaysForItsLength();
    void playingAgainChangesNothing();
    void stoppingEndsAtOnce();
    void aStoppedSoundBeginsAtTheBeginning();
    void aStopCancelsThePlayBeforeIt();
    void aSoundMayBeDestroyedAtAnyMoment();
    void aLoopGoesOnUntilToldOtherwise();
    void aLoopMayBeginWhileTheSoundPlays();
    void theLoopFlagCountsOnlyAtTheEnd();
    void manySoundsEndOnTime();
    void oneSoundsStopLeavesTheOthersPlaying();
    void soundsOfDifferentRatesPlayTogether();
    void aFileThatHasGoneEndsItsSound();
    void aSoundOutlivesTheSystemSilently();
    void theSystemGoesAwayAtOnce();
    void nothingRunsWhileAllIsSilent();

private:
    [[nodiscard]] std::unique_ptr<Sound> sound(double seconds, int sampleRate = 48000);

    QTemporaryDir _folder;
    std::unique_ptr<CubebSoundSystem> _system;
    qsizetype _threadsAtFirst = 0;
};

void tst_CubebSoundSystem::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
    _threadsAtFirst = threadCount();
}

void tst_CubebSoundSystem::init()
{
    _system = std::make_unique<CubebSoundSystem>();
}

void tst_CubebSoundSystem::cleanup()
{
    _system.reset();
}

std::unique_ptr<Sound> tst_CubebSoundSystem::sound(double seconds, int sampleRate)
{
    const QString path = _folder.filePath(QString::number(seconds) + QStringLiteral(" at ") +
                                          QString::number(sampleRate));
    if (!QFile::exists(path))
        writeTone(path, {.seconds = seconds, .sampleRate = sampleRate});
    auto sound = _system->soundWithContentsOfFile(path);
    return hasAnswered(*sound) ? std::move(sound) : nullptr;
}

void tst_CubebSoundSystem::aSoundTellsItsNameAndLength()
{
    const auto blip = sound(0.25);
    QCOMPARE(blip->duration(), 0.25);
    QCOMPARE(blip->name(), _folder.filePath(QStringLiteral("0.25 at 48000")));
}

void tst_CubebSoundSystem::aNewSoundIsSilentAndLoud()
{
    const auto blip = sound(0.25);
    QVERIFY(!blip->isPlaying());
    QCOMPARE(blip->volume(), 1.0F);
}

void tst_CubebSoundSystem::theVolumeIsLimited_data()
{
    QTest::addColumn<float>("given");
    QTest::addColumn<float>("taken");
    QTest::newRow("half") << 0.5F << 0.5F;
    QTest::newRow("silent") << 0.0F << 0.0F;
    QTest::newRow("below") << -0.5F << 0.0F;
    QTest::newRow("above") << 1.5F << 1.0F;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << 1.0F;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0.0F;
}

void tst_CubebSoundSystem::theVolumeIsLimited()
{
    QFETCH(float, given);
    QFETCH(float, taken);
    const auto blip = sound(0.25);
    blip->setVolume(given);
    QCOMPARE(blip->volume(), taken);
}

void tst_CubebSoundSystem::aSoundOfTheProgramIsFoundByName()
{
    const auto blip = _system->soundNamed(QStringLiteral("test-blip.wav"));

    QVERIFY(blip);
    QCOMPARE(blip->name(), QStringLiteral("test-blip.wav"));
    QCOMPARE(blip->duration(), 0.3);
    const auto play = [&] {
        blip->play();
        return secondsUntilSilent(*blip);
    };
    VERIFY_LASTS(play, 0.3);
    QVERIFY(!_system->soundNamed(QStringLiteral("missing.wav")));
    QVERIFY(!_system->soundNamed(QString()));
}

void tst_CubebSoundSystem::aFileThatIsNoSoundNeverPlays()
{
    const auto folder = _system->soundWithContentsOfFile(_folder.path());
    QVERIFY(hasAnswered(*folder));
    QCOMPARE(folder->duration(), 0.0);
    folder->setLoops(true);
    folder->play();
    QVERIFY(!folder->isPlaying());
}

void tst_CubebSoundSystem::aSoundPlaysForItsLength()
{
    const auto half = sound(0.5);
    const auto play = [&] {
        half->play();
        return half->isPlaying() ? secondsUntilSilent(*half) : 0;
    };
    VERIFY_LASTS(play, 0.5);
}

void tst_CubebSoundSystem::playingAgainChangesNothing()
{
    const auto half = sound(0.5);
    const auto playTwice = [&] {
        const QElapsedTimer timer = startedTimer();
        half->play();
        QTest::qWait(250);
        half->play();
        return secondsUntilSilent(*half, timer);
    };
    VERIFY_LASTS(playTwice, 0.5);
}

void tst_CubebSoundSystem::stoppingEndsAtOnce()
{
    const auto half = sound(0.5);
    half->setLoops(true);
    half->play();
    QTest::qWait(100);
    half->stop();
    QVERIFY(!half->isPlaying());
}

void tst_CubebSoundSystem::aStoppedSoundBeginsAtTheBeginning()
{
    const auto half = sound(0.5);
    const auto playAgain = [&] {
        half->play();
        QTest::qWait(300);
        half->stop();
        half->play();
        return half->isPlaying() ? secondsUntilSilent(*half) : 0;
    };
    VERIFY_LASTS(playAgain, 0.5);
}

void tst_CubebSoundSystem::aStopCancelsThePlayBeforeIt()
{
    const auto half = sound(0.5);
    for (int i = 0; i < 20; ++i) {
        half->play();
        half->stop();
    }
    QVERIFY(!half->isPlaying());
    QVERIFY(!QTest::qWaitFor([&] { return half->isPlaying(); }, 100));
}

void tst_CubebSoundSystem::aSoundMayBeDestroyedAtAnyMoment()
{
    for (const int milliseconds : {0, 1, 2, 5, 20, 100, 310}) {
        const auto half = sound(0.3);
        half->play();
        QTest::qWait(milliseconds);
    }
}

void tst_CubebSoundSystem::aLoopGoesOnUntilToldOtherwise()
{
    const auto third = sound(0.3);
    const auto loop = [&] {
        third->setLoops(true);
        const QElapsedTimer timer = startedTimer();
        third->play();
        QTest::qWait(700);
        const bool goesOn = third->isPlaying();
        third->setLoops(false);
        return goesOn ? secondsUntilSilent(*third, timer) : 0;
    };
    VERIFY_LASTS(loop, 0.9);
}

void tst_CubebSoundSystem::aLoopMayBeginWhileTheSoundPlays()
{
    const auto third = sound(0.3);
    third->play();
    QTest::qWait(150);
    third->setLoops(true);
    QTest::qWait(300);
    QVERIFY(third->isPlaying());
}

void tst_CubebSoundSystem::theLoopFlagCountsOnlyAtTheEnd()
{
    const auto half = sound(0.5);
    const auto play = [&] {
        const QElapsedTimer timer = startedTimer();
        half->play();
        for (int i = 0; i < 20; ++i) {
            half->setLoops(i % 2 == 0);
            QTest::qWait(10);
        }
        return secondsUntilSilent(*half, timer);
    };
    VERIFY_LASTS(play, 0.5);
}

void tst_CubebSoundSystem::manySoundsEndOnTime()
{
    std::vector<std::unique_ptr<Sound>> sounds;
    for (int i = 0; i < 40; ++i)
        sounds.push_back(sound(0.5));
    const auto allAreSilent = [&] { return std::ranges::none_of(sounds, &Sound::isPlaying); };
    const auto playAll = [&] {
        const QElapsedTimer timer = startedTimer();
        for (const auto &one : sounds)
            one->play();
        const bool allPlay = std::ranges::all_of(sounds, &Sound::isPlaying);
        return allPlay && QTest::qWaitFor(allAreSilent) ? double(timer.elapsed()) / 1000 : 0;
    };
    VERIFY_LASTS(playAll, 0.5);
}

void tst_CubebSoundSystem::oneSoundsStopLeavesTheOthersPlaying()
{
    const auto first = sound(0.5);
    const auto second = sound(0.5);
    const auto playBoth = [&] {
        first->play();
        second->play();
        first->stop();
        return secondsUntilSilent(*second);
    };
    VERIFY_LASTS(playBoth, 0.5);
}

void tst_CubebSoundSystem::soundsOfDifferentRatesPlayTogether()
{
    for (const int sampleRate : {1000, 8000, 44100, 192'000}) {
        const auto one = sound(0.4, sampleRate);
        const auto other = sound(0.4, 48000);
        const auto playBoth = [&] {
            const QElapsedTimer timer = startedTimer();
            one->play();
            other->play();
            const double first = secondsUntilSilent(*one, timer);
            return std::max(first, secondsUntilSilent(*other, timer));
        };
        VERIFY_LASTS(playBoth, 0.4);
    }
}

void tst_CubebSoundSystem::aFileThatHasGoneEndsItsSound()
{
    const QString path = _folder.filePath(QStringLiteral("gone"));
    writeTone(path, {.seconds = 5});
    const auto gone = _system->soundWithContentsOfFile(path);
    QVERIFY(hasAnswered(*gone));
    QVERIFY(QFile::remove(path));
    gone->setLoops(true);
    gone->play();
    QVERIFY(secondsUntilSilent(*gone) < 1.0);
}

void tst_CubebSoundSystem::aSoundOutlivesTheSystemSilently()
{
    const auto half = sound(0.5);
    half->setLoops(true);
    half->play();
    _system.reset();
    QVERIFY(!half->isPlaying());
    half->play();
    QVERIFY(!half->isPlaying());
    half->stop();
}

void tst_CubebSoundSystem::theSystemGoesAwayAtOnce()
{
    for (const int milliseconds : {0, 5, 100, 400}) {
        const auto half = sound(0.5);
        half->setLoops(true);
        half->play();
        QTest::qWait(milliseconds);
        const QElapsedTimer timer = startedTimer();
        _system = std::make_unique<CubebSoundSystem>();
        QVERIFY2(timer.elapsed() < 300, qPrintable(QString::number(timer.elapsed())));
    }
}

void tst_CubebSoundSystem::nothingRunsWhileAllIsSilent()
{
    // Threads of earlier tests may still be ending.
    QTRY_COMPARE(threadCount(), _threadsAtFirst);
    const auto blip = sound(0.3);
    QTRY_COMPARE(threadCount(), _threadsAtFirst);

    blip->play();
    QVERIFY(threadCount() > _threadsAtFirst);
    QTRY_COMPARE_WITH_TIMEOUT(threadCount(), _threadsAtFirst, 2000);
}

WUFFER_TEST(tst_CubebSoundSystem, WithoutWindows)
#include "tst_CubebSoundSystem.moc"
