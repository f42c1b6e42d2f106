#pragma once

#include <QUrl>

#include <optional>

class QString;
class QWidget;

/// Asks the user for a file. Main thread.
class OpenPanel
{
public:
    OpenPanel() = default;
    virtual ~OpenPanel() = default;
    Q_DISABLE_COPY_MOVE(OpenPanel)

    /// Shows a dialog with this title over the window, in which the user chooses one file of any
    /// kind. Returns the file, or nothing if the user cancels. The rest of the program goes on
    /// meanwhile.
    [[nodiscard]] virtual std::optional<QUrl> runModal(QWidget &window, const QString &title) = 0;
};
