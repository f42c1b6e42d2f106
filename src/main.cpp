#include "app/CommandLine.h"
#include "app/DarkTheme.h"
#include "app/LaunchOrders.h"
#include "app/MissingDisplay.h"
#include "app/SystemServices.h"
#include "app/Translation.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/PlatformServices.h"
#include "platform/SingleInstance.h"

#include <optional>

int main(int argc, char *argv[])
{
    if (answeredWithoutDisplay(argc, argv))
        return 0;
    PlatformServices::prepareProcess();
    const QVariantMap launch = SingleInstance::thisLaunch();
    std::optional<MissingDisplay> missingDisplay(std::in_place);
    const WufferApplication application(argc, argv);
    missingDisplay.reset();
    const Translation translation;
    const CommandLine commandLine = readCommandLine(WufferApplication::arguments());
    if (writeAnswer(commandLine))
        return commandLine.exitStatus;
    SingleInstance instance;
    if (!instance.claim()) {
        if (instance.forward(nameOf(commandLine.order), launch))
            return 0;
        // The owner of the name hangs or is about to end, so this instance runs, too.
        instance.inherit();
    }

    const SystemServices services;
    const DarkTheme darkTheme;
    WufferController controller;
    LaunchOrders orders(controller, instance);
    orders.begin(commandLine);
    return WufferApplication::exec();
}
