#include "platform/linux/ActivationToken.h"

#include <QGuiApplication>

void useActivationToken(const QString &token)
{
    // Qt takes it from there for the next window that it activates, but on Wayland only; elsewhere
    // it would go on to the programs that we start.
    if (!token.isEmpty() && QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}
