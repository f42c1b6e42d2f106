#include "audio/AudioFile.h"
#include "audio/SoundBytes.h"
#include "support/SoundFiles.h"
#include "support/TestMain.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <cmath>
#include <limits>
#include <sys/stat.h>

namespace
{
constexpr int kWav = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int kAiff = SF_FORMAT_AIFF | SF_FORMAT_PCM_16;
constexpr int kFlac = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
constexpr int kVorbis = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
constexpr int kOpus = SF_FORMAT_OGG | SF_FORMAT_OPUS;
constexpr int kMp3 = SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;

std::unique_ptr<AudioFile> open(const QString &path)
{
    return AudioFile::open(openSoundFile(path));
}

/// The length of the file at the path in seconds; 0 if it cannot be played.
double durationOf(const QString &path)
{
    const std::unique_ptr<AudioFile> file = open(path);
    return file ? file->duration() : 0.0;
}

/// One channel of a file from its current position to its end; side 0 is left, 1 right.
std::vector<float> readSide(AudioFile &file, int side)
{
    constexpr int frames = 1000;
    std::vector<float> block(2 * frames);
    std::vector<float> result;
    int count = 0;
    do {
        count = file.readStereo(block.data(), frames);
        for (int i = 0; i < count; ++i)
            result.push_back(block[static_cast<std::size_t>(2 * i + side)]);
    } while (count == frames);
    return result;
}

double rms(const std::vector<float> &samples)
{
    double sum = 0;
    for (const float sample : samples)
        sum += static_cast<double>(sample) * static_cast<double>(sample);
    return std::sqrt(sum / static_cast<double>(samples.size()));
}

/// How often the samples rise through zero per second.
double frequency(const std::vector<float> &samples, int sampleRate)
{
    int rises = 0;
    for (std::size_t i = 1; i < samples.size(); ++i)
        rises += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
    return rises * static_cast<double>(sampleRate) / static_cast<double>(samples.size());
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The MP3 file with its Xing header replaced by the other form, a VBRI header.
QByteArray withVbriHeader(QByteArray mp3)
{
    constexpr qsizetype framesAndBytes = 8;
    const qsizetype xing = mp3.indexOf("Xing");
    const qsizetype secondFrame = mp3.indexOf(mp3.first(2), 4);
    const auto number = [&](qsizetype offset) {
        return qFromBigEndian<quint32>(mp3.constData() + offset);
    };
    const quint32 frames = number(xing + framesAndBytes);
    const quint32 size = number(xing + framesAndBytes + 4);
    QByteArray header(secondFrame - 4, '\0');
    constexpr qsizetype vbri = 32;
    header.replace(vbri, 4, "VBRI");
    qToBigEndian(size, header.data() + vbri + 10);
    qToBigEndian(frames, header.data() + vbri + 14);
    return mp3.replace(4, header.size(), header);
}

QByteArray randomBytes(quint32 seed)
{
    QRandomGenerator generator(seed);
    QByteArray bytes(8192, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    return bytes;
}
} // namespace

class tst_AudioFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormatTellsItsExactLength_data();
    void everyFormatTellsItsExactLength();
    void everyFormatSoundsAsRecorded_data() { everyFormatTellsItsExactLength_data(); }
    void everyFormatSoundsAsRecorded();
    void rewindingReadsTheSameAgain_data() { everyFormatTellsItsExactLength_data(); }
    void rewindingReadsTheSameAgain();
    void anMp3FileWithoutAHeaderFrameIsMeasured_data();
    void anMp3FileWithoutAHeaderFrameIsMeasured();
    void anMp3FileWithAVbriHeaderIsMeasured();
    void tagsBeforeAnMp3StreamAreSkipped();
    void theNameOfAFileDoesNotMatter_data();
    void theNameOfAFileDoesNotMatter();
    void aSoundIsReadFromAResource();
    void aSoundOfOneChannelComesFromBothSides();
    void everyOneOfManyChannelsIsHeard();
    void samplesThatAreNoNumbersAreSilent();
    void whatIsNoSoundCannotBeOpened_data();
    void whatIsNoSoundCannotBeOpened();
    void whatIsNoFileCannotBeOpened_data();
    void whatIsNoFileCannotBeOpened();
    void randomBytesCannotBeOpened();
    void aFileThatWasCut_data();
    void aFileThatWasCut();
    void aFileWithAnAbsurdHeaderCannotBeOpened_data();
    void aFileWithAnAbsurdHeaderCannotBeOpened();
    void seekingOutsideAFileFails();

private:
    [[nodiscard]] QString path(const QString &name) const { return _folder.filePath(name); }
    QString written(const QString &name, const QByteArray &bytes) const;

    QTemporaryDir _folder;
};

QString tst_AudioFile::written(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(file.fileName()));
    return file.fileName();
}

void tst_AudioFile::everyFormatTellsItsExactLength_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("variableRate");
    QTest::addColumn<int>("sampleRate");

    QTest::newRow("WAV") << kWav << false << 44100;
    QTest::newRow("WAV of 8 bits") << (SF_FORMAT_WAV | SF_FORMAT_PCM_U8) << false << 22050;
    QTest::newRow("WAV of 24 bits") << (SF_FORMAT_WAV | SF_FORMAT_PCM_24) << false << 96000;
    QTest::newRow("WAV of floats") << (SF_FORMAT_WAV | SF_FORMAT_FLOAT) << false << 48000;
    QTest::newRow("AIFF") << kAiff << false << 44100;
    QTest::newRow("FLAC") << kFlac << false << 44100;
    QTest::newRow("Ogg Vorbis") << kVorbis << false << 44100;
    QTest::newRow("Opus") << kOpus << false << 48000;
    QTest::newRow("MP3 of constant rate") << kMp3 << false << 44100;
    QTest::newRow("MP3 of variable rate") << kMp3 << true << 44100;
    QTest::newRow("MP3 of low sample rate") << kMp3 << false << 22050;
    QTest::newRow("MP3 of the lowest sample rate") << kMp3 << true << 8000;
}

void tst_AudioFile::everyFormatTellsItsExactLength()
{
    QFETCH(int, format);
    QFETCH(bool, variableRate);
    QFETCH(int, sampleRate);
    writeTone(path(QStringLiteral("tone")), {.seconds = 1.4, .sampleRate = sampleRate},
              {format, variableRate});

    const std::unique_ptr<AudioFile> file = open(path(QStringLiteral("tone")));

    QVERIFY(file);
    QCOMPARE(file->sampleRate(), sampleRate);
    QCOMPARE(file->duration(), 1.4);
    QCOMPARE(readSide(*file, 0).size(), static_cast<std::size_t>(std::lround(1.4 * sampleRate)));
}

void tst_AudioFile::everyFormatSoundsAsRecorded()
{
    QFETCH(int, format);
    QFETCH(bool, variableRate);
    QFETCH(int, sampleRate);
    const Tone tone{.seconds = 2, .frequency = 400, .sampleRate = sampleRate, .channels = 2};
    writeTone(path(QStringLiteral("tone")), tone, {format, variableRate});
    const std::unique_ptr<AudioFile> file = open(path(QStringLiteral("tone")));
    QVERIFY(file);

    const std::vector<float> left = readSide(*file, 0);
    QVERIFY(file->rewind());
    const std::vector<float> right = readSide(*file, 1);

    const double expectedRms = tone.amplitude / std::sqrt(2.0);
    QVERIFY2(std::abs(rms(left) / expectedRms - 1) < 0.02, qPrintable(QString::number(rms(left))));
    QVERIFY2(std::abs(rms(right) / expectedRms - 1) < 0.02,
             qPrintable(QString::number(rms(right))));
    QVERIFY(std::abs(frequency(left, sampleRate) - 400) < 2);
    QVERIFY(std::abs(frequency(right, sampleRate) - 800) < 2);
}

void tst_AudioFile::rewindingReadsTheSameAgain()
{
    QFETCH(int, format);
    QFETCH(bool, variableRate);
    QFETCH(int, sampleRate);
    writeTone(path(QStringLiteral("tone")), {.seconds = 0.4, .sampleRate = sampleRate},
              {format, variableRate});
    const std::unique_ptr<AudioFile> file = open(path(QStringLiteral("tone")));
    QVERIFY(file);

    const std::vector<float> first = readSide(*file, 0);
    QVERIFY(file->rewind());
    const std::vector<float> again = readSide(*file, 0);

    QCOMPARE(again.size(), first.size());
    float largestDifference = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        largestDifference = std::max(largestDifference, std::abs(first[i] - again[i]));
    QVERIFY2(largestDifference < 0.001F, qPrintable(QString::number(largestDifference)));
}

void tst_AudioFile::anMp3FileWithoutAHeaderFrameIsMeasured_data()
{
    QTest::addColumn<bool>("variableRate");
    QTest::newRow("constant rate") << false;
    QTest::newRow("variable rate") << true;
}

void tst_AudioFile::anMp3FileWithoutAHeaderFrameIsMeasured()
{
    QFETCH(bool, variableRate);
    writeTone(path(QStringLiteral("tone")), {.seconds = 3, .sampleRate = 44100},
              {kMp3, variableRate});
    QByteArray bytes = contents(path(QStringLiteral("tone")));
    const qsizetype secondFrame = bytes.indexOf(bytes.first(2), 4);
    bytes.remove(0, secondFrame);

    const double duration = durationOf(written(QStringLiteral("bare"), bytes));

    // Without the header frame, the silence that the encoder added is unknown and counts as sound.
    QVERIFY2(duration >= 3.0 && duration < 3.1, qPrintable(QString::number(duration)));
}

void tst_AudioFile::anMp3FileWithAVbriHeaderIsMeasured()
{
    writeTone(path(QStringLiteral("tone")), {.seconds = 3, .sampleRate = 44100}, {kMp3, true});
    const QByteArray bytes = contents(path(QStringLiteral("tone")));

    const double duration = durationOf(written(QStringLiteral("vbri"), withVbriHeader(bytes)));
    const QByteArray half = withVbriHeader(bytes).first(bytes.size() / 2);

    QVERIFY2(duration >= 3.0 && duration < 3.1, qPrintable(QString::number(duration)));
    QCOMPARE(durationOf(written(QStringLiteral("half"), half)), 0.0);
}

void tst_AudioFile::tagsBeforeAnMp3StreamAreSkipped()
{
    writeTone(path(QStringLiteral("tone")), {.sampleRate = 44100}, {kMp3});
    const QByteArray stream = contents(path(QStringLiteral("tone")));
    const auto tag = [](char sizeHigh, qsizetype size) {
        QByteArray bytes("ID3\4\0\0\0\0", 8);
        return bytes.append(sizeHigh).append('\0').append(QByteArray(size, 'x'));
    };

    const QString tagged = written(QStringLiteral("tagged"), tag(2, 256) + stream);
    const QString twice = written(QStringLiteral("twice"), tag(1, 128) + tag(2, 256) + stream);
    const QString padded =
        written(QStringLiteral("padded"), tag(2, 256) + QByteArray(700, '\0') + stream);

    QCOMPARE(durationOf(tagged), 1.0);
    QCOMPARE(durationOf(twice), 1.0);
    QCOMPARE(durationOf(padded), 1.0);
}

void tst_AudioFile::theNameOfAFileDoesNotMatter_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << QStringLiteral("my  alarm sound.wav");
    QTest::newRow("quotes") << QStringLiteral("\"it's\" `mine`.wav");
    QTest::newRow("non-Latin letters") << QString::fromUtf8("будильник 目覚まし.wav");
    QTest::newRow("another sound's extension") << QStringLiteral("tone.mp3");
    QTest::newRow("the extension of a text") << QStringLiteral("tone.txt");
    QTest::newRow("no extension") << QStringLiteral("tone");
    QTest::newRow("a percent sign") << QStringLiteral("100%20%n.wav");
    QTest::newRow("the longest that there may be") << QString(255, QLatin1Char('n'));
}

void tst_AudioFile::theNameOfAFileDoesNotMatter()
{
    QFETCH(QString, name);
    writeTone(path(name));
    QCOMPARE(durationOf(path(name)), 1.0);
}

void tst_AudioFile::aSoundIsReadFromAResource()
{
    const auto file = AudioFile::open(openSoundResource(QStringLiteral("test-blip.wav")));

    QVERIFY(file);
    QCOMPARE(file->duration(), 0.3);
    QVERIFY(std::abs(frequency(readSide(*file, 0), 8000) - 500) < 5);
    QVERIFY(!openSoundResource(QStringLiteral("missing.wav")));
    QVERIFY(!openSoundResource(QString()));
}

void tst_AudioFile::aSoundOfOneChannelComesFromBothSides()
{
    writeTone(path(QStringLiteral("tone")), {.channels = 1});
    const std::unique_ptr<AudioFile> file = open(path(QStringLiteral("tone")));
    QVERIFY(file);

    const std::vector<float> left = readSide(*file, 0);
    QVERIFY(file->rewind());

    QVERIFY(left == readSide(*file, 1));
    QVERIFY(rms(left) > 0.3);
}

void tst_AudioFile::everyOneOfManyChannelsIsHeard()
{
    writeTone(path(QStringLiteral("tone")), {.frequency = 100, .channels = 6});
    const std::unique_ptr<AudioFile> file = open(path(QStringLiteral("tone")));
    QVERIFY(file);

    // For sines of different frequencies, the squares of the RMS values add up.
    const double expected = 0.5 / std::sqrt(2.0) * std::sqrt(6.0) / 6.0;
    QVERIFY(std::abs(rms(readSide(*file, 0)) - expected) < 0.001);
}

void tst_AudioFile::samplesThatAreNoNumbersAreSilent()
{
    writeTone(path(QStringLiteral("tone")), {}, {SF_FORMAT_WAV | SF_FORMAT_FLOAT});
    QByteArray bytes = contents(path(QStringLiteral("tone")));
    const float notANumber = std::nanf("");
    for (qsizetype i = bytes.size() - 4000; i + 4 <= bytes.size(); i += 4)
        std::memcpy(bytes.data() + i, &notANumber, sizeof notANumber);
    const std::unique_ptr<AudioFile> file = open(written(QStringLiteral("broken"), bytes));
    QVERIFY(file);

    const std::vector<float> samples = readSide(*file, 0);

    QCOMPARE(samples.size(), std::size_t(48000));
    QVERIFY(std::ranges::all_of(samples, [](float sample) { return std::isfinite(sample); }));
    QCOMPARE(samples.back(), 0.0F);
}

void tst_AudioFile::whatIsNoSoundCannotBeOpened_data()
{
    const QByteArray noise = randomBytes(1);
    const std::pair<const char *, QByteArray> kinds[] = {
        {"an empty file", {}},
        {"one byte", "R"},
        {"a text", QByteArray("Remember the milk. ").repeated(500)},
        {"a program", contents(QCoreApplication::applicationFilePath()).first(200'000)},
        {"a script", QByteArray("#!/bin/sh\necho RIFF WAVE fLaC OggS\n").repeated(50)},
        {"an MP4 video", QByteArray("\0\0\0\x20"
                                    "ftypisom\0\0\2\0isomiso2avc1mp41",
                                    32) +
                             noise},
        {"a Matroska video", QByteArray("\x1a\x45\xdf\xa3\xa3\x42\x86\x81\1", 9) + noise},
        {"an AVI video", QByteArray("RIFF\xf8\x1f\0\0AVI LIST", 16) + noise},
        {"an MPEG video", QByteArray("\0\0\1\xba\x44\0\4\0\4\1", 10) + noise},
        {"a picture", QByteArray("\xff\xd8\xff\xe0\0\x10JFIF\0\1", 12) + noise},
        {"a lone MP3 frame header", QByteArray("\xff\xfb\x90\x64", 4) + noise},
        {"an MP3 tag before a text",
         QByteArray("ID3\4\0\0\0\0\0\x0a", 10) + "0123456789 and so on"},
        {"an endless MP3 tag", QByteArray("ID3\4\0\0\x7f\x7f\x7f\x7f", 10) + noise},
        {"a WAV header alone", QByteArray("RIFF\x24\0\0\0WAVE", 12)},
        {"a FLAC header alone", QByteArray("fLaC\0\0\0\x22", 8)},
        {"an Ogg header alone", QByteArray("OggS\0\2\0\0\0\0\0\0\0\0", 14)},
    };
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    for (const auto &[kind, bytes] : kinds) {
        for (const char *extension : {"", ".wav", ".aiff", ".flac", ".ogg", ".opus", ".mp3"})
            QTest::addRow("%s as \"file%s\"", kind, extension)
                << bytes << QStringLiteral("file") + QLatin1String(extension);
    }
}

void tst_AudioFile::whatIsNoSoundCannotBeOpened()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QCOMPARE(durationOf(written(name, bytes)), 0.0);
}

void tst_AudioFile::whatIsNoFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("extension");
    for (const char *extension : {"", ".wav", ".aiff", ".flac", ".ogg", ".opus", ".mp3"})
        QTest::addRow("with the extension \"%s\"", extension) << QString::fromLatin1(extension);
}

void tst_AudioFile::whatIsNoFileCannotBeOpened()
{
    QFETCH(QString, extension);
    const QString folder = path(QStringLiteral("folder") + extension);
    const QString pipe = path(QStringLiteral("pipe") + extension);
    const QString device = path(QStringLiteral("device") + extension);
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), device));

    QCOMPARE(durationOf(path(QStringLiteral("missing") + extension)), 0.0);
    QCOMPARE(durationOf(folder), 0.0);
    QCOMPARE(durationOf(pipe), 0.0);
    QCOMPARE(durationOf(device), 0.0);
    QCOMPARE(durationOf(QString()), 0.0);
}

void tst_AudioFile::randomBytesCannotBeOpened()
{
    for (quint32 seed = 0; seed < 200; ++seed) {
        const QString file = written(QStringLiteral("random"), randomBytes(seed));
        QVERIFY2(durationOf(file) == 0.0, qPrintable(QString::number(seed)));
    }
}

void tst_AudioFile::aFileThatWasCut_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("variableRate");
    QTest::addColumn<double>("shortest");
    QTest::addColumn<double>("longest");

    QTest::newRow("WAV plays what is there") << kWav << false << 9.99 << 10.01;
    QTest::newRow("AIFF plays what is there") << kAiff << false << 9.99 << 10.01;
    QTest::newRow("Ogg Vorbis does not play") << kVorbis << false << 0.0 << 0.0;
    QTest::newRow("Opus does not play") << kOpus << false << 0.0 << 0.0;
    QTest::newRow("FLAC does not play") << kFlac << false << 0.0 << 0.0;
    QTest::newRow("MP3 of constant rate does not play") << kMp3 << false << 0.0 << 0.0;
    QTest::newRow("MP3 of variable rate does not play") << kMp3 << true << 0.0 << 0.0;
}

void tst_AudioFile::aFileThatWasCut()
{
    QFETCH(int, format);
    QFETCH(bool, variableRate);
    QFETCH(double, shortest);
    QFETCH(double, longest);
    writeTone(path(QStringLiteral("whole")), {.seconds = 20, .frequency = 7013.7},
              {format, variableRate});
    const QByteArray whole = contents(path(QStringLiteral("whole")));
    const QString half = written(QStringLiteral("half"), whole.first(whole.size() / 2));

    const double duration = durationOf(half);

    QVERIFY2(duration >= shortest && duration <= longest, qPrintable(QString::number(duration)));
    if (const std::unique_ptr<AudioFile> file = open(half)) {
        const double read = static_cast<double>(readSide(*file, 0).size()) / file->sampleRate();
        QVERIFY2(std::abs(read - duration) < 0.001, qPrintable(QString::number(read)));
    }
}

void tst_AudioFile::aFileWithAnAbsurdHeaderCannotBeOpened_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<quint32>("value");
    // The offsets of fields in a WAV header. The four bytes at 20 are the sample format, which
    // is 1, and the number of channels.
    QTest::newRow("no sample rate") << 24 << 0U;
    QTest::newRow("a sample rate of 10 a second") << 24 << 10U;
    QTest::newRow("a sample rate of 4 billion") << 24 << 0xfff00000U;
    QTest::newRow("a sample rate of 1 million") << 24 << 1'000'000U;
    QTest::newRow("no channels") << 20 << 0x00000001U;
    QTest::newRow("a thousand channels") << 20 << 0x03e80001U;
}

void tst_AudioFile::aFileWithAnAbsurdHeaderCannotBeOpened()
{
    QFETCH(int, offset);
    QFETCH(quint32, value);
    writeTone(path(QStringLiteral("tone")));
    QByteArray bytes = contents(path(QStringLiteral("tone")));
    qToLittleEndian(value, bytes.data() + offset);

    QCOMPARE(durationOf(written(QStringLiteral("absurd"), bytes)), 0.0);
}

void tst_AudioFile::seekingOutsideAFileFails()
{
    constexpr qint64 farthest = std::numeric_limits<qint64>::max();
    // QBuffer warns if it is asked to seek outside its data.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QBuffer bytes;
    bytes.setData("sound");
    QVERIFY(bytes.open(QIODevice::ReadOnly));

    QCOMPARE(seekFrom(bytes, 2, SEEK_SET), 2);
    QCOMPARE(seekFrom(bytes, -3, SEEK_SET), -1);
    QCOMPARE(seekFrom(bytes, farthest, SEEK_CUR), -1);
    QCOMPARE(seekFrom(bytes, farthest, SEEK_END), -1);
    QCOMPARE(seekFrom(bytes, -6, SEEK_END), -1);
    QCOMPARE(seekFrom(bytes, -1, SEEK_CUR), 1);
    QCOMPARE(seekFrom(bytes, -5, SEEK_END), 0);
}

WUFFER_TEST(tst_AudioFile, WithoutWindows)
#include "tst_AudioFile.moc"
