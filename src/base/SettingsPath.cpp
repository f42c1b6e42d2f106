#include "base/SettingsPath.h"

#include "base/RegularFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <filesystem>

namespace
{
namespace fs = std::filesystem;

/// In bytes; a thousand times the size of any usual settings file.
constexpr qint64 kLargestSize = 16LL * 1024 * 1024;

fs::path native(const QString &path)
{
    const QByteArray text = path.toUtf8();
    return {std::u8string(text.cbegin(), text.cend())};
}

/// Whether the path holds nothing, or a regular file that can be opened with this access.
bool isUsable(const QString &path, RegularFile::Access access)
{
    const RegularFile file(path, access);
    return file.isOpen() || file.isMissing();
}

QString freeNameBeside(const QString &path)
{
    const auto exists = [](const QString &name) {
        std::error_code error;
        return fs::exists(fs::symlink_status(native(name), error));
    };
    const QString name = path + QStringLiteral(".unreadable");
    QString candidate = name;
    for (int number = 2; exists(candidate); ++number)
        candidate = name + QStringLiteral(".%1").arg(number);
    return candidate;
}

/// Without QFile, which copies when it cannot rename; reading a pipe or device could then block.
bool moveAway(const QString &path)
{
    std::error_code error;
    fs::rename(native(path), native(freeNameBeside(path)), error);
    return !error;
}
} // namespace

QString SettingsPath::unusable()
{
    return QProcess::nullDevice() + QStringLiteral("/settings");
}

QString SettingsPath::cleared(const QString &path)
{
    return isUsable(path, RegularFile::Access::Read) || setAside(path) ? path : unusable();
}

bool SettingsPath::setAside(const QString &path)
{
    const QFileInfo file(path);
    const bool leadsToFile = file.isSymLink() && file.isFile();
    return (leadsToFile && moveAway(file.canonicalFilePath())) || moveAway(path);
}

QString SettingsPath::fileAt(const QString &path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return file.isEmpty() ? path : file;
}

bool SettingsPath::isWritable(const QString &path)
{
    return isUsable(path, RegularFile::Access::ReadAndWrite);
}

std::optional<QByteArray> SettingsPath::textOf(QIODevice &file)
{
    if (file.size() > kLargestSize)
        return {};
    const QByteArray text = file.readAll();
    // A failed read looks like the end of the file.
    if (text.size() < file.size())
        return {};
    return text;
}

void SettingsPath::makePrivateFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.exists() || folder.isSymLink() || folder.dir().isRoot())
        return;
    makePrivateFolder(folder.path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
