#include "app/LaunchOrders.h"

#include "app/WufferController.h"
#include "platform/SingleInstance.h"

#include <utility>

/// Seconds that a program started by the bus waits for its first order.
constexpr double kPatience = 10;

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
    carryOut(launchOrderNamed(action).value_or(LaunchOrder::Activate));
}

void LaunchOrders::carryOut(LaunchOrder order)
{
    _patience.invalidate();
    if (std::exchange(_hasBegun, true))
        _controller.carryOut(order);
    else
        _controller.awakeFromNib(order);
}
