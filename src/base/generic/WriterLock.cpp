#include "base/WriterLock.h"

#include <QLockFile>

/// A file beside the locked one.
class WriterLock::Handle final : public QLockFile
{
public:
    using QLockFile::QLockFile;
};

WriterLock::WriterLock(const QString &path) :
    _handle(std::make_unique<Handle>(path + QStringLiteral(".lock")))
{}

WriterLock::~WriterLock() = default;

bool WriterLock::tryLock()
{
    return _handle->isLocked() || _handle->tryLock(0) ||
           _handle->error() != QLockFile::LockFailedError;
}
