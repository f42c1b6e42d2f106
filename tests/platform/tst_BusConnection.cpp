#include "platform/SingleInstance.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/BusNameWatch.h"
#include "platform/linux/BusQuestion.h"
#include "platform/linux/FreedesktopNotifications.h"
#include "platform/linux/FreedesktopScreenBlanking.h"
#include "platform/linux/FreedesktopStatusItem.h"
#include "support/NotificationServer.h"
#include "support/PrivateBus.h"
#include "support/ScreenSaverService.h"
#include "support/StatusWatcher.h"
#include "support/TestMain.h"

#include <QDBusConnectionInterface>
#include <QProcess>
#include <QSignalSpy>

#include <csignal>
#include <optional>

namespace
{
const QString kName = QStringLiteral("org.wuffer.Wuffer");

/// A bus that starts at the address of one that has been killed.
class NextBus final
{
public:
    explicit NextBus(const QString &address)
    {
        _daemon.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--address=") + address,
                       QStringLiteral("--print-address"), QStringLiteral("--nofork"),
                       QStringLiteral("--nopidfile")});
        if (!_daemon.waitForReadyRead())
            qFatal("dbus-daemon does not start: %s", qPrintable(_daemon.errorString()));
    }
    ~NextBus()
    {
        _daemon.kill();
        _daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(NextBus)

private:
    QProcess _daemon;
};

QString ownerOf(const QString &name)
{
    return BusConnection::instance().current().interface()->serviceOwner(name).value();
}

DesktopNotification alarm()
{
    DesktopNotification notification;
    notification.title = QStringLiteral("Tea");
    return notification;
}
} // namespace

/// The session bus is killed and starts anew at its address.
class tst_BusConnection final : public Test
{
    Q_OBJECT

public:
    explicit tst_BusConnection(const OnPrivateBus &surroundings) :
        _first(surroundings.bus().processId()),
        _address(surroundings.bus().address().section(QLatin1Char(','), 0, 0))
    {}

private Q_SLOTS:
    void init();
    void aBusThatStartsAnewIsFound();
    void withoutABusNoCallIsPossible();
    void aBusIsFoundEachTime();
    void aWatchedNameVanishesWithTheBusAndAppearsOnTheNext();
    void theNameOfTheInstanceIsTakenAgain();
    void theStatusItemRegistersOnTheNextBus();
    void aNotificationThatIsShownIsShownOnTheNextBus();
    void anAlarmWithoutABusIsShownOnTheNext();
    void aNotificationThatIsWithdrawnMeanwhileIsNotShown();
    void theNextScreenSaverIsAsked();

private:
    void killBus();
    void startBus();

    const pid_t _first;
    const QString _address;
    std::optional<NextBus> _bus;
};

void tst_BusConnection::init()
{
    Test::init();
    if (!BusConnection::instance().isPossible())
        startBus();
}

void tst_BusConnection::killBus()
{
    const QSignalSpy lost(&BusConnection::instance(), &BusConnection::lost);
    if (_bus)
        _bus.reset();
    else
        ::kill(_first, SIGKILL);
    QTRY_COMPARE(lost.count(), 1);
}

void tst_BusConnection::startBus()
{
    const QSignalSpy found(&BusConnection::instance(), &BusConnection::found);
    _bus.emplace(_address);
    QTRY_COMPARE(found.count(), 1);
}

void tst_BusConnection::aBusThatStartsAnewIsFound()
{
    killBus();
    startBus();
    QVERIFY(BusConnection::instance().current().isConnected());
    QVERIFY(!ownerOf(QStringLiteral("org.freedesktop.DBus")).isEmpty());
}

void tst_BusConnection::withoutABusNoCallIsPossible()
{
    QVERIFY(BusQuestion::isPossible());
    killBus();
    QVERIFY(!BusQuestion::isPossible());
    startBus();
    QVERIFY(BusQuestion::isPossible());
}

void tst_BusConnection::aBusIsFoundEachTime()
{
    for (int i = 0; i < 3; ++i) {
        killBus();
        startBus();
    }
    QVERIFY(BusQuestion::isPossible());
}

void tst_BusConnection::aWatchedNameVanishesWithTheBusAndAppearsOnTheNext()
{
    BusNameWatch watch;
    const QSignalSpy vanished(&watch, &BusNameWatch::vanished);
    const QSignalSpy appeared(&watch, &BusNameWatch::appeared);
    watch.watch(QStringLiteral("org.freedesktop.Notifications"));
    killBus();
    QCOMPARE(vanished.count(), 1);
    startBus();
    QCOMPARE(appeared.count(), 0);
    const NotificationServer server(_address);
    QTRY_COMPARE(appeared.count(), 1);
}

void tst_BusConnection::theNameOfTheInstanceIsTakenAgain()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    const QString before = ownerOf(kName);
    QVERIFY(!before.isEmpty());
    killBus();
    startBus();
    QTRY_COMPARE(ownerOf(kName), BusConnection::instance().current().baseService());
    const QSignalSpy asked(&instance, &SingleInstance::asked);
    QDBusMessage call = QDBusMessage::createMethodCall(
        kName, QStringLiteral("/org/wuffer/Wuffer"), QStringLiteral("org.freedesktop.Application"),
        QStringLiteral("Activate"));
    call.setArguments({QVariantMap()});
    BusConnection::instance().current().asyncCall(call);
    QTRY_COMPARE(asked.count(), 1);
}

void tst_BusConnection::theStatusItemRegistersOnTheNextBus()
{
    FreedesktopStatusItem item;
    item.setAttributedTitle({QStringLiteral("5m 3s "), Qt::black});
    {
        const StatusWatcher watcher(_address);
        QTRY_COMPARE(watcher.registered.size(), 1);
        killBus();
    }
    startBus();
    const StatusWatcher watcher(_address);
    QTRY_COMPARE(watcher.registered.size(), 1);
    QCOMPARE(ownerOf(watcher.registered.constFirst()),
             BusConnection::instance().current().baseService());
}

void tst_BusConnection::aNotificationThatIsShownIsShownOnTheNextBus()
{
    FreedesktopNotifications notifications;
    const QObject timer;
    {
        const NotificationServer server(_address);
        notifications.notify(timer, alarm());
        QTRY_COMPARE(server.shown.size(), 1U);
        killBus();
    }
    startBus();
    const NotificationServer server(_address);
    QTRY_COMPARE(server.shown.size(), 1U);
    QCOMPARE(server.shown.front().replacedId, 0U);
}

void tst_BusConnection::anAlarmWithoutABusIsShownOnTheNext()
{
    FreedesktopNotifications notifications;
    const QObject timer;
    killBus();
    notifications.notify(timer, alarm());
    startBus();
    const NotificationServer server(_address);
    QTRY_COMPARE(server.shown.size(), 1U);
    QCOMPARE(server.shown.front().title, QStringLiteral("Tea"));
}

void tst_BusConnection::aNotificationThatIsWithdrawnMeanwhileIsNotShown()
{
    FreedesktopNotifications notifications;
    const QObject timer;
    const QObject other;
    killBus();
    notifications.notify(timer, alarm());
    notifications.notify(other, alarm());
    notifications.withdraw(timer);
    startBus();
    const NotificationServer server(_address);
    QTRY_COMPARE(server.shown.size(), 1U);
    notifications.withdraw(other);
    QTRY_COMPARE(server.closed.size(), 1U);
    QCOMPARE(server.shown.size(), 1U);
}

void tst_BusConnection::theNextScreenSaverIsAsked()
{
    FreedesktopScreenBlanking blanking;
    const QObject timer;
    {
        const ScreenSaverService screenSaver(_address);
        blanking.inhibit(timer, QStringLiteral("full screen"));
        QTRY_COMPARE(screenSaver.diary.size(), 1);
        killBus();
    }
    startBus();
    const ScreenSaverService screenSaver(_address);
    QTRY_COMPARE(screenSaver.diary.size(), 1);
    blanking.release(timer);
    QTRY_COMPARE(screenSaver.diary.size(), 2);
}

WUFFER_TEST(tst_BusConnection, OnPrivateBus)
#include "tst_BusConnection.moc"
