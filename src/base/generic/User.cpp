#include "base/User.h"

#include <QStandardPaths>

QString User::configFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

bool User::owns(const QFileInfo &)
{
    return false;
}
