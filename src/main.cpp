#include "app/ProcessTuning.h"
#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SessionBus.h"

int main(int argc, char *argv[])
{
    tuneProcess();
    SessionBus::startNone();
    // Timers place their windows, which Wayland leaves to nobody.
    const bool hasX11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (hasX11 && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");

    const WufferApplication application(argc, argv);
    const SystemServices services;
    WufferController controller;
    controller.awakeFromNib();
    return WufferApplication::exec();
}
