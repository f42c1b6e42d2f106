#include "platform/SingleInstance.h"
#include "platform/linux/BusProbe.h"
#include "support/BusPeer.h"
#include "support/PrivateBus.h"
#include "support/TestMain.h"

#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QSignalSpy>
#include <QThread>

#include <csignal>
#include <optional>

/// Only one instance of the program runs in a session, and it gets the requests of later launches.
class tst_SingleInstance final : public Test
{
    Q_OBJECT

public:
    explicit tst_SingleInstance(const OnPrivateBus &surroundings) : _bus(surroundings.bus()) {}

private Q_SLOTS:
    void theFirstOwnsTheName();
    void aLaterInstanceDoesNotOwnTheName();
    void withoutABusEveryLaunchIsTheFirst();
    void activationIsPassedOn();
    void actionsArePassedOn();
    void filesAreAnActivation();
    void aRefusalIsAnsweredWithAnError();
    void aLaunchThatIsRefusedHasReachedTheProgram();
    void aTokenIsNotLeftForOtherProgramsToFind();
    void aSecondInstanceThatStaysInheritsTheName();
    void theTokensOfALaunchArePassedOn();
    void withoutAFirstInstanceForwardingFails();
    void forwardingToAFirstInstanceThatHangsFails();
    void aBusThatIsAliveDoesNotHang();
    void aBusThatIsStoppedHangs();
    void anAddressWithoutAListenerDoesNotHang_data();
    void anAddressWithoutAListenerDoesNotHang();
    void theFileOfTheSocketIsInTheAddress();

private:
    const PrivateBus &_bus;
};

namespace
{
const QString kName = QStringLiteral("org.wuffer.Wuffer");
const QString kPath = QStringLiteral("/org/wuffer/Wuffer");
const QString kInterface = QStringLiteral("org.freedesktop.Application");

/// An instance that was started earlier. It owns the name, but takes no calls.
class OtherInstance final
{
public:
    explicit OtherInstance(const QString &address) :
        _bus(QDBusConnection::connectToBus(address, QStringLiteral("other")))
    {
        if (!_bus.registerService(kName))
            qFatal("the name is taken");
    }
    ~OtherInstance()
    {
        _bus.unregisterService(kName);
        QDBusConnection::disconnectFromBus(QStringLiteral("other"));
    }
    Q_DISABLE_COPY_MOVE(OtherInstance)

    /// From now on the instance takes calls, and answers them in this thread's event loop.
    void listen() { _bus.registerObject(kPath, &_object, QDBusConnection::ExportAllSlots); }

private:
    QDBusConnection _bus;
    QObject _object;
};

/// An instance that refuses all actions, in a thread of its own.
class RefusingInstance final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit RefusingInstance(const QString &address) :
        _bus(QDBusConnection::connectToBus(address, QStringLiteral("refusing")))
    {
        moveToThread(&_thread);
        _thread.start();
        if (!_bus.registerService(kName) ||
            !_bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots))
            qFatal("the name is taken");
    }
    ~RefusingInstance() override
    {
        _bus.unregisterService(kName);
        QDBusConnection::disconnectFromBus(QStringLiteral("refusing"));
        _thread.quit();
        _thread.wait();
    }
    Q_DISABLE_COPY_MOVE(RefusingInstance)

public Q_SLOTS:
    void ActivateAction(const QString & /*action_name*/, const QVariantList & /*parameter*/,
                        const QVariantMap & /*platform_data*/)
    {
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("Refused."));
    }

private:
    QDBusConnection _bus;
    QThread _thread;
};

QString ownerOfTheName()
{
    return QDBusConnection::sessionBus().interface()->serviceOwner(kName).value();
}
} // namespace

void tst_SingleInstance::theFirstOwnsTheName()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    QCOMPARE(ownerOfTheName(), QDBusConnection::sessionBus().baseService());
}

void tst_SingleInstance::aLaterInstanceDoesNotOwnTheName()
{
    QVERIFY(QDBusConnection::sessionBus().unregisterService(kName));
    const OtherInstance other(_bus.address());
    SingleInstance instance;
    QVERIFY(!instance.claim());
    QVERIFY(ownerOfTheName() != QDBusConnection::sessionBus().baseService());
}

void tst_SingleInstance::activationIsPassedOn()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    const QSignalSpy asked(&instance, &SingleInstance::asked);
    BusPeer desktop(_bus.address(), kPath, kInterface);
    desktop.tell(QStringLiteral("Activate"), {QVariantMap()});
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().toString(), QString());
}

void tst_SingleInstance::actionsArePassedOn()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    const QSignalSpy asked(&instance, &SingleInstance::asked);
    BusPeer desktop(_bus.address(), kPath, kInterface);
    desktop.tell(QStringLiteral("ActivateAction"),
                 {QStringLiteral("start-all"), QVariantList(), QVariantMap()});
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().toString(), QStringLiteral("start-all"));
}

void tst_SingleInstance::filesAreAnActivation()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    const QSignalSpy asked(&instance, &SingleInstance::asked);
    BusPeer desktop(_bus.address(), kPath, kInterface);
    desktop.tell(QStringLiteral("Open"),
                 {QStringList{QStringLiteral("file:///tea")}, QVariantMap()});
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().toString(), QString());
}

void tst_SingleInstance::aRefusalIsAnsweredWithAnError()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    connect(&instance, &SingleInstance::asked, [&](const QString &action) {
        if (action == QLatin1String("new-timer"))
            instance.refuse();
    });
    BusPeer desktop(_bus.address(), kPath, kInterface);
    const auto answerTo = [&](const char *action) {
        return desktop
            .ask(QStringLiteral("ActivateAction"),
                 {QString::fromLatin1(action), QVariantList(), QVariantMap()})
            .errorName();
    };
    QCOMPARE(answerTo("new-timer"), QStringLiteral("org.freedesktop.DBus.Error.LimitsExceeded"));
    QCOMPARE(answerTo("start-all"), QString());
}

void tst_SingleInstance::aTokenIsNotLeftForOtherProgramsToFind()
{
    SingleInstance instance;
    QVERIFY(instance.claim());
    const QSignalSpy asked(&instance, &SingleInstance::asked);
    BusPeer desktop(_bus.address(), kPath, kInterface);
    desktop.tell(QStringLiteral("Activate"),
                 {QVariantMap{{QStringLiteral("activation-token"), QStringLiteral("abc")}}});
    QCOMPARE(asked.count(), 1);
    // Only Qt's Wayland platform would take the token out of the environment.
    QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

void tst_SingleInstance::aSecondInstanceThatStaysInheritsTheName()
{
    QDBusConnection::sessionBus().unregisterService(kName);
    std::optional<OtherInstance> other(std::in_place, _bus.address());
    SingleInstance instance;
    QVERIFY(!instance.claim());
    instance.inherit();
    QVERIFY(ownerOfTheName() != QDBusConnection::sessionBus().baseService());
    other.reset();
    QTRY_COMPARE(ownerOfTheName(), QDBusConnection::sessionBus().baseService());
}

void tst_SingleInstance::withoutAFirstInstanceForwardingFails()
{
    QDBusConnection::sessionBus().unregisterService(kName);
    const SingleInstance instance;
    QVERIFY(!instance.forward({}, {}));
    QVERIFY(!instance.forward(QStringLiteral("new-timer"), {}));
}

void tst_SingleInstance::forwardingToAFirstInstanceThatHangsFails()
{
    QDBusConnection::sessionBus().unregisterService(kName);
    OtherInstance other(_bus.address());
    // The other instance lives in this thread, which blocks in forward(), so it cannot answer.
    other.listen();
    const SingleInstance instance;
    QVERIFY(!instance.forward(QStringLiteral("new-timer"), {}));
}

void tst_SingleInstance::aLaunchThatIsRefusedHasReachedTheProgram()
{
    QDBusConnection::sessionBus().unregisterService(kName);
    const RefusingInstance other(_bus.address());
    const SingleInstance instance;
    QVERIFY(instance.forward(QStringLiteral("new-timer"), {}));
}

void tst_SingleInstance::aBusThatIsAliveDoesNotHang()
{
    QVERIFY(!BusProbe::hangs(_bus.address().toUtf8()));
    QVERIFY(BusProbe::answers(_bus.address().toUtf8()));
}

void tst_SingleInstance::aBusThatIsStoppedHangs()
{
    ::kill(_bus.processId(), SIGSTOP);
    const bool hangs = BusProbe::hangs(_bus.address().toUtf8());
    const bool answers = BusProbe::answers(_bus.address().toUtf8());
    ::kill(_bus.processId(), SIGCONT);
    QVERIFY(hangs);
    QVERIFY(!answers);
}

void tst_SingleInstance::anAddressWithoutAListenerDoesNotHang_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("no address") << QByteArray();
    QTest::newRow("no such socket") << QByteArray("unix:path=/nowhere/at%20all");
    QTest::newRow("no such abstract socket") << QByteArray("unix:abstract=wuffer-nowhere");
    QTest::newRow("a name that is too long") << "unix:path=/" + QByteArray(200, 'a');
    QTest::newRow("no name") << QByteArray("unix:path=");
    QTest::newRow("no kind of name that is known") << QByteArray("unix:dir=/tmp,guid=12");
    QTest::newRow("another kind of address") << QByteArray("tcp:host=localhost,port=1");
    QTest::newRow("disabled") << QByteArray("disabled:");
}

void tst_SingleInstance::anAddressWithoutAListenerDoesNotHang()
{
    QFETCH(const QByteArray, address);
    QVERIFY(!BusProbe::hangs(address));
}

void tst_SingleInstance::theFileOfTheSocketIsInTheAddress()
{
    QCOMPARE(BusProbe::socketFile("unix:path=/at%20all,guid=12"), QStringLiteral("/at all"));
    QCOMPARE(BusProbe::socketFile("unix:abstract=/at"), QString());
    QCOMPARE(BusProbe::socketFile("disabled:"), QString());
    QVERIFY(!BusProbe::answers("unix:path=/nowhere/at%20all"));
}

void tst_SingleInstance::theTokensOfALaunchArePassedOn()
{
    qunsetenv("DESKTOP_STARTUP_ID");
    qunsetenv("XDG_ACTIVATION_TOKEN");
    QVERIFY(SingleInstance::thisLaunch().isEmpty());
    qputenv("DESKTOP_STARTUP_ID", "start-7");
    qputenv("XDG_ACTIVATION_TOKEN", "token-8");
    const QVariantMap launch = SingleInstance::thisLaunch();
    qunsetenv("DESKTOP_STARTUP_ID");
    qunsetenv("XDG_ACTIVATION_TOKEN");
    const QVariantMap expected{{QStringLiteral("desktop-startup-id"), QStringLiteral("start-7")},
                               {QStringLiteral("activation-token"), QStringLiteral("token-8")}};
    QCOMPARE(launch, expected);
}

void tst_SingleInstance::withoutABusEveryLaunchIsTheFirst()
{
    const OtherInstance other(_bus.address());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    SingleInstance instance;
    const bool first = instance.claim();
    qputenv("DBUS_SESSION_BUS_ADDRESS", _bus.address().toUtf8());
    QVERIFY(first);
}

WUFFER_TEST(tst_SingleInstance, OnPrivateBus)
#include "tst_SingleInstance.moc"
