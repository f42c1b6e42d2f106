#include "base/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
struct Mode
{
    int system;
    QIODevice::OpenMode qt;
};

Mode modeFor(RegularFile::Access access)
{
    switch (access) {
    case RegularFile::Access::Read:
        return {O_RDONLY, QIODevice::ReadOnly};
    case RegularFile::Access::ReadAndWrite:
        return {O_RDWR, QIODevice::ReadWrite};
    }
    Q_UNREACHABLE();
}

bool isRegular(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}
} // namespace

RegularFile::RegularFile(const QString &path, Access access)
{
    // Opened first and looked at afterwards, so that nothing can be exchanged in between.
    const Mode mode = modeFor(access);
    const int flags = mode.system | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags);
    if (descriptor < 0) {
        _isMissing = errno == ENOENT;
        return;
    }
    auto file = std::make_unique<QFile>();
    if (isRegular(descriptor) && file->open(descriptor, mode.qt, QFileDevice::AutoCloseHandle))
        _file = std::move(file);
    else
        ::close(descriptor);
}
