#include "app/LaunchOrders.h"

#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SingleInstance.h"

#include <utility>

/// How many seconds a program that the bus started waits for its first order.
constexpr double kFirstOrderTimeout = 10;
/// How many seconds orders are gathered for; too few for a user to notice.
constexpr double kGatherTime = 0.02;
/// With this many timers open, further orders to open one are a mistake or an attack.
constexpr std::size_t kMostTimers = 1000;

LaunchOrders::LaunchOrders(WufferController &controller, SingleInstance &instance) :
    _controller(controller), _instance(instance)
{
    connect(&instance, &SingleInstance::asked, this, &LaunchOrders::asked);
}

void LaunchOrders::begin(const CommandLine &commandLine)
{
    if (commandLine.service)
        _firstOrderTimer.startOnce(kFirstOrderTimeout);
    else
        carryOut(commandLine.order);
}

void LaunchOrders::asked(const QString &action)
{
    // An unknown action is still a launch of the program.
    const LaunchOrder order = launchOrderNamed(action).value_or(LaunchOrder::Activate);
    if (!_hasBegun)
        return carryOut(order);
    if (isTooMany(order))
        return _instance.refuse();
    // Orders may arrive by the thousand. Bringing windows to the front for each of them would leave
    // the program and the window manager no time for anything else.
    if (_pending.isEmpty())
        _gatherTimer.startOnce(kGatherTime);
    if (order == LaunchOrder::NewTimer || !_pending.contains(order))
        _pending.append(order);
}

bool LaunchOrders::isTooMany(LaunchOrder order) const
{
    const auto pending = static_cast<std::size_t>(_pending.count(LaunchOrder::NewTimer));
    return order == LaunchOrder::NewTimer &&
           WufferApplication::getWuffers().size() + pending >= kMostTimers;
}

void LaunchOrders::carryOutPending()
{
    for (const LaunchOrder order : std::exchange(_pending, {}))
        carryOut(order);
}

void LaunchOrders::carryOut(LaunchOrder order)
{
    _firstOrderTimer.invalidate();
    if (std::exchange(_hasBegun, true))
        _controller.carryOut(order);
    else
        _controller.awakeFromNib(order);
}
