#include "platform/WindowLevel.h"

bool WindowLevel::canKeepOnTop()
{
    return false;
}

bool WindowLevel::isKeptOnTop(const QWidget & /*window*/)
{
    return false;
}

void WindowLevel::keepOnTop(QWidget & /*window*/, bool /*onTop*/) {}
