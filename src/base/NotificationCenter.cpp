#include "base/NotificationCenter.h"

#include <algorithm>

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(QObject &observer, const QString &name, Handler handler)
{
    std::erase_if(_registrations, [](const auto &each) { return !each->observer; });
    _registrations.push_back(
        std::make_shared<Registration>(Registration{&observer, name, std::move(handler)}));
}

void NotificationCenter::removeObserver(const QObject &observer, const QString &name)
{
    std::erase_if(_registrations, [&](const std::shared_ptr<Registration> &each) {
        if (each->observer != &observer || each->name != name)
            return false;
        // A delivery in progress may still reach it.
        each->observer.clear();
        return true;
    });
}

void NotificationCenter::postNotificationName(const QString &name, QObject *object)
{
    // A copy, because a handler may register or remove observers.
    std::vector<std::shared_ptr<Registration>> registered;
    std::ranges::copy_if(_registrations, std::back_inserter(registered),
                         [&](const auto &each) { return each->name == name; });
    const QPointer<QObject> poster(object);
    for (const std::shared_ptr<Registration> &each : registered) {
        if (each->observer)
            each->handler(poster);
    }
}
