#include "app/LaunchOrder.h"

#include <algorithm>

QString nameOf(LaunchOrder order)
{
    const auto *named = std::ranges::find(kNamedLaunchOrders, order, &NamedLaunchOrder::order);
    return named == kNamedLaunchOrders.end() ? QString() : QString::fromLatin1(named->name);
}

std::optional<LaunchOrder> launchOrderNamed(const QString &name)
{
    if (name.isEmpty())
        return LaunchOrder::Activate;
    const auto *named = std::ranges::find(
        kNamedLaunchOrders, name, [](const auto &each) { return QString::fromLatin1(each.name); });
    if (named == kNamedLaunchOrders.end())
        return {};
    return named->order;
}
