#include "platform/SessionBus.h"

#include <QFile>

namespace
{
constexpr auto kAddress = "DBUS_SESSION_BUS_ADDRESS";
/// An address of a kind that nobody knows, and so one that leads nowhere.
constexpr auto kNowhere = "disabled:";
} // namespace

bool SessionBus::isPresent()
{
    if (qEnvironmentVariableIsSet(kAddress))
        return qgetenv(kAddress) != kNowhere;
    const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeDir.isEmpty() && QFile::exists(runtimeDir + QStringLiteral("/bus"));
}

void SessionBus::startNone()
{
    if (!isPresent())
        qputenv(kAddress, kNowhere);
}
