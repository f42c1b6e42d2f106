#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SessionBus.h"

int main(int argc, char *argv[])
{
    SessionBus::startNone();
    const WufferApplication application(argc, argv);
    const SystemServices services;
    WufferController controller;
    controller.awakeFromNib();
    return WufferApplication::exec();
}
