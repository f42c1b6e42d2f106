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
/// A path at which no file can exist.
const QString kUnusablePath = QProcess::nullDevice() + QStringLiteral("/settings");

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

/// Removes a lock without its owner's number: the process that made it was killed before it could
/// write that, and QSettings would wait half a minute for it. A living owner holds the lock from
/// before it writes.
void removeUnsignedLock(const QString &lock)
{
    const RegularFile file(lock, RegularFile::Access::Write);
    if (file.isOpen() && file.isEmptyAndUnlocked())
        QFile::remove(lock);
}
} // namespace

QString SettingsPath::cleared(const QString &path)
{
    using Access = RegularFile::Access;
    const QString lock = path + QStringLiteral(".lock");
    if (!isUsable(path, Access::Read) && !setAside(path))
        return kUnusablePath;
    // If the settings can be written but the lock cannot be opened, QSettings waits for it in vain.
    if (!isUsable(lock, Access::Write) && !moveAway(lock) && isUsable(path, Access::ReadAndWrite))
        return kUnusablePath;
    removeUnsignedLock(lock);
    return path;
}

bool SettingsPath::setAside(const QString &path)
{
    const QFileInfo file(path);
    const bool leadsToFile = file.isSymLink() && file.isFile();
    return (leadsToFile && moveAway(file.canonicalFilePath())) || moveAway(path);
}

bool SettingsPath::isFree(const QString &path)
{
    return RegularFile(path, RegularFile::Access::Read).isMissing();
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

std::optional<QByteArray> SettingsPath::textAt(const QString &path)
{
    const auto file = RegularFile(path, RegularFile::Access::Read).takeDevice();
    return file ? textOf(*file) : std::nullopt;
}

void SettingsPath::makePrivateFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.exists() || folder.isSymLink())
        return;
    makePrivateFolder(folder.path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
