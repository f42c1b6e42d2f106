#pragma once

#include <QStringList>

/// The paths of the sound files that the user has added, the newest first. Paths are compared as
/// texts; the files need not exist.
class SoundHistory final
{
public:
    SoundHistory() = default;
    /// Takes over a stored list.
    explicit SoundHistory(QStringList paths) : _paths(std::move(paths)) {}

    [[nodiscard]] const QStringList &paths() const { return _paths; }
    [[nodiscard]] bool contains(const QString &path) const;

    /// Adds the path at the front. A path in the list already keeps its place.
    void add(const QString &path);

    /// Removes every occurrence of the path.
    void remove(const QString &path);

    /// The title of a sound: its file name without the extension.
    [[nodiscard]] static QString displayTitle(const QString &path);

private:
    QStringList _paths;
};
