#pragma once

#include <QStringList>

#include <functional>
#include <memory>

/// Finds the first of some folders that exists, without holding up the program: a folder on a file
/// server that is gone never answers. Main thread.
class FolderSearch final
{
public:
    /// Whether a folder exists. Called on threads of its own, and possibly still running when the
    /// search has been destroyed.
    using Exists = std::function<bool(const QString &folder)>;

    explicit FolderSearch(Exists exists);
    ~FolderSearch();
    Q_DISABLE_COPY_MOVE(FolderSearch)

    /// Returns the first of the folders that exists; empty if none does. Waits for their answers in
    /// an event loop without the input of the user, for at most half a second. A folder that has
    /// not answered by then counts as missing.
    [[nodiscard]] QString firstOf(const QStringList &folders);

private:
    struct Answers;

    void ask(const QStringList &folders);
    void wait(const QStringList &folders);

    const Exists _exists;
    const std::shared_ptr<Answers> _answers;
};
