#include "audio/CubebSoundSystem.h"
#include "support/SoundFiles.h"
#include "support/SoundLengths.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

/// Stand-ins: sounds that play in place of a sound whose file broke after it was opened.
class tst_StandIns final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theStandInIsHeardForAFileThatBrokeLater_data();
    void theStandInIsHeardForAFileThatBrokeLater();
    void theStandInPlaysUnderTheSameSound();
    void theStandInLoopsUntilToldOtherwise();
    void aFileThatCameBackIsHeardItself();
    void aFileOfAnotherRateThatCameLaterIsHeardItself();
    void aFileThatNeverWasASoundHasNoStandIn();

private:
    /// Writes a file of five seconds and opens it, with a stand-in of 0.3 seconds.
    [[nodiscard]] std::unique_ptr<Sound> soundWithStandIn(const QString &path);

    QTemporaryDir _folder;
    CubebSoundSystem _system;
};

void tst_StandIns::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
}

std::unique_ptr<Sound> tst_StandIns::soundWithStandIn(const QString &path)
{
    writeTone(path, {.seconds = 5, .sampleRate = 22050});
    auto sound = _system.soundWithContentsOfFile(path);
    sound->setStandIn(QStringLiteral("test-blip.wav"));
    return hasAnswered(*sound) ? std::move(sound) : nullptr;
}

void tst_StandIns::theStandInIsHeardForAFileThatBrokeLater_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("deleted") << QByteArray();
    QTest::newRow("emptied") << QByteArray("");
    QTest::newRow("a text") << QByteArray("Remember the milk. ").repeated(1000);
    QTest::newRow("a header alone") << QByteArray("RIFF\x24\0\0\0WAVE", 12);
}

void tst_StandIns::theStandInIsHeardForAFileThatBrokeLater()
{
    QFETCH(const QByteArray, bytes);
    const QString path = _folder.filePath(QStringLiteral("broken"));
    const auto broken = soundWithStandIn(path);
    QVERIFY(QFile::remove(path));
    if (!bytes.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    const auto play = [&] {
        broken->play();
        return secondsUntilSilent(*broken);
    };
    VERIFY_LASTS(play, 0.3);
}

void tst_StandIns::theStandInPlaysUnderTheSameSound()
{
    const QString path = _folder.filePath(QStringLiteral("gone"));
    const auto gone = soundWithStandIn(path);
    QVERIFY(QFile::remove(path));
    gone->setVolume(0.25F);
    const QElapsedTimer timer = startedTimer();
    gone->play();
    // It plays from the first moment on, without a gap.
    while (timer.elapsed() < 250)
        QVERIFY(gone->isPlaying());
    QCOMPARE(gone->name(), path);
    QCOMPARE(gone->duration(), 5.0);
    QCOMPARE(gone->volume(), 0.25F);
}

void tst_StandIns::theStandInLoopsUntilToldOtherwise()
{
    const QString path = _folder.filePath(QStringLiteral("gone"));
    const auto gone = soundWithStandIn(path);
    QVERIFY(QFile::remove(path));
    const auto loop = [&] {
        gone->setLoops(true);
        const QElapsedTimer timer = startedTimer();
        gone->play();
        QTest::qWait(700);
        const bool goesOn = gone->isPlaying();
        gone->setLoops(false);
        return goesOn ? secondsUntilSilent(*gone, timer) : 0;
    };
    VERIFY_LASTS(loop, 0.9);
}

void tst_StandIns::aFileThatCameBackIsHeardItself()
{
    const QString path = _folder.filePath(QStringLiteral("back"));
    const auto back = soundWithStandIn(path);
    QVERIFY(QFile::remove(path));
    back->play();
    QVERIFY(secondsUntilSilent(*back) < 1.0);
    writeTone(path, {.seconds = 0.6, .sampleRate = 22050});
    const auto play = [&] {
        back->play();
        return secondsUntilSilent(*back);
    };
    VERIFY_LASTS(play, 0.6);
}

void tst_StandIns::aFileOfAnotherRateThatCameLaterIsHeardItself()
{
    const QString path = _folder.filePath(QStringLiteral("other"));
    for (const int sampleRate : {8000, 44100}) {
        const auto other = soundWithStandIn(path);
        writeTone(path, {.seconds = 0.6, .sampleRate = sampleRate});
        const auto play = [&] {
            other->play();
            return secondsUntilSilent(*other);
        };
        VERIFY_LASTS(play, 0.6);
    }
}

void tst_StandIns::aFileThatNeverWasASoundHasNoStandIn()
{
    const auto never = _system.soundWithContentsOfFile(_folder.path());
    never->setStandIn(QStringLiteral("test-blip.wav"));
    QVERIFY(hasAnswered(*never));
    never->play();
    QVERIFY(!never->isPlaying());
}

WUFFER_TEST(tst_StandIns, WithoutWindows)
#include "tst_StandIns.moc"
