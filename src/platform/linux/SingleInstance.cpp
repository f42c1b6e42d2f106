#include "platform/SingleInstance.h"

#include "platform/linux/ActivationToken.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/BusQuestion.h"
#include "platform/linux/StartupNotification.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QGuiApplication>

namespace
{
constexpr int kTimeoutMs = 2000;
const QString kInterface = QStringLiteral("org.freedesktop.Application");
/// The keys under which a desktop identifies a launch: on X11 and on Wayland.
const QString kStartupId = QStringLiteral("desktop-startup-id");
const QString kActivationToken = QStringLiteral("activation-token");
constexpr auto kStartupIdVariable = "DESKTOP_STARTUP_ID";
constexpr auto kActivationTokenVariable = "XDG_ACTIVATION_TOKEN";

/// The text under this key, which is passed on to the environment or the X server. Empty if it is
/// longer than any desktop makes it.
QString shortText(const QVariantMap &platformData, const QString &name)
{
    constexpr qsizetype longest = 1024;
    const QString text = platformData.value(name).toString();
    return text.length() <= longest ? text : QString();
}

QString busName()
{
    return QGuiApplication::desktopFileName();
}

QString objectPath()
{
    return QLatin1Char('/') + busName().replace(QLatin1Char('.'), QLatin1Char('/'));
}
} // namespace

/// The program's interface on the bus.
class BusInterface final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit BusInterface(SingleInstance &instance) :
        QDBusAbstractAdaptor(&instance), _instance(instance)
    {}

public Q_SLOTS:
    void Activate(const QVariantMap &platform_data, const QDBusMessage &call)
    {
        handle({}, platform_data, call);
    }

    /// Timers have no files, so this only activates the program.
    void Open(const QStringList & /*uris*/, const QVariantMap &platform_data,
              const QDBusMessage &call)
    {
        handle({}, platform_data, call);
    }

    void ActivateAction(const QString &action_name, const QVariantList & /*parameter*/,
                        const QVariantMap &platform_data, const QDBusMessage &call)
    {
        handle(action_name, platform_data, call);
    }

private:
    void handle(const QString &action, const QVariantMap &platformData, const QDBusMessage &call)
    {
        useActivationToken(shortText(platformData, kActivationToken));
        if (!_instance.ask(action)) {
            call.setDelayedReply(true);
            BusConnection::instance().current().send(
                call.createErrorReply(QDBusError::LimitsExceeded, QStringLiteral("Refused.")));
        }
        endStartupNotification(shortText(platformData, kStartupId));
    }

    SingleInstance &_instance;
};

QVariantMap SingleInstance::thisLaunch()
{
    QVariantMap data;
    if (qEnvironmentVariableIsSet(kStartupIdVariable))
        data.insert(kStartupId, qEnvironmentVariable(kStartupIdVariable));
    if (qEnvironmentVariableIsSet(kActivationTokenVariable))
        data.insert(kActivationToken, qEnvironmentVariable(kActivationTokenVariable));
    return data;
}

SingleInstance::SingleInstance()
{
    new BusInterface(*this);
    connect(&BusConnection::instance(), &BusConnection::found, this, [this] {
        BusConnection::instance().current().registerObject(objectPath(), this);
        inherit();
    });
}

bool SingleInstance::claim()
{
    if (!BusQuestion::isPossible())
        return true;
    QDBusConnection bus = BusConnection::instance().current();
    // Before the name, because a process that waits for the name sends its call at once.
    bus.registerObject(objectPath(), this);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> owner =
        bus.interface()->registerService(busName());
    // If the bus refuses the name, no other instance can have it.
    return !owner.isValid() || owner.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool SingleInstance::forward(const QString &action, const QVariantMap &launch) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        busName(), objectPath(), kInterface,
        action.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    if (action.isEmpty())
        call.setArguments({launch});
    else
        call.setArguments({action, QVariantList(), launch});
    call.setAutoStartService(false);
    const QDBusMessage answer =
        BusConnection::instance().current().call(call, QDBus::Block, kTimeoutMs);
    return answer.type() == QDBusMessage::ReplyMessage ||
           QDBusError(answer).type() == QDBusError::LimitsExceeded;
}

void SingleInstance::inherit()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    constexpr uint queue = 0;
    call.setArguments({busName(), queue});
    BusConnection::instance().current().asyncCall(call);
}

#include "SingleInstance.moc"
