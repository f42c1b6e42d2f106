#pragma once

#include "base/OpenPanel.h"
#include "platform/FolderSearch.h"

#include <QString>

/// The file dialog of the desktop. It begins in the folder where the last file was chosen, at first
/// in one for sounds, and in the user's home if these do not answer.
class SystemOpenPanel final : public OpenPanel
{
public:
    SystemOpenPanel();
    /// With another way to find out whether a folder exists.
    explicit SystemOpenPanel(FolderSearch::Exists exists);

    [[nodiscard]] std::optional<QUrl> runModal(QWidget &window, const QString &title) override;

private:
    [[nodiscard]] QString firstFolder();

    FolderSearch _search;
    /// Where the last file was chosen; empty before the first.
    QString _folder;
};
