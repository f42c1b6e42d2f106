#pragma once

#include <QStringList>

/// The sound files that the user has added, newest first, each by its path. Paths are compared as
/// they are written; whether there is such a file is nobody's concern here.
class SoundHistory final
{
public:
    SoundHistory() = default;
    /// The list as it was kept.
    explicit SoundHistory(QStringList paths) : _paths(std::move(paths)) {}

    [[nodiscard]] const QStringList &paths() const { return _paths; }
    [[nodiscard]] bool contains(const QString &path) const;

    /// Puts the path in front. One that is in the list already keeps its place.
    void add(const QString &path);

    /// Takes the path out, however often it is there.
    void remove(const QString &path);

    /// What the user sees of a path: the name of the file without its extension.
    [[nodiscard]] static QString displayTitle(const QString &path);

private:
    QStringList _paths;
};
