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

    /// Lets the user choose any one file, over the window, under this title, and returns when that
    /// is done: with where the file is, or with nothing if the user would rather not. The rest of
    /// the program goes on meanwhile.
    [[nodiscard]] virtual std::optional<QUrl> runModal(QWidget &window, const QString &title) = 0;
};
