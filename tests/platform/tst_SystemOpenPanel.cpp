#include "platform/SystemOpenPanel.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace
{
const auto kTitle = QStringLiteral("Select a sound file");

/// Shows the panel and does this to it.
std::optional<QUrl> run(SystemOpenPanel &panel, const std::function<void(QFileDialog &)> &act)
{
    QWidget window;
    window.show();
    QTimer soon;
    soon.setSingleShot(true);
    QObject::connect(&soon, &QTimer::timeout, &window, [&] {
        auto *dialog = window.findChild<QFileDialog *>();
        if (!dialog)
            qFatal("there is no file dialog");
        act(*dialog);
        // One that a failed test has left open would wait for ever.
        if (dialog->isVisible())
            dialog->reject();
    });
    soon.start(0);
    return panel.runModal(window, kTitle);
}

void type(QFileDialog &dialog, const QString &path)
{
    dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}
} // namespace

class tst_SystemOpenPanel final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void anyFileMayBeChosen();
    void onlyItsOwnWindowWaitsForIt();
    void aCancelledPanelGivesNothing();
    void theNextOneBeginsWhereTheLastFileWas();
};

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

WUFFER_TEST_MAIN(tst_SystemOpenPanel)
#include "tst_SystemOpenPanel.moc"
