#pragma once

#include "base/OpenPanel.h"

/// The file dialog of the desktop.
class SystemOpenPanel final : public OpenPanel
{
public:
    [[nodiscard]] std::optional<QUrl> runModal(QWidget &window, const QString &title) override;

private:
    /// Where the last file was chosen; empty before the first.
    QUrl _folder;
};
