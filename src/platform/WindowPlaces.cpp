#include "platform/WindowPlaces.h"

#include <QGuiApplication>

bool knowsWindowPlaces()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
