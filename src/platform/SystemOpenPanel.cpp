#include "platform/SystemOpenPanel.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace
{
QUrl musicFolder()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    return QUrl::fromLocalFile(QDir(path).exists() ? path : QDir::homePath());
}
} // namespace

std::optional<QUrl> SystemOpenPanel::runModal(QWidget &window, const QString &title)
{
    QFileDialog dialog(&window, title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // Over this window only: an alarm that rings meanwhile can be answered in its own.
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setDirectoryUrl(_folder.isEmpty() ? musicFolder() : _folder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedUrls().isEmpty())
        return std::nullopt;
    const QUrl chosen = dialog.selectedUrls().constFirst();
    // Not what the dialog showed last: a path may have been typed.
    _folder = chosen.adjusted(QUrl::RemoveFilename);
    return chosen;
}
