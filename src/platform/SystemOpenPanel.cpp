#include "platform/SystemOpenPanel.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QSettings>
#include <QStandardPaths>

namespace
{
bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

/// The folders for the user's own sounds, for the user's music and for the sounds of the system.
/// None of them need exist.
QStringList foldersOfSounds()
{
    using Paths = QStandardPaths;
    QStringList folders;
    // The first one holds the data of the user, the others those of the system.
    for (const QString &data : Paths::standardLocations(Paths::GenericDataLocation))
        folders << data + QStringLiteral("/sounds");
    const QString music = QDir::cleanPath(Paths::writableLocation(Paths::MusicLocation));
    // Without a folder for music, the location of music is the home.
    if (music != QDir::homePath())
        folders.insert(1, music);
    return folders;
}

void setFolderOfSharedSettings(const QString &folder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

/// Discards what the file dialog writes to the settings that all Qt programs share. The dialog
/// reads them when it is made and writes them back when it is destroyed.
void discardSharedSettings()
{
    setFolderOfSharedSettings(QProcess::nullDevice());
}

void restoreSharedSettings()
{
    setFolderOfSharedSettings(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}
} // namespace

SystemOpenPanel::SystemOpenPanel() : SystemOpenPanel(isFolder) {}

SystemOpenPanel::SystemOpenPanel(FolderSearch::Exists exists) : _search(std::move(exists)) {}

QString SystemOpenPanel::firstFolder()
{
    QStringList folders = foldersOfSounds();
    if (!_folder.isEmpty())
        folders.prepend(_folder);
    const QString folder = _search.firstOf(folders);
    return folder.isEmpty() ? QDir::homePath() : folder;
}

std::optional<QUrl> SystemOpenPanel::runModal(QWidget &window, const QString &title)
{
    const QString folder = firstFolder();
    // Destruction runs backwards: `discard`, then the dialog, then `restore`.
    const auto restore = qScopeGuard(restoreSharedSettings);
    QFileDialog dialog(&window, title, folder);
    const auto discard = qScopeGuard(discardSharedSettings);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // The program plays no file that has to be fetched from a server.
    dialog.setSupportedSchemes({QStringLiteral("file")});
    // Blocks this window only, so that the user can stop an alarm that begins in another one.
    dialog.setWindowModality(Qt::WindowModal);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedUrls().isEmpty())
        return std::nullopt;
    QUrl chosen = dialog.selectedUrls().constFirst();
    // Not the folder that the dialog showed last, because the user may have typed a path.
    _folder = chosen.adjusted(QUrl::RemoveFilename).toLocalFile();
    return chosen;
}
