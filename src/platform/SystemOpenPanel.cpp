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
/// The first folder that exists of the user's own sounds, the user's music and the sounds of the
/// system, or else the user's home.
QUrl folderOfSounds()
{
    using Paths = QStandardPaths;
    const QString data = Paths::writableLocation(Paths::GenericDataLocation);
    const QString music = Paths::writableLocation(Paths::MusicLocation);
    QStringList folders{data + QStringLiteral("/sounds")};
    // Without a folder for music, the location of music is the home.
    if (QDir(music) != QDir::home())
        folders << music;
    folders << Paths::locateAll(Paths::GenericDataLocation, QStringLiteral("sounds"),
                                Paths::LocateDirectory);
    for (const QString &folder : std::as_const(folders)) {
        if (QFileInfo(folder).isDir())
            return QUrl::fromLocalFile(folder);
    }
    return QUrl::fromLocalFile(QDir::homePath());
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

std::optional<QUrl> SystemOpenPanel::runModal(QWidget &window, const QString &title)
{
    // Destruction runs backwards: `discard`, then the dialog, then `restore`.
    const auto restore = qScopeGuard(restoreSharedSettings);
    QFileDialog dialog(&window, title);
    const auto discard = qScopeGuard(discardSharedSettings);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // Blocks this window only, so that the user can stop an alarm that begins in another one.
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setDirectoryUrl(_folder.isEmpty() ? folderOfSounds() : _folder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedUrls().isEmpty())
        return std::nullopt;
    const QUrl chosen = dialog.selectedUrls().constFirst();
    // Not the folder that the dialog showed last, because the user may have typed a path.
    _folder = chosen.adjusted(QUrl::RemoveFilename);
    return chosen;
}
