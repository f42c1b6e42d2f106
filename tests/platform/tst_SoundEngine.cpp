#include "platform/sound/SoundEngine.h"
#include "platform/sound/Voice.h"
#include "support/SoundFiles.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>

/// What a disk that does not answer may do to the sounds, and what not.
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

private:
    static constexpr int kSampleRate = 48000;

    [[nodiscard]] std::shared_ptr<Voice> play(const OpenSoundBytes &open)
    {
        return _engine->play(open, kSampleRate, std::make_shared<SoundControls>());
    }

    QTemporaryDir _folder;
    OpenSoundBytes _openTone;
    std::unique_ptr<SoundEngine> _engine;
    // Shared with the threads that wait at it, which may outlive the test.
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

QTEST_GUILESS_MAIN(tst_SoundEngine)
#include "tst_SoundEngine.moc"
