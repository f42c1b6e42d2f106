#include "audio/AudioFile.h"
#include "audio/Mixer.h"
#include "audio/SoundBytes.h"
#include "audio/Voice.h"
#include "support/SoundFiles.h"
#include "support/TestMain.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <thread>
#include <vector>

namespace
{
constexpr int kSampleRate = 48000;
/// Ten milliseconds: whole periods of the tone, so that all blocks are the same.
constexpr std::size_t kFrames = 480;

/// A mixer with voices that loop for ever.
class Hum final
{
public:
    Hum() = default;
    /// Ends the voices, so that their reader threads end.
    ~Hum() { mixer.finish(); }
    Q_DISABLE_COPY_MOVE(Hum)

    void add(const QString &path, float volume = 1.0F)
    {
        const auto controls = std::make_shared<SoundControls>();
        controls->loops = true;
        controls->volume = volume;
        auto voice = std::make_shared<Voice>(kSampleRate, controls, [] {});
        _readers.emplace_back([voice, path] {
            const auto file = AudioFile::open(openSoundFile(path));
            if (file && voice->begin(*file))
                voice->readOn(*file);
        });
        mixer.add(std::move(voice));
    }

    /// The lowest and the highest sample of the next block.
    [[nodiscard]] std::pair<float, float> range()
    {
        // Old values in the buffer, which the mixer must overwrite.
        std::vector<float> samples(kFrames * 2, 7.0F);
        mixer.render(samples);
        const auto [lowest, highest] = std::ranges::minmax(samples);
        return {lowest, highest};
    }

    Mixer mixer{kSampleRate};

private:
    std::vector<std::jthread> _readers;
};
} // namespace

/// The samples that the mixer renders from its voices.
class tst_Mixer final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        writeTone(_tone, {.seconds = 0.1, .sampleRate = kSampleRate, .amplitude = 0.4});
    }

    void withoutAVoiceThereIsSilence();
    void voicesAreHeardTogether();
    void samplesThatAreTooLoudAreLimited();
    void aVoiceThatHasNotBegunIsSilent();
    void aVoiceThatWaitsForItsFileReportsItRepeatedly();
    void aVoiceWithoutAFileEndsWhenItIsStopped();

private:
    QTemporaryDir _folder;
    QString _tone = _folder.filePath(QStringLiteral("tone.wav"));
};

void tst_Mixer::withoutAVoiceThereIsSilence()
{
    Hum hum;
    QCOMPARE(hum.range(), std::pair(0.0F, 0.0F));
}

void tst_Mixer::voicesAreHeardTogether()
{
    Hum hum;
    hum.add(_tone);
    hum.add(_tone, 0.5F);
    const auto isSum = [](std::pair<float, float> range) {
        return std::abs(range.first + 0.6F) < 0.01F && std::abs(range.second - 0.6F) < 0.01F;
    };
    QTRY_VERIFY(isSum(hum.range()));
}

void tst_Mixer::samplesThatAreTooLoudAreLimited()
{
    Hum hum;
    for (int i = 0; i < 5; ++i)
        hum.add(_tone);
    QTRY_COMPARE(hum.range(), std::pair(-1.0F, 1.0F));
}

void tst_Mixer::aVoiceThatHasNotBegunIsSilent()
{
    Mixer mixer(kSampleRate);
    const auto voice =
        std::make_shared<Voice>(kSampleRate, std::make_shared<SoundControls>(), [] {});
    const auto file = AudioFile::open(openSoundFile(_tone));
    QVERIFY(voice->begin(*file));
    mixer.add(voice);
    std::vector<float> samples(kFrames * 2, 7.0F);
    mixer.render(samples);
    QVERIFY(std::ranges::all_of(samples, [](float sample) { return sample == 0; }));
    QVERIFY(voice->isPlaying());
}

void tst_Mixer::aVoiceThatWaitsForItsFileReportsItRepeatedly()
{
    int missed = 0;
    Voice voice(kSampleRate, std::make_shared<SoundControls>(), [&] { ++missed; });
    std::vector<float> second(std::size_t{2} * kSampleRate);
    QList<int> misses;
    for (int i = 0; i < 6; ++i) {
        QVERIFY(voice.mixInto(second, 0));
        misses << missed;
    }
    QCOMPARE(misses, (QList<int>{0, 0, 1, 1, 1, 2}));
    QVERIFY(voice.isPlaying());
    voice.finish();
    QVERIFY(!voice.mixInto(second, 0));
}

void tst_Mixer::aVoiceWithoutAFileEndsWhenItIsStopped()
{
    Voice voice(kSampleRate, std::make_shared<SoundControls>(), [] {});
    std::vector<float> samples(kFrames * 2);
    QVERIFY(voice.mixInto(samples, 0));
    voice.stop();
    QVERIFY(!voice.mixInto(samples, 0));
}

WUFFER_TEST(tst_Mixer, WithoutWindows)
#include "tst_Mixer.moc"
