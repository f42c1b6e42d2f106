#pragma once

#include <QFile>

#include <memory>

/// The regular file at a path, opened without ever waiting: a pipe or a device in its place is
/// none. Makes no file and cuts none off. Closed with its scope. Any thread.
class RegularFile final
{
public:
    enum class Access { Read, Write, ReadAndWrite };

    RegularFile(const QString &path, Access access);

    [[nodiscard]] bool isOpen() const { return _file != nullptr; }
    /// True when nothing lies at the path, not even at the end of a link.
    [[nodiscard]] bool isMissing() const { return _isMissing; }

    /// Whether the open file is empty and no process holds a lock on it. Says no on systems where
    /// that cannot be found out.
    [[nodiscard]] bool isEmptyAndUnlocked() const;

    /// Gives the file away for reading from its beginning, once; null when it is not open.
    [[nodiscard]] std::unique_ptr<QIODevice> takeDevice() { return std::move(_file); }

private:
    std::unique_ptr<QFile> _file;
    bool _isMissing = false;
};
