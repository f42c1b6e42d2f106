#include "platform/KeyboardLayout.h"

quint32 KeyboardLayout::numberOf(const QKeyEvent & /*press*/)
{
    return 0;
}

std::vector<quint32> KeyboardLayout::symbolsOf(quint32 /*keyNumber*/, quint32 /*state*/)
{
    return {};
}
