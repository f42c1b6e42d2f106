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
/// Where a sound to choose is most likely: the user's own sounds, the user's music, the sounds of
/// the system. The first of these that there is, or else the user's home.
QUrl folderOfSounds()
{
    using Paths = QStandardPaths;
    const QString data = Paths::writableLocation(Paths::GenericDataLocation);
    const QString music = Paths::writableLocation(Paths::MusicLocation);
    QStringList folders{data + QStringLiteral("/sounds")};
    // A desktop without a folder for music names the home instead.
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

void keepSharedSettingsIn(const QString &folder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

/// Makes what the file dialog would like to remember go nowhere. It reads how all programs of the
/// toolkit show files when it is made, and writes that back when it is destroyed.
void forgetWhatTheDialogRemembers()
{
    keepSharedSettingsIn(QProcess::nullDevice());
}

void goBackToTheSharedSettings()
{
    keepSharedSettingsIn(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}
} // namespace

std::optional<QUrl> SystemOpenPanel::runModal(QWidget &window, const QString &title)
{
    // The dialog is destroyed between these two.
    const auto later = qScopeGuard(goBackToTheSharedSettings);
    QFileDialog dialog(&window, title);
    const auto sooner = qScopeGuard(forgetWhatTheDialogRemembers);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // Over this window only: an alarm that rings meanwhile can be answered in its own.
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setDirectoryUrl(_folder.isEmpty() ? folderOfSounds() : _folder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedUrls().isEmpty())
        return std::nullopt;
    const QUrl chosen = dialog.selectedUrls().constFirst();
    // Not what the dialog showed last: a path may have been typed.
    _folder = chosen.adjusted(QUrl::RemoveFilename);
    return chosen;
}
