#include "platform/NotificationCenter.h"

#include <algorithm>

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(QObject &observer, const QString &name, Handler handler)
{
    std::erase_if(_registrations, [](const Registration &each) { return !each.observer; });
    _registrations.push_back({&observer, name, std::move(handler)});
}

void NotificationCenter::removeObserver(const QObject &observer, const QString &name)
{
    std::erase_if(_registrations, [&](const Registration &each) {
        return each.observer == &observer && each.name == name;
    });
}

void NotificationCenter::postNotificationName(const QString &name, QObject *object)
{
    // Copied, because a handler may register or drop observers, and even the one it stands in.
    std::vector<Registration> registered;
    std::ranges::copy_if(_registrations, std::back_inserter(registered),
                         [&](const Registration &each) { return each.name == name; });
    for (const Registration &each : registered) {
        if (each.observer)
            each.handler(object);
    }
}
