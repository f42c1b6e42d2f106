#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SessionBus.h"

int main(int argc, char *argv[])
{
    // With pixels in shared memory every repaint waits for the X server's word that it has read
    // the one before: three times the wake-ups for a few thousand bytes.
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");
    SessionBus::startNone();

    const WufferApplication application(argc, argv);
    const SystemServices services;
    WufferController controller;
    controller.awakeFromNib();
    return WufferApplication::exec();
}
