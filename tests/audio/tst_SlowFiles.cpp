#include "audio/EngineSound.h"
#include "audio/SoundEngine.h"
#include "support/SoundFiles.h"
#include "support/SoundLengths.h"
#include "support/TestMain.h"

#include <QDir>
#include <QSemaphore>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <thread>

namespace
{
/// A disk that answers no opening until the test allows it. The threads that wait for it may
/// outlive the test.
class Disk final
{
public:
    void answer(int times = 1) { _allowed.release(times); }
    void waitForAnswer()
    {
        ++openings;
        _allowed.acquire();
    }

    std::atomic<int> openings = 0;

private:
    QSemaphore _allowed;
};
} // namespace

/// Sounds whose files answer late or never.
class tst_SlowFiles final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aSoundIsMadeBeforeItsFileAnswers();
    void theAnswerComesFromTheEventLoop();
    void aSoundMayBeDestroyedBeforeItsFileAnswers();
    void theFunctionForTheAnswerMayDestroyTheSound();
    void aPlaybackWaitsForTheAnswer();
    void aFileIsOpenedOnceForItsFactsAndOnceForEachPlayback();
    void aStopCancelsAPlaybackThatWaits();
    void theStandInIsHeardTwoSecondsAfterThePlay();
    void aFileThatAnswersDuringTheStandInStaysSilent();
    void aFileThatIsKnownNotToAnswerIsNotWaitedForAgain();
    void theKeptSoundIsHeardIfTheFileTurnsOutUnplayable();
    void theStandInIsHeardIfTheKeptSoundIsUnplayableToo();
    void withoutOtherSoundsAnUnplayableFileEndsItsPlayback();
    void fewThreadsHangInOneFile();
    void aFileThatHungForManySoundsIsAskedAgain();
    void aFileThatDoesNotAnswerKeepsNoOtherFileWaiting();
    void theSystemGoesAwayWithinASecond();

private:
    [[nodiscard]] std::unique_ptr<EngineSound> sound(const QString &name,
                                                     const OpenSoundBytes &open) const
    {
        return std::make_unique<EngineSound>(SoundSource{name, open}, EngineSound::Place::File,
                                             _engine);
    }
    /// The sound of a file of 0.3 seconds on the disk.
    [[nodiscard]] std::unique_ptr<EngineSound> slowSound() const
    {
        return sound(QStringLiteral("slow"), onDisk(_openTone));
    }
    /// The sound of a file on the disk that turns out to be none.
    [[nodiscard]] std::unique_ptr<EngineSound> slowText() const
    {
        return sound(QStringLiteral("text"), onDisk([] { return nullptr; }));
    }
    [[nodiscard]] OpenSoundBytes onDisk(const OpenSoundBytes &open) const
    {
        return [disk = _disk, open] {
            disk->waitForAnswer();
            return open();
        };
    }

    QTemporaryDir _folder;
    OpenSoundBytes _openTone;
    std::shared_ptr<SoundEngine> _engine;
    std::shared_ptr<Disk> _disk;
};

void tst_SlowFiles::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
    const QString path = _folder.filePath(QStringLiteral("tone.wav"));
    writeTone(path, {.seconds = 0.3, .sampleRate = 22050});
    _openTone = [path] { return openSoundFile(path); };
}

void tst_SlowFiles::init()
{
    _engine = std::make_shared<SoundEngine>();
    _disk = std::make_shared<Disk>();
}

void tst_SlowFiles::cleanup()
{
    _disk->answer(1000);
    _engine.reset();
}

void tst_SlowFiles::aSoundIsMadeBeforeItsFileAnswers()
{
    const auto slow = slowSound();
    QVERIFY(!slow->hasAnswered());
    // It is not known to be unplayable.
    QVERIFY(slow->duration() > 0);
    QVERIFY(!slow->isMissing());
    QVERIFY(!slow->isPlaying());
}

void tst_SlowFiles::theAnswerComesFromTheEventLoop()
{
    const auto slow = slowSound();
    int answers = 0;
    slow->setWhenAnswered([&] { ++answers; });
    _disk->answer();
    // The disk has been read, but nothing changes before the event loop runs.
    QTRY_COMPARE(_disk->openings.load(), 1);
    QTRY_COMPARE(answers, 1);
    QCOMPARE(slow->duration(), 0.3);
    slow->setWhenAnswered([&] { ++answers; });
    QTest::qWait(50);
    QCOMPARE(answers, 1);
}

void tst_SlowFiles::aSoundMayBeDestroyedBeforeItsFileAnswers()
{
    auto slow = slowSound();
    slow->setWhenAnswered([] { QFAIL("nothing is left to answer to"); });
    slow->play();
    slow.reset();
    _disk->answer();
    QTest::qWait(100);
    // The event with the answer may be under way.
    for (int pause = 0; pause < 20; ++pause) {
        slow = slowSound();
        slow->setWhenAnswered([] { QFAIL("nothing is left to answer to"); });
        _disk->answer();
        std::this_thread::sleep_for(std::chrono::microseconds(pause * 100));
        slow.reset();
    }
    QTest::qWait(50);
}

void tst_SlowFiles::theFunctionForTheAnswerMayDestroyTheSound()
{
    auto slow = slowSound();
    slow->setWhenAnswered([&] { slow.reset(); });
    slow->play();
    _disk->answer();
    QTRY_VERIFY(!slow);
}

void tst_SlowFiles::aPlaybackWaitsForTheAnswer()
{
    const auto slow = slowSound();
    slow->play();
    QTest::qWait(500);
    QVERIFY(slow->isPlaying());
    _disk->answer(2);
    const auto hear = [&] { return secondsUntilSilent(*slow); };
    VERIFY_LASTS(hear, 0.3);
}

void tst_SlowFiles::aFileIsOpenedOnceForItsFactsAndOnceForEachPlayback()
{
    const auto slow = slowSound();
    _disk->answer(10);
    slow->play();
    QVERIFY(secondsUntilSilent(*slow) < 2);
    QCOMPARE(_disk->openings.load(), 2);
    slow->play();
    QVERIFY(secondsUntilSilent(*slow) < 2);
    QCOMPARE(_disk->openings.load(), 3);
}

void tst_SlowFiles::aStopCancelsAPlaybackThatWaits()
{
    const auto slow = slowSound();
    slow->setStandIn(QStringLiteral("test-blip.wav"));
    slow->play();
    slow->stop();
    QVERIFY(!slow->isPlaying());
    _disk->answer(10);
    QVERIFY(hasAnswered(*slow));
    QVERIFY(!QTest::qWaitFor([&] { return slow->isPlaying(); }, 100));
    QCOMPARE(_disk->openings.load(), 1);
}

void tst_SlowFiles::theStandInIsHeardTwoSecondsAfterThePlay()
{
    const auto slow = slowSound();
    slow->setStandIn(QStringLiteral("test-blip.wav"));
    const auto play = [&] {
        const QElapsedTimer timer = startedTimer();
        slow->play();
        return secondsUntilSilent(*slow, timer);
    };
    VERIFY_LASTS(play, 2.3);
    QVERIFY(!slow->hasAnswered());
}

void tst_SlowFiles::aFileThatAnswersDuringTheStandInStaysSilent()
{
    const auto slow = slowSound();
    slow->setStandIn(QStringLiteral("test-blip.wav"));
    slow->setLoops(true);
    slow->play();
    QTest::qWait(2300);
    _disk->answer(10);
    QVERIFY(hasAnswered(*slow));
    QVERIFY(slow->isPlaying());
    QTest::qWait(100);
    // The file was not opened to be played.
    QCOMPARE(_disk->openings.load(), 1);
    slow->setLoops(false);
    QTRY_VERIFY_WITH_TIMEOUT(!slow->isPlaying(), 1000);
    // The next playback is that of the file.
    slow->play();
    QTRY_COMPARE(_disk->openings.load(), 2);
}

void tst_SlowFiles::aFileThatIsKnownNotToAnswerIsNotWaitedForAgain()
{
    const auto slow = slowSound();
    slow->setStandIn(QStringLiteral("test-blip.wav"));
    QTest::qWait(2100);
    const auto play = [&] {
        slow->play();
        return secondsUntilSilent(*slow);
    };
    VERIFY_LASTS(play, 0.3);
}

void tst_SlowFiles::theKeptSoundIsHeardIfTheFileTurnsOutUnplayable()
{
    auto last = sound(QStringLiteral("last"), _openTone);
    QVERIFY(hasAnswered(*last));
    const Sound *const kept = last.get();
    const auto text = slowText();
    // Nothing is heard if the kept sound is not.
    text->setStandIn(QStringLiteral("missing.wav"));
    text->keep(std::move(last));
    text->play();
    QTest::qWait(200);
    _disk->answer();
    const auto hear = [&] { return secondsUntilSilent(*text); };
    VERIFY_LASTS(hear, 0.3);
    QCOMPARE(text->duration(), 0.0);
    QVERIFY(text->isMissing());
    QCOMPARE(text->takeKept().get(), kept);
    QVERIFY(!text->takeKept());
}

void tst_SlowFiles::theStandInIsHeardIfTheKeptSoundIsUnplayableToo()
{
    const auto text = slowText();
    text->setStandIn(QStringLiteral("test-blip.wav"));
    text->keep(sound(QStringLiteral("last"), [] { return nullptr; }));
    text->play();
    _disk->answer();
    const auto hear = [&] { return secondsUntilSilent(*text); };
    VERIFY_LASTS(hear, 0.3);
}

void tst_SlowFiles::withoutOtherSoundsAnUnplayableFileEndsItsPlayback()
{
    const auto text = slowText();
    text->play();
    QVERIFY(text->isPlaying());
    _disk->answer();
    QTRY_VERIFY_WITH_TIMEOUT(!text->isPlaying(), 1000);
}

void tst_SlowFiles::fewThreadsHangInOneFile()
{
    std::vector<std::unique_ptr<EngineSound>> sounds;
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 5; ++i)
            sounds.push_back(slowSound());
        QTest::qWait(2100);
    }
    // As long as it is not known that the file hangs, each sound opens it.
    QCOMPARE(_disk->openings.load(), 5);
    const auto other = sound(QStringLiteral("other"), _openTone);
    QVERIFY(hasAnswered(*other));
}

void tst_SlowFiles::aFileThatHungForManySoundsIsAskedAgain()
{
    std::vector<std::unique_ptr<EngineSound>> sounds(5);
    std::ranges::generate(sounds, [this] { return slowSound(); });
    QTest::qWait(2100);
    const auto late = slowSound();
    _disk->answer(10);
    QVERIFY(hasAnswered(*sounds.front()));
    QTRY_VERIFY(std::ranges::all_of(sounds, [](const auto &each) { return each->hasAnswered(); }));
    QVERIFY(!late->hasAnswered());
    late->play();
    QVERIFY(hasAnswered(*late));
    QCOMPARE(late->duration(), 0.3);
}

void tst_SlowFiles::aFileThatDoesNotAnswerKeepsNoOtherFileWaiting()
{
    const auto slow = slowSound();
    slow->play();
    const auto tone = sound(QStringLiteral("tone"), _openTone);
    const auto play = [&] {
        tone->play();
        return secondsUntilSilent(*tone);
    };
    VERIFY_LASTS(play, 0.3);
    QVERIFY(slow->isPlaying());
}

void tst_SlowFiles::theSystemGoesAwayWithinASecond()
{
    const auto slow = slowSound();
    slow->setStandIn(QStringLiteral("test-blip.wav"));
    slow->play();
    const QElapsedTimer timer = startedTimer();
    _engine.reset();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!slow->isPlaying());
    slow->play();
    QVERIFY(!slow->isPlaying());
}

WUFFER_TEST(tst_SlowFiles, WithoutWindows)
#include "tst_SlowFiles.moc"
