#include "platform/linux/SessionBus.h"

#include "platform/linux/BusProbe.h"

#include <QFile>

namespace
{
constexpr auto kAddress = "DBUS_SESSION_BUS_ADDRESS";
/// An address with an unknown transport, to which no library can connect.
constexpr auto kUnusableAddress = "disabled:";

/// Where libraries look for the bus when the environment has no address.
QString defaultSocket()
{
    const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtimeDir.isEmpty() ? QString() : runtimeDir + QStringLiteral("/bus");
}
} // namespace

bool SessionBus::isPresent()
{
    if (qEnvironmentVariableIsSet(kAddress))
        return qgetenv(kAddress) != kUnusableAddress;
    return QFile::exists(defaultSocket());
}

QByteArray SessionBus::address()
{
    return qEnvironmentVariableIsSet(kAddress) ? qgetenv(kAddress)
                                               : "unix:path=" + QFile::encodeName(defaultSocket());
}

void SessionBus::disableUnlessItAnswers()
{
    if (!isPresent() || BusProbe::hangs(address()))
        qputenv(kAddress, kUnusableAddress);
}
