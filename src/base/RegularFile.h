#pragma once

#include <QFile>

#include <memory>

/// The regular file at a path, opened without blocking: a pipe or a device there is not opened.
/// Never creates or truncates a file. The file is closed at the end of the scope. Any thread.
class RegularFile final
{
public:
    enum class Access { Read, ReadAndWrite };

    RegularFile(const QString &path, Access access);

    [[nodiscard]] bool isOpen() const { return _file != nullptr; }
    /// True when there is no file at the path, or the path is a link to a missing file.
    [[nodiscard]] bool isMissing() const { return _isMissing; }

    /// Hands the file over for reading from its beginning; null when it is not open or was handed
    /// over before.
    [[nodiscard]] std::unique_ptr<QIODevice> takeDevice() { return std::move(_file); }

private:
    std::unique_ptr<QFile> _file;
    bool _isMissing = false;
};
