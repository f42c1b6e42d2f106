#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SessionBus.h"

/// Gives the environment a value that Qt reads, unless the user has given it one.
static void setDefault(const char *variable, const char *value)
{
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, value);
}

int main(int argc, char *argv[])
{
    // Timers place their windows, which Wayland leaves to nobody.
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        setDefault("QT_QPA_PLATFORM", "xcb;wayland");
    // With pixels in shared memory every repaint waits for the X server's word that it has read
    // the one before: three times the wake-ups for a few thousand bytes.
    setDefault("QT_XCB_NO_MITSHM", "1");
    SessionBus::startNone();

    const WufferApplication application(argc, argv);
    const SystemServices services;
    WufferController controller;
    controller.awakeFromNib();
    return WufferApplication::exec();
}
