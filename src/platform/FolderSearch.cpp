#include "platform/FolderSearch.h"

#include "base/ClockTimer.h"

#include <QEventLoop>

#include <algorithm>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace
{
/// How many seconds the user waits for the folders.
constexpr double kPatience = 0.5;
} // namespace

/// What the main thread and the asking threads share; it outlives both.
struct FolderSearch::Answers
{
    std::mutex mutex;
    /// The folders that have been asked for; without a value while there is no answer.
    std::map<QString, std::optional<bool>> exists;
    /// Ended by each answer; null while nothing waits.
    QEventLoop *waiting = nullptr;

    void add(const QString &folder, bool answer)
    {
        const std::lock_guard lock(mutex);
        exists[folder] = answer;
        if (waiting)
            QMetaObject::invokeMethod(waiting, "quit", Qt::QueuedConnection);
    }

    void setWaiting(QEventLoop *loop)
    {
        const std::lock_guard lock(mutex);
        waiting = loop;
    }

    /// Forgets the answers of earlier searches. Returns the folders to ask for: those for which no
    /// earlier question is still open, because each question may cost a thread for good.
    [[nodiscard]] QStringList begin(const QStringList &folders)
    {
        const std::lock_guard lock(mutex);
        std::erase_if(exists, [](const auto &each) { return each.second.has_value(); });
        QStringList toAsk;
        for (const QString &folder : folders) {
            if (exists.try_emplace(folder).second)
                toAsk << folder;
        }
        return toAsk;
    }

    [[nodiscard]] QString firstExisting(const QStringList &folders)
    {
        const std::lock_guard lock(mutex);
        const auto found = std::ranges::find_if(
            folders, [this](const QString &folder) { return exists[folder].value_or(false); });
        return found == folders.end() ? QString() : *found;
    }

    /// True when no answer that is still missing can change which folder is the first.
    [[nodiscard]] bool areEnough(const QStringList &folders)
    {
        const std::lock_guard lock(mutex);
        const auto found = std::ranges::find_if(
            folders, [this](const QString &folder) { return exists[folder].value_or(true); });
        return found == folders.end() || exists[*found].has_value();
    }
};

FolderSearch::FolderSearch(Exists exists) :
    _exists(std::move(exists)), _answers(std::make_shared<Answers>())
{}

FolderSearch::~FolderSearch() = default;

QString FolderSearch::firstOf(const QStringList &folders)
{
    ask(folders);
    wait(folders);
    return _answers->firstExisting(folders);
}

void FolderSearch::ask(const QStringList &folders)
{
    for (const QString &folder : _answers->begin(folders)) {
        try {
            std::thread([answers = _answers, exists = _exists, folder] {
                answers->add(folder, exists(folder));
            }).detach();
        } catch (const std::system_error &) {
            _answers->add(folder, false);
        }
    }
}

void FolderSearch::wait(const QStringList &folders)
{
    QEventLoop loop;
    ClockTimer limit([&] { loop.quit(); });
    limit.startOnce(kPatience);
    _answers->setWaiting(&loop);
    // A result below 0 means that the program ends.
    while (limit.isValid() && !_answers->areEnough(folders) &&
           loop.exec(QEventLoop::ExcludeUserInputEvents) == 0) {
    }
    _answers->setWaiting(nullptr);
}
