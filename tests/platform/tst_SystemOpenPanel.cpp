#include "base/Service.h"
#include "platform/SystemOpenPanel.h"
#include "support/TestClock.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <memory>
#include <semaphore>

namespace
{
const auto kTitle = QStringLiteral("Select a sound file");

/// Shows the panel, and calls the function with its dialog.
std::optional<QUrl> run(SystemOpenPanel &panel, const std::function<void(QFileDialog &)> &act)
{
    QWidget window;
    window.show();
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, &window, [&] {
        auto *dialog = window.findChild<QFileDialog *>();
        if (!dialog)
            return;
        whenOpen.stop();
        act(*dialog);
        // A dialog that a failed test leaves open would block the test program for ever.
        if (dialog->isVisible())
            dialog->reject();
    });
    whenOpen.start(0);
    return panel.runModal(window, kTitle);
}

void type(QFileDialog &dialog, const QString &path)
{
    dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class tst_SystemOpenPanel final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void anyFileMayBeChosen();
    void onlyItsOwnWindowWaitsForIt();
    void aCancelledPanelGivesNothing();
    void theNextOneBeginsWhereTheLastFileWas();
    void theFirstOneBeginsWhereSoundsAre_data();
    void theFirstOneBeginsWhereSoundsAre();
    void aFolderThatHasGoneIsNotShownAgain();
    void aFolderThatHangsDoesNotHoldItUp();
    void onlyFilesOfThisComputerMayBeChosen();
    void nothingIsLeftBehind();
    void whatAllProgramsShareIsReadAndNotWritten();

private:
    [[nodiscard]] QString inHome(const QString &name) const { return _home.filePath(name); }
    void write(const QString &name, const QByteArray &contents) const;

    TestClock _clock;
    const Service<Clock> _service{_clock};
    QTemporaryDir _home;
};

void tst_SystemOpenPanel::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // The test makes its own folders, which stand for those of a user.
    QStandardPaths::setTestModeEnabled(false);
    qputenv("HOME", _home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", inHome(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", inHome(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_DATA_DIRS", inHome(QStringLiteral("system")).toLocal8Bit());
}

void tst_SystemOpenPanel::init()
{
    Test::init();
    QVERIFY(QDir(_home.path()).removeRecursively() && QDir().mkdir(_home.path()));
}

void tst_SystemOpenPanel::write(const QString &name, const QByteArray &contents) const
{
    const QString path = inHome(name);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}

void tst_SystemOpenPanel::anyFileMayBeChosen()
{
    SystemOpenPanel panel;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a  name без звука.txt"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const auto chosen = run(panel, [&](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), kTitle);
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(dialog.nameFilters(), QStringList{QStringLiteral("All Files (*)")});
        type(dialog, path);
    });
    QCOMPARE(chosen, QUrl::fromLocalFile(path));
}

void tst_SystemOpenPanel::onlyItsOwnWindowWaitsForIt()
{
    SystemOpenPanel panel;
    (void)run(panel, [](QFileDialog &dialog) {
        QCOMPARE(dialog.windowModality(), Qt::WindowModal);
        dialog.reject();
    });
}

void tst_SystemOpenPanel::aCancelledPanelGivesNothing()
{
    SystemOpenPanel panel;
    QCOMPARE(run(panel, [](QFileDialog &dialog) { dialog.reject(); }), std::nullopt);
}

void tst_SystemOpenPanel::theNextOneBeginsWhereTheLastFileWas()
{
    SystemOpenPanel panel;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(run(panel, [&](QFileDialog &dialog) { type(dialog, file.fileName()); }));
    (void)run(panel, [&](QFileDialog &dialog) {
        QCOMPARE(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        dialog.reject();
    });
}

void tst_SystemOpenPanel::theFirstOneBeginsWhereSoundsAre_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QByteArray>("music");
    QTest::addColumn<QString>("first");
    const QStringList all{QStringLiteral("data/sounds"), QStringLiteral("Tunes"),
                          QStringLiteral("system/sounds")};
    QTest::newRow("the user's own sounds") << all << QByteArray("$HOME/Tunes") << "data/sounds";
    QTest::newRow("music") << all.mid(1) << QByteArray("$HOME/Tunes") << "Tunes";
    QTest::newRow("no folder for music") << all.mid(1) << QByteArray("$HOME/") << "system/sounds";
    QTest::newRow("the folder for music has gone")
        << all.mid(2) << QByteArray("$HOME/Tunes") << "system/sounds";
    QTest::newRow("none of them") << QStringList() << QByteArray("$HOME/Tunes") << ".";
}

void tst_SystemOpenPanel::theFirstOneBeginsWhereSoundsAre()
{
    QFETCH(const QStringList, folders);
    QFETCH(const QByteArray, music);
    QFETCH(const QString, first);
    for (const QString &folder : folders)
        QVERIFY(QDir().mkpath(inHome(folder)));
    write(QStringLiteral("config/user-dirs.dirs"), "XDG_MUSIC_DIR=\"" + music + "\"\n");
    SystemOpenPanel panel;
    (void)run(panel, [&](QFileDialog &dialog) {
        QCOMPARE(dialog.directory().canonicalPath(), QDir(inHome(first)).canonicalPath());
        dialog.reject();
    });
}

void tst_SystemOpenPanel::aFolderThatHasGoneIsNotShownAgain()
{
    SystemOpenPanel panel;
    write(QStringLiteral("gone/tone.wav"), "tone");
    QVERIFY(run(panel, [&](QFileDialog &dialog) {
        type(dialog, inHome(QStringLiteral("gone/tone.wav")));
    }));
    QVERIFY(QDir(inHome(QStringLiteral("gone"))).removeRecursively());
    write(QStringLiteral("data/sounds/own.wav"), "tone");
    (void)run(panel, [&](QFileDialog &dialog) {
        QCOMPARE(dialog.directory(), QDir(inHome(QStringLiteral("data/sounds"))));
        dialog.reject();
    });
}

void tst_SystemOpenPanel::aFolderThatHangsDoesNotHoldItUp()
{
    const auto end = std::make_shared<std::counting_semaphore<>>(0);
    {
        SystemOpenPanel panel([end](const QString & /*folder*/) {
            end->acquire();
            return true;
        });
        QTimer limit;
        connect(&limit, &QTimer::timeout, &limit, [&] { _clock.advance(0.5); });
        limit.start(0);
        (void)run(panel, [&](QFileDialog &dialog) {
            QCOMPARE(dialog.directory(), QDir::home());
            dialog.reject();
        });
    }
    // The threads would outlive the test.
    while (end.use_count() > 1) {
        end->release();
        QThread::yieldCurrentThread();
    }
}

void tst_SystemOpenPanel::onlyFilesOfThisComputerMayBeChosen()
{
    SystemOpenPanel panel;
    (void)run(panel, [](QFileDialog &dialog) {
        QCOMPARE(dialog.supportedSchemes(), QStringList{QStringLiteral("file")});
        dialog.reject();
    });
}

void tst_SystemOpenPanel::nothingIsLeftBehind()
{
    SystemOpenPanel panel;
    const QString path = inHome(QStringLiteral("tone.wav"));
    write(QStringLiteral("tone.wav"), "tone");
    for (int i = 0; i < 2; ++i)
        QVERIFY(run(panel, [&](QFileDialog &dialog) { type(dialog, path); }));
    (void)run(panel, [](QFileDialog &dialog) { dialog.reject(); });
    QCOMPARE(QDir(_home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("tone.wav")});
}

void tst_SystemOpenPanel::whatAllProgramsShareIsReadAndNotWritten()
{
    const auto shared = QStringLiteral("config/QtProject.conf");
    const QByteArray contents = "[FileDialog]\nviewMode=List\n";
    write(shared, contents);
    SystemOpenPanel panel;
    for (int i = 0; i < 2; ++i) {
        (void)run(panel, [](QFileDialog &dialog) {
            QCOMPARE(dialog.viewMode(), QFileDialog::List);
            dialog.setViewMode(QFileDialog::Detail);
            dialog.reject();
        });
        QCOMPARE(contentsOf(inHome(shared)), contents);
    }
    QCOMPARE(QDir(inHome(QStringLiteral("config"))).entryList(QDir::Files).size(), 1);
}

WUFFER_TEST(tst_SystemOpenPanel)
#include "tst_SystemOpenPanel.moc"
