#include "platform/SystemLibraries.h"

#include <QtGlobal>

const char *SystemLibraries::useOfQt()
{
    //: What a library is used for.
    return QT_TRANSLATE_NOOP("AboutDialog", "windows");
}

std::span<const Library> SystemLibraries::besideQt()
{
    return {};
}
