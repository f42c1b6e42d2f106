#include "platform/linux/SessionBus.h"

#include "platform/linux/BusProbe.h"

#include <QFile>

namespace
{
constexpr auto kAddress = "DBUS_SESSION_BUS_ADDRESS";
/// An address of a kind that nobody knows, and so one that leads nowhere.
constexpr auto kNowhere = "disabled:";

/// Where libraries look for a bus that nobody has named.
QString usualSocket()
{
    const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtimeDir.isEmpty() ? QString() : runtimeDir + QStringLiteral("/bus");
}
} // namespace

bool SessionBus::isPresent()
{
    if (qEnvironmentVariableIsSet(kAddress))
        return qgetenv(kAddress) != kNowhere;
    return QFile::exists(usualSocket());
}

void SessionBus::doWithoutUnlessItAnswers()
{
    if (!isPresent()) {
        qputenv(kAddress, kNowhere);
        return;
    }
    const QByteArray address = qEnvironmentVariableIsSet(kAddress)
                                   ? qgetenv(kAddress)
                                   : "unix:path=" + QFile::encodeName(usualSocket());
    if (BusProbe::hangs(address))
        qputenv(kAddress, kNowhere);
}
