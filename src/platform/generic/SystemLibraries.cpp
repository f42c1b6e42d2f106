#include "platform/SystemLibraries.h"

#include <QtGlobal>

const char *SystemLibraries::useOfQt()
{
    return QT_TRANSLATE_NOOP("AboutDialog", "windows");
}

std::span<const Library> SystemLibraries::besideQt()
{
    return {};
}
