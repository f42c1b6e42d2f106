#include "platform/LazySoundSystem.h"
#include "support/PreferencesFixture.h"
#include "support/SoundFiles.h"
#include "support/TestMain.h"

#include <QDir>
#include <QTemporaryDir>

namespace
{
/// The preferences with the real sound system, and a folder for files.
class Fixture : public PreferencesFixture
{
public:
    Fixture() { open(); }

    [[nodiscard]] QString path(const QString &name) const { return _folder.filePath(name); }
    void add(const QString &file)
    {
        openPanel.choose(file);
        choose("_alarmCombo", QStringLiteral("Select another sound..."));
    }

private:
    QTemporaryDir _folder;
    LazySoundSystem _sounds;
    Service<SoundSystem> _service{_sounds};
};
/// The preferences in an installation without the sound module, with a stored sound.
class FixtureWithoutModule : public PreferencesFixture
{
public:
    FixtureWithoutModule()
    {
        set("soundHistory", QStringList{kBell});
        set("alarmPath", kBell);
        set("countdownPath", kBell);
        open();
    }

    const QString kBell = QStringLiteral("/home/somebody/Bell.wav");

private:
    LazySoundSystem _sounds{QStringLiteral("/missing/module")};
    Service<SoundSystem> _service{_sounds};
};
} // namespace

/// Real files, opened by the real sound system.
class tst_SoundFiles final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormatIsAccepted_data();
    void everyFormatIsAccepted();
    void anyNameIsAccepted_data();
    void anyNameIsAccepted();
    void otherFilesAreNotAccepted_data();
    void otherFilesAreNotAccepted();
    void filesOfOneNameFromTwoFoldersAreBothListed();
    void aDeletedFileIsPrunedWhenThePreferencesAreLoaded();
    void withoutTheModuleStoredSoundsAreKept();
    void withoutTheModuleNoFileIsAccepted();
};

void tst_SoundFiles::everyFormatIsAccepted_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("name");
    QTest::newRow("WAV") << (SF_FORMAT_WAV | SF_FORMAT_PCM_16) << "tone.wav";
    QTest::newRow("AIFF") << (SF_FORMAT_AIFF | SF_FORMAT_PCM_16) << "tone.aiff";
    QTest::newRow("FLAC") << (SF_FORMAT_FLAC | SF_FORMAT_PCM_16) << "tone.flac";
    QTest::newRow("Ogg Vorbis") << (SF_FORMAT_OGG | SF_FORMAT_VORBIS) << "tone.ogg";
    QTest::newRow("Opus") << (SF_FORMAT_OGG | SF_FORMAT_OPUS) << "tone.opus";
    QTest::newRow("MP3") << (SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III) << "tone.mp3";
    QTest::newRow("without an extension") << (SF_FORMAT_FLAC | SF_FORMAT_PCM_16) << "tone";
}

void tst_SoundFiles::everyFormatIsAccepted()
{
    QFETCH(const int, format);
    QFETCH(const QString, name);
    Fixture p;
    writeTone(p.path(name), {.seconds = 0.5}, {format});
    QVERIFY(p.preferences->soundFileIsValid(p.path(name)));
    p.add(p.path(name));
    QCOMPARE(p.selected("_alarmCombo"), p.path(name));
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("tone"));
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundFiles::anyNameIsAccepted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("spaces") << "my  alarm sound.wav"
                            << "my  alarm sound";
    QTest::newRow("quotes") << "\"it's\" `mine`.wav"
                            << "\"it's\" `mine`";
    QTest::newRow("non-Latin letters")
        << QStringLiteral("будильник 目覚まし.wav") << QStringLiteral("будильник 目覚まし");
    QTest::newRow("ampersand and tags") << "a & <b>.wav"
                                        << "a & <b>";
    QTest::newRow("a percent sign") << "100%20%n%1.wav"
                                    << "100%20%n%1";
    QTest::newRow("a backslash") << "a\\n.wav"
                                 << "a\\n";
    QTest::newRow("a line break") << "a\nb.wav"
                                  << "a\nb";
    QTest::newRow("the longest") << QString(251, QLatin1Char('n')) + QStringLiteral(".wav")
                                 << QString(251, QLatin1Char('n'));
}

void tst_SoundFiles::anyNameIsAccepted()
{
    QFETCH(const QString, name);
    Fixture p;
    const Wuffer &timer = p.openTimer();
    const int width = timer.window()->sizeHint().width();
    const auto &tab = p.part<QWidget>("soundTab");
    const int ownWidth = tab.sizeHint().width();
    writeTone(p.path(name));
    p.add(p.path(name));
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("alarmPath")), p.path(name));
    QTEST(p.entries("_alarmCombo").at(1), "title");
    QTEST(p.label("_alarmLabel"), "title");
    // A long name does not make the window wider.
    QCOMPARE(timer.window()->sizeHint().width(), width);
    QCOMPARE(tab.sizeHint().width(), ownWidth);
}

void tst_SoundFiles::otherFilesAreNotAccepted_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a text") << QByteArray("Remember the milk. ").repeated(100);
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("a header alone") << QByteArray("RIFF\x24\0\0\0WAVE", 12);
}

void tst_SoundFiles::otherFilesAreNotAccepted()
{
    QFETCH(const QByteArray, bytes);
    Fixture p;
    QFile file(p.path(QStringLiteral("letter.wav")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
    file.close();
    p.add(file.fileName());
    QCOMPARE(p.desktop.beeps, 1);
    QCOMPARE(p.entries("_alarmCombo").size(), 3);
    p.add(QDir::tempPath());
    p.add(p.path(QStringLiteral("missing.wav")));
    QCOMPARE(p.desktop.beeps, 3);
    QCOMPARE(p.selected("_alarmCombo"), QStringLiteral("Wuff (Default)"));
}

void tst_SoundFiles::filesOfOneNameFromTwoFoldersAreBothListed()
{
    Fixture p;
    QStringList paths;
    for (const char *folder : {"one", "two"}) {
        QVERIFY(QDir().mkpath(p.path(QLatin1String(folder))));
        paths.prepend(p.path(QLatin1String(folder)) + QStringLiteral("/tone.wav"));
        writeTone(paths.first());
        p.add(paths.first());
    }
    QCOMPARE(p.defaults.stringArrayForKey(QStringLiteral("soundHistory")), paths);
    QCOMPARE(p.entries("_alarmCombo").mid(1, 2),
             QStringList({QStringLiteral("tone"), QStringLiteral("tone")}));
    QCOMPARE(p.selected("_alarmCombo"), paths.first());
}

void tst_SoundFiles::aDeletedFileIsPrunedWhenThePreferencesAreLoaded()
{
    Fixture p;
    const QString file = p.path(QStringLiteral("tone.wav"));
    writeTone(file);
    p.add(file);
    QVERIFY(QFile::remove(file));
    p.preferences->loadPreferences();
    QTRY_COMPARE(p.desktop.beeps, 1);
    QVERIFY(p.window.isVisible());
    QCOMPARE(p.defaults.stringArrayForKey(QStringLiteral("soundHistory")), QStringList());
    QCOMPARE(p.selected("_alarmCombo"), QStringLiteral("Wuff (Default)"));
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("alarmPath")), file);
}

void tst_SoundFiles::withoutTheModuleStoredSoundsAreKept()
{
    const FixtureWithoutModule p;
    QCOMPARE(p.defaults.stringArrayForKey(QStringLiteral("soundHistory")), QStringList{p.kBell});
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("alarmPath")), p.kBell);
    QCOMPARE(p.selected("_alarmCombo"), p.kBell);
    QCOMPARE(p.selected("_countdownCombo"), p.kBell);
    // No beep: the user cannot fix this here.
    QCOMPARE(p.desktop.beeps, 0);
    QVERIFY(!p.window.isVisible());
}

void tst_SoundFiles::withoutTheModuleNoFileIsAccepted()
{
    FixtureWithoutModule p;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("tone.wav"));
    writeTone(file);
    p.openPanel.choose(file);
    p.choose("_alarmCombo", QStringLiteral("Select another sound..."));
    QCOMPARE(p.desktop.beeps, 1);
    QCOMPARE(p.defaults.stringArrayForKey(QStringLiteral("soundHistory")), QStringList{p.kBell});
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("alarmPath")), p.kBell);
}

WUFFER_TEST(tst_SoundFiles)
#include "tst_SoundFiles.moc"
