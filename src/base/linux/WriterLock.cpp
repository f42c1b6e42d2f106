#include "base/WriterLock.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

/// The open folder of the file. The folder is locked, because the file itself is replaced when it
/// is written, and a file of locks would have to be removed.
class WriterLock::Handle final
{
public:
    explicit Handle(const QString &folder) :
        _descriptor(
            ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {}
    ~Handle()
    {
        if (_descriptor >= 0)
            ::close(_descriptor);
    }
    Q_DISABLE_COPY_MOVE(Handle)

    [[nodiscard]] bool tryLock() const
    {
        return ::flock(_descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    }

private:
    const int _descriptor;
};

WriterLock::WriterLock(const QString &path) :
    _handle(std::make_unique<Handle>(QFileInfo(path).path()))
{}

WriterLock::~WriterLock() = default;

bool WriterLock::tryLock()
{
    return _handle->tryLock();
}
