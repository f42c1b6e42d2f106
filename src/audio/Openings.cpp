#include "audio/Openings.h"

#include "audio/SoundSource.h"

#include <algorithm>

namespace
{
/// How many threads may hang in one file.
constexpr std::ptrdiff_t kMostStuck = 4;
} // namespace

Openings::Ticket Openings::begin(const QString &file)
{
    const std::lock_guard lock(_mutex);
    if (isStuck(file))
        return nullptr;
    std::list<Moment> &moments = _beginnings[file];
    const auto beginning = moments.insert(moments.end(), std::chrono::steady_clock::now());
    const auto finish = [self = shared_from_this(), file, beginning](const void *) {
        self->end(file, beginning);
    };
    return {this, finish};
}

bool Openings::isStuck(const QString &file) const
{
    const auto found = _beginnings.find(file);
    if (found == _beginnings.end())
        return false;
    const Moment limit = std::chrono::steady_clock::now() - kPatienceForFiles;
    return std::ranges::count_if(found->second, [=](Moment each) { return each < limit; }) >=
           kMostStuck;
}

void Openings::end(const QString &file, std::list<Moment>::const_iterator beginning)
{
    const std::lock_guard lock(_mutex);
    const auto found = _beginnings.find(file);
    found->second.erase(beginning);
    if (found->second.empty())
        _beginnings.erase(found);
}
