#include "platform/SystemLibraries.h"

#include <QtGlobal>

#include <array>

namespace
{
constexpr std::array kBesideQt{
    Library{"libxcb", QT_TRANSLATE_NOOP("AboutDialog", "X Window System"), "MIT"},
};
} // namespace

const char *SystemLibraries::useOfQt()
{
    //: What a library is used for.
    return QT_TRANSLATE_NOOP("AboutDialog", "windows, session bus");
}

std::span<const Library> SystemLibraries::besideQt()
{
    return kBesideQt;
}
