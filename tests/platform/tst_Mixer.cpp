#include "platform/sound/Mixer.h"
#include "platform/sound/Voice.h"
#include "support/SoundFiles.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <thread>
#include <vector>

namespace
{
constexpr int kSampleRate = 48000;
/// Ten milliseconds: whole periods of the tone, so that every piece of it is the same.
constexpr std::size_t kFrames = 480;

/// A mixer, and voices that hum for ever.
class Hum final
{
public:
    Hum() = default;
    /// The readers end with their voices.
    ~Hum() { mixer.finish(); }
    Q_DISABLE_COPY_MOVE(Hum)

    void add(const QString &path, float volume = 1.0F)
    {
        const auto controls = std::make_shared<SoundControls>();
        controls->loops = true;
        controls->volume = volume;
        auto voice =
            std::make_shared<Voice>([path] { return openSoundFile(path); }, kSampleRate, controls);
        _readers.emplace_back([voice] { voice->readFile(); });
        mixer.add(std::move(voice));
    }

    /// The lowest and the highest of the next samples.
    [[nodiscard]] std::pair<float, float> range()
    {
        // Whatever was there before.
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

/// What a sound device gets of the voices.
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
    void whatIsTooLoudIsLimited();

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

void tst_Mixer::whatIsTooLoudIsLimited()
{
    Hum hum;
    for (int i = 0; i < 5; ++i)
        hum.add(_tone);
    QTRY_COMPARE(hum.range(), std::pair(-1.0F, 1.0F));
}

QTEST_GUILESS_MAIN(tst_Mixer)
#include "tst_Mixer.moc"
