#include "base/SettingsPath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

/// A thousand times as much as anybody has, in bytes.
constexpr qint64 kLargest = 16LL * 1024 * 1024;
/// A path at which nothing can be.
const QString kNowhere = QStringLiteral("/dev/null/settings");

fs::path native(const QString &path)
{
    return {QFile::encodeName(path).toStdString()};
}

/// A descriptor of a regular file, which is closed with its scope, or why there is none.
class Opened final
{
public:
    static Opened file(int descriptor) { return {descriptor, false}; }
    static Opened nothing(bool isMissing) { return {-1, isMissing}; }
    ~Opened()
    {
        if (_descriptor >= 0)
            ::close(_descriptor);
    }
    Q_DISABLE_COPY_MOVE(Opened)

    [[nodiscard]] bool isOpen() const { return _descriptor >= 0; }
    [[nodiscard]] bool isMissing() const { return _isMissing; }
    [[nodiscard]] int descriptor() const { return _descriptor; }

private:
    Opened(int descriptor, bool isMissing) : _descriptor(descriptor), _isMissing(isMissing) {}

    int _descriptor;
    bool _isMissing;
};

Opened openRegularFile(const QString &path, int access)
{
    // A pipe must not be waited for.
    const int flags = access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags);
    if (descriptor < 0)
        return Opened::nothing(errno == ENOENT);
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        return Opened::file(descriptor);
    ::close(descriptor);
    return Opened::nothing(false);
}

/// Whether a regular file lies there that may be opened so, or nothing.
bool isUsable(const QString &path, int access)
{
    const Opened opened = openRegularFile(path, access);
    return opened.isOpen() || opened.isMissing();
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

/// As QFile does it, a rename that fails becomes a copy, which may wait for ever.
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
    const Opened opened = openRegularFile(lock, O_WRONLY);
    struct stat status = {};
    const bool isUnsigned =
        opened.isOpen() && ::fstat(opened.descriptor(), &status) == 0 && status.st_size == 0;
    if (isUnsigned && ::flock(opened.descriptor(), LOCK_EX | LOCK_NB) == 0)
        QFile::remove(lock);
}
} // namespace

QString SettingsPath::cleared(const QString &path)
{
    const QString lock = path + QStringLiteral(".lock");
    if (!isUsable(path, O_RDONLY) && !setAside(path))
        return kNowhere;
    // Whoever may write the settings, but cannot open a lock, waits for it in vain.
    if (!isUsable(lock, O_WRONLY) && !moveAway(lock) && isUsable(path, O_RDWR))
        return kNowhere;
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
    return openRegularFile(path, O_RDONLY).isMissing();
}

std::optional<QByteArray> SettingsPath::textOf(QIODevice &file)
{
    if (file.size() > kLargest)
        return {};
    const QByteArray text = file.readAll();
    // A read that fails looks like an end.
    if (text.size() < file.size())
        return {};
    return text;
}

std::optional<QByteArray> SettingsPath::textAt(const QString &path)
{
    const Opened opened = openRegularFile(path, O_RDONLY);
    QFile file;
    if (!opened.isOpen() ||
        !file.open(opened.descriptor(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return {};
    return textOf(file);
}

void SettingsPath::makePrivateFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.exists() || folder.isSymLink())
        return;
    makePrivateFolder(folder.path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
