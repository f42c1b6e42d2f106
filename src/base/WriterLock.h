#pragma once

#include <QString>

#include <memory>

/// A lock that processes hold while they write one file. It is never waited for, and it ends with
/// the process that holds it.
class WriterLock final
{
public:
    /// Does not lock the file at this path yet. The file need not exist, but its folder must.
    explicit WriterLock(const QString &path);
    ~WriterLock();
    Q_DISABLE_COPY_MOVE(WriterLock)

    /// Returns false only while another process, or another object, holds the lock: where files
    /// cannot be locked, the answer is true.
    [[nodiscard]] bool tryLock();

private:
    class Handle;
    std::unique_ptr<Handle> _handle;
};
