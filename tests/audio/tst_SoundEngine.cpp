#include "audio/AudioFile.h"
#include "audio/Playing.h"
#include "audio/SoundEngine.h"
#include "audio/Voice.h"
#include "support/SoundFiles.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <mutex>
#include <thread>

namespace
{
/// A file on a disk whose reads block while the test holds the mutex.
class HeldFile final : public QFile
{
public:
    HeldFile(const QString &path, std::mutex &disk) : QFile(path), _disk(disk)
    {
        if (!open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            qFatal("there is no file %s", qPrintable(path));
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const std::lock_guard turn(_disk);
        return QFile::readData(data, size);
    }

private:
    std::mutex &_disk;
};
} // namespace

/// How sounds behave when the disk does not answer.
class tst_SoundEngine final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aFileThatDoesNotAnswerIsGivenUp();
    void aFileThatDoesNotAnswerKeepsNoOtherSoundWaiting();
    void aFileThatDoesNotAnswerDelaysTheEndByNoMoreThanASecond();
    void aFileThatAnswersLateIsHeardFromItsBeginning();
    void aFileThatPausesNowAndThenIsNotGivenUp();
    void theStandInIsHeardInPlaceOfAFileThatDoesNotAnswer();
    void aFileThatAnswersWhenItsStandInIsHeardStaysSilent();
    void aStopCancelsTheStandInToo();
    void theEndOfAllSoundsIsTheEndOfTheStandIn();

private:
    static constexpr int kSampleRate = 48000;

    [[nodiscard]] std::shared_ptr<Playing> play(const OpenSoundBytes &open,
                                                const OpenSoundBytes &standIn = {})
    {
        return _engine->play({QStringLiteral("file"), open}, kSampleRate,
                             std::make_shared<SoundControls>(), standIn);
    }

    QTemporaryDir _folder;
    OpenSoundBytes _openTone;
    OpenSoundBytes _openLowTone;
    std::unique_ptr<SoundEngine> _engine;
    // Shared with the threads that wait for it, which may outlive the test.
    std::shared_ptr<QSemaphore> _disk;
    OpenSoundBytes _openWhenTheDiskAnswers;
};

void tst_SoundEngine::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
    const QString path = _folder.filePath(QStringLiteral("tone.wav"));
    writeTone(path, {.seconds = 0.3, .sampleRate = kSampleRate});
    _openTone = [path] { return openSoundFile(path); };
    const QString low = _folder.filePath(QStringLiteral("low.wav"));
    writeTone(low, {.seconds = 0.5, .sampleRate = 22050});
    _openLowTone = [low] { return openSoundFile(low); };
}

void tst_SoundEngine::init()
{
    _engine = std::make_unique<SoundEngine>();
    _disk = std::make_shared<QSemaphore>();
    _openWhenTheDiskAnswers = [disk = _disk, open = _openTone] {
        disk->acquire();
        return open();
    };
}

void tst_SoundEngine::cleanup()
{
    _disk->release();
    _engine.reset();
}

void tst_SoundEngine::aFileThatDoesNotAnswerIsGivenUp()
{
    const auto stuck = play(_openWhenTheDiskAnswers);
    QVERIFY(stuck->isPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(!stuck->isPlaying(), 3000);
}

void tst_SoundEngine::aFileThatDoesNotAnswerKeepsNoOtherSoundWaiting()
{
    const auto stuck = play(_openWhenTheDiskAnswers);
    const auto tone = play(_openTone);
    QTRY_VERIFY_WITH_TIMEOUT(!tone->isPlaying(), 500);
    QVERIFY(stuck->isPlaying());
    stuck->stop();
    QVERIFY(!stuck->isPlaying());
}

void tst_SoundEngine::aFileThatDoesNotAnswerDelaysTheEndByNoMoreThanASecond()
{
    const auto stuck = play(_openWhenTheDiskAnswers);
    QElapsedTimer timer;
    timer.start();
    _engine.reset();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!stuck->isPlaying());
}

void tst_SoundEngine::aFileThatAnswersLateIsHeardFromItsBeginning()
{
    const auto late = play(_openWhenTheDiskAnswers);
    QTest::qWait(500);
    _disk->release();
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(!late->isPlaying());
    QVERIFY2(timer.elapsed() > 270 && timer.elapsed() < 500,
             qPrintable(QString::number(timer.elapsed())));
}

void tst_SoundEngine::aFileThatPausesNowAndThenIsNotGivenUp()
{
    const QString path = _folder.filePath(QStringLiteral("long.wav"));
    writeTone(path, {.seconds = 5, .sampleRate = kSampleRate});
    std::mutex disk;
    Voice voice(kSampleRate, std::make_shared<SoundControls>(), [] {});
    const auto file = AudioFile::open(std::make_unique<HeldFile>(path, disk));
    QVERIFY(voice.begin(*file));
    const std::jthread reader([&] { voice.readOn(*file); });
    const auto end = qScopeGuard([&] { voice.finish(); });
    const auto mix = [&](double seconds) {
        std::vector<float> samples(static_cast<std::size_t>(seconds * kSampleRate) * 2);
        return voice.mixInto(samples, 0) &&
               std::ranges::any_of(samples, [](float sample) { return sample != 0; });
    };
    // The pauses add up to more than the time that the voice waits for a file.
    for (int pause = 0; pause < 3; ++pause) {
        bool isHeard = false;
        QTRY_VERIFY(isHeard || (isHeard = mix(0.01)));
        const std::lock_guard held(disk);
        static_cast<void>(mix(1.5));
        QVERIFY(voice.isPlaying());
    }
}

void tst_SoundEngine::theStandInIsHeardInPlaceOfAFileThatDoesNotAnswer()
{
    QElapsedTimer timer;
    timer.start();
    const auto stuck = play(_openWhenTheDiskAnswers, _openLowTone);
    QTRY_VERIFY_WITH_TIMEOUT(!stuck->isPlaying(), 4000);
    // Two seconds of waiting for the disk, then the sound of the stand-in.
    QVERIFY2(timer.elapsed() > 2300 && timer.elapsed() < 3100,
             qPrintable(QString::number(timer.elapsed())));
}

void tst_SoundEngine::aFileThatAnswersWhenItsStandInIsHeardStaysSilent()
{
    const QString path = _folder.filePath(QStringLiteral("minute.wav"));
    // The sample rate of the stand-in, so that the file could be mistaken for it.
    writeTone(path, {.seconds = 60, .sampleRate = 22050});
    const auto late = play(
        [disk = _disk, path] {
            disk->acquire();
            return openSoundFile(path);
        },
        _openLowTone);
    QTest::qWait(2200);
    _disk->release();
    QTRY_VERIFY_WITH_TIMEOUT(!late->isPlaying(), 2000);
}

void tst_SoundEngine::aStopCancelsTheStandInToo()
{
    for (const int milliseconds : {0, 1, 5, 20, 100}) {
        const auto nothing = play([] { return nullptr; }, _openLowTone);
        QTest::qWait(milliseconds);
        QVERIFY(nothing->isPlaying());
        nothing->stop();
        QVERIFY(!nothing->isPlaying());
        QVERIFY(!QTest::qWaitFor([&] { return nothing->isPlaying(); }, 100));
    }
}

void tst_SoundEngine::theEndOfAllSoundsIsTheEndOfTheStandIn()
{
    const auto nothing = play([] { return nullptr; }, _openLowTone);
    _engine.reset();
    QVERIFY(!nothing->isPlaying());
}

WUFFER_TEST(tst_SoundEngine, WithoutWindows)
#include "tst_SoundEngine.moc"
