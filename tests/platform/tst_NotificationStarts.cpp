#include "platform/linux/FreedesktopNotifications.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/TestMain.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <unistd.h>

namespace
{
const QString kServer = QStringLiteral("org.freedesktop.Notifications");
/// Another service, which needs as long to start, and ends at once.
const QString kOther = QStringLiteral("org.wuffer.Other");

/// Adds one byte to the file of this name.
void countStart(const QString &path)
{
    QFile starts(path);
    if (!starts.open(QIODevice::WriteOnly | QIODevice::Append) || starts.write("1") != 1)
        qFatal("the start could not be counted");
}

/// A folder of services that the bus starts. Create it before the bus.
class StartedServices final
{
public:
    StartedServices()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(_folder.path()));
        if (!QDir().mkpath(_folder.filePath(QStringLiteral("dbus-1/services"))))
            qFatal("the folder of services could not be made");
    }
    ~StartedServices() { qunsetenv("XDG_DATA_HOME"); }
    Q_DISABLE_COPY_MOVE(StartedServices)

    /// Has the bus start this test program for the name.
    void add(const QString &name, const QString &program) const
    {
        QFile file(_folder.filePath(QStringLiteral("dbus-1/services/%1.service").arg(name)));
        const QStringList command{program, QStringLiteral("NotificationStarts"),
                                  QStringLiteral("--serve"), name, startsOf(name)};
        const QString text = QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n")
                                 .arg(name, command.join(QLatin1Char(' ')));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("the service could not be written");
    }

    /// How many times the bus has started the program for the name.
    [[nodiscard]] qint64 starts(const QString &name) const { return QFile(startsOf(name)).size(); }

private:
    [[nodiscard]] QString startsOf(const QString &name) const { return _folder.filePath(name); }

    QTemporaryDir _folder;
};

/// A bus that can start the services, and the application object.
class OnBusWithServices final
{
public:
    OnBusWithServices(int &argc, char **argv) : _bus(argc, argv)
    {
        _services.add(kServer, QCoreApplication::applicationFilePath());
        _services.add(kOther, QCoreApplication::applicationFilePath());
    }

    [[nodiscard]] const StartedServices &services() const { return _services; }

private:
    const StartedServices _services;
    const OnPrivateBus _bus;
};

/// A server that crashes when it is to show a notification.
class CrashingServer final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public Q_SLOTS:
    static QStringList GetCapabilities() { return {}; }
    static uint Notify(const QString &, uint, const QString &, const QString &, const QString &,
                       const QStringList &, const QVariantMap &, int)
    {
        ::_exit(EXIT_FAILURE);
    }
};

/// The main function of a started service.
int serve(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    countStart(QCoreApplication::arguments().at(3));
    CrashingServer server;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                QCoreApplication::instance(), SLOT(quit()));
    const QString name = QCoreApplication::arguments().at(2);
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &server,
                            QDBusConnection::ExportAllSlots) ||
        !bus.registerService(name))
        return EXIT_FAILURE;
    return name == kServer ? QCoreApplication::exec() : EXIT_SUCCESS;
}
} // namespace

/// How often the program has the bus start a notification server.
class tst_NotificationStarts final : public Test
{
    Q_OBJECT

public:
    explicit tst_NotificationStarts(const OnBusWithServices &surroundings) :
        _services(surroundings.services())
    {}

private Q_SLOTS:
    void aServerThatCrashesIsStartedOnceForEachNotification();

private:
    /// Waits until what has been started has crashed, and what is about to be started would have
    /// counted it: a service that is started now comes later.
    static void settle()
    {
        QDBusConnectionInterface &bus = *QDBusConnection::sessionBus().interface();
        QTRY_VERIFY_WITH_TIMEOUT(!bus.isServiceRegistered(kServer), 20'000);
        settleWithBus();
        QVERIFY(bus.startService(kOther).isValid());
        QTRY_VERIFY_WITH_TIMEOUT(!bus.isServiceRegistered(kOther), 20'000);
    }

    const StartedServices &_services;
};

void tst_NotificationStarts::aServerThatCrashesIsStartedOnceForEachNotification()
{
    FreedesktopNotifications notifications;
    const QObject sender;
    for (int times = 1; times <= 3; ++times) {
        notifications.notify(sender, {.title = QStringLiteral("Tea"), .text = {}, .name = {}});
        QTRY_VERIFY_WITH_TIMEOUT(_services.starts(kServer) >= times, 20'000);
        settle();
        QCOMPARE(_services.starts(kServer), times);
    }
}

static int serveOrTest(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], "--serve") == 0)
        return serve(argc, argv);
    return runTest<tst_NotificationStarts, OnBusWithServices>(argc, argv);
}

namespace
{
const KnownTest known("tst_NotificationStarts", &serveOrTest);
}
#include "tst_NotificationStarts.moc"
