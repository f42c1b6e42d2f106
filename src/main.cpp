#include "app/CommandLine.h"
#include "app/LaunchOrders.h"
#include "app/ProcessTuning.h"
#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SessionBus.h"
#include "platform/SingleInstance.h"

int main(int argc, char *argv[])
{
    if (answeredWithoutDisplay(argc, argv))
        return 0;
    tuneProcess();
    SessionBus::doWithoutUnlessItAnswers();
    // Timers place their windows, which Wayland leaves to nobody.
    const bool hasX11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (hasX11 && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");

    const QVariantMap launch = SingleInstance::thisLaunch();
    const WufferApplication application(argc, argv);
    const CommandLine commandLine = readCommandLine(WufferApplication::arguments());
    if (writeAnswer(commandLine))
        return commandLine.exitStatus;
    SingleInstance instance;
    if (!instance.claim()) {
        if (instance.forward(nameOf(commandLine.order), launch))
            return 0;
        // It hangs, or is just about to end.
        instance.inherit();
    }

    const SystemServices services;
    WufferController controller;
    LaunchOrders orders(controller, instance);
    orders.begin(commandLine);
    return WufferApplication::exec();
}
