#include "base/RegularFile.h"

#include <filesystem>

namespace
{
namespace fs = std::filesystem;

fs::file_type typeAt(const QString &path)
{
    const QByteArray text = path.toUtf8();
    std::error_code error;
    return fs::status(std::u8string(text.cbegin(), text.cend()), error).type();
}

QIODevice::OpenMode modeFor(RegularFile::Access access)
{
    switch (access) {
    case RegularFile::Access::Read:
        return QIODevice::ReadOnly;
    case RegularFile::Access::ReadAndWrite:
        return QIODevice::ReadWrite;
    }
    Q_UNREACHABLE();
}
} // namespace

RegularFile::RegularFile(const QString &path, Access access)
{
    // Looked at first and opened afterwards: nothing in Qt or standard C++ keeps another program
    // from exchanging the file in between.
    const fs::file_type type = typeAt(path);
    _isMissing = type == fs::file_type::not_found;
    if (type != fs::file_type::regular)
        return;
    auto file = std::make_unique<QFile>(path);
    if (file->open(modeFor(access) | QIODevice::ExistingOnly))
        _file = std::move(file);
}
