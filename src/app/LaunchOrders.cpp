#include "app/LaunchOrders.h"

#include "app/WufferController.h"
#include "platform/SingleInstance.h"

#include <utility>

/// Seconds that a program started by the bus waits for its first order.
constexpr double kPatience = 10;
/// Seconds for which orders are gathered; nobody notices it.
constexpr double kSoon = 0.02;

LaunchOrders::LaunchOrders(WufferController &controller, SingleInstance &instance) :
    _controller(controller)
{
    connect(&instance, &SingleInstance::asked, this, &LaunchOrders::asked);
}

void LaunchOrders::begin(const CommandLine &commandLine)
{
    if (commandLine.service)
        _patience.startOnce(kPatience);
    else
        carryOut(commandLine.order);
}

void LaunchOrders::asked(const QString &action)
{
    // Whoever asks for what we do not know means the program all the same.
    const LaunchOrder order = launchOrderNamed(action).value_or(LaunchOrder::Activate);
    if (!_hasBegun)
        return carryOut(order);
    // Asked ten thousand times, windows that come to the front each time would leave nobody,
    // neither us nor the window manager, the time for anything else.
    if (_pending.isEmpty())
        _soon.startOnce(kSoon);
    if (order == LaunchOrder::NewTimer || !_pending.contains(order))
        _pending.append(order);
}

void LaunchOrders::carryOutPending()
{
    for (const LaunchOrder order : std::exchange(_pending, {}))
        carryOut(order);
}

void LaunchOrders::carryOut(LaunchOrder order)
{
    _patience.invalidate();
    if (std::exchange(_hasBegun, true))
        _controller.carryOut(order);
    else
        _controller.awakeFromNib(order);
}
