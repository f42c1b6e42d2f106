#include "platform/linux/ActivationToken.h"

#include <QGuiApplication>

void useActivationToken(const QString &token)
{
    // Qt uses this variable for the next window that it activates, but on Wayland only; elsewhere
    // the programs that we start would inherit it.
    if (!token.isEmpty() && QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}
