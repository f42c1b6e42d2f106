#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QString>

#include <algorithm>
#include <vector>

/// Chains of timers that start one another. Works on any type that is linked in both directions.
namespace Chain
{
/// All members of this member's chain, from the first to the last. The functions return the member
/// before and the member after, or null. Each member is visited once, so the function returns even
/// if the links form a circle.
template<class Link, class Before, class After>
[[nodiscard]] std::vector<Link *> membersThrough(Link &member, Before before, After after)
{
    QSet<Link *> visited;
    const auto isNew = [&visited](Link *link) {
        if (!link || visited.contains(link))
            return false;
        visited.insert(link);
        return true;
    };
    std::vector<Link *> forward;
    for (Link *link = &member; isNew(link); link = after(*link))
        forward.push_back(link);
    std::vector<Link *> chain;
    for (Link *link = before(member); isNew(link); link = before(*link))
        chain.push_back(link);
    std::ranges::reverse(chain);
    chain.insert(chain.end(), forward.begin(), forward.end());
    return chain;
}

class Texts final
{
    Q_DECLARE_TR_FUNCTIONS(Chain)
};

/// "Wuffer Chain - 2 of 3"; the position counts from 1.
[[nodiscard]] inline QString text(quint32 position, quint32 length)
{
    //: The place of a timer in a chain: position and number of timers.
    return Texts::tr("Wuffer Chain - %1 of %2").arg(position).arg(length);
}

/// “Started by “Eggs”; starts “Tea””, from the names of the timers before and after. An empty name
/// is left out; two empty names give an empty text.
[[nodiscard]] inline QString links(const QString &startedBy, const QString &starts)
{
    if (startedBy.isEmpty() && starts.isEmpty())
        return {};
    if (starts.isEmpty())
        //: Names of timers.
        return Texts::tr("Started by “%1”").arg(startedBy);
    if (startedBy.isEmpty())
        return Texts::tr("Starts “%1”").arg(starts);
    return Texts::tr("Started by “%1”; starts “%2”").arg(startedBy, starts);
}
} // namespace Chain
