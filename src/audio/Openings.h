#pragma once

#include <QString>

#include <chrono>
#include <list>
#include <map>
#include <memory>
#include <mutex>

/// Limits how many threads hang in the same file, so that a disk that never answers does not use
/// up the threads of the process. Any thread.
class Openings final : public std::enable_shared_from_this<Openings>
{
public:
    /// Stands for a thread that opens a file; to be destroyed when the file has answered.
    using Ticket = std::shared_ptr<const void>;

    /// A ticket for one more thread that opens this file; null if several hang in it already.
    [[nodiscard]] Ticket begin(const QString &file);

private:
    using Moment = std::chrono::steady_clock::time_point;

    [[nodiscard]] bool isStuck(const QString &file) const;
    void end(const QString &file, std::list<Moment>::const_iterator beginning);

    mutable std::mutex _mutex;
    /// When each thread began that has not ended.
    std::map<QString, std::list<Moment>> _beginnings;
};
