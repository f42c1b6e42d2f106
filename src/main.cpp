#include "app/ProcessTuning.h"
#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"

int main(int argc, char *argv[])
{
    tuneProcess();
    const WufferApplication application(argc, argv);
    const SystemServices services;
    WufferController controller;
    controller.awakeFromNib();
    return WufferApplication::exec();
}
