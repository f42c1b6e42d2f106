#include "platform/linux/BusNameWatch.h"
#include "support/PrivateBus.h"
#include "support/TestMain.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

#include <optional>

namespace
{
const QString kName = QStringLiteral("org.wuffer.Test");
const QString kOtherName = QStringLiteral("org.wuffer.Test.Other");

/// A program on the bus that owns names, or waits in the queue for them, while this object lives.
class Owner final
{
public:
    Owner(const QString &address, const QString &title) :
        _bus(QDBusConnection::connectToBus(address, title))
    {}
    ~Owner() { QDBusConnection::disconnectFromBus(_bus.name()); }
    Q_DISABLE_COPY_MOVE(Owner)

    void take(const QString &name)
    {
        _bus.interface()->registerService(name, QDBusConnectionInterface::QueueService);
    }
    void release(const QString &name) { _bus.interface()->unregisterService(name); }
    [[nodiscard]] QString uniqueName() const { return _bus.baseService(); }

private:
    QDBusConnection _bus;
};
} // namespace

/// Runs on a private session bus, where the test owns the watched names.
class tst_BusNameWatch final : public Test
{
    Q_OBJECT

public:
    explicit tst_BusNameWatch(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void init();
    void cleanup();
    void aNameThatFindsAnOwnerHasAppeared();
    void aNameWithoutAnOwnerHasVanished();
    void aNameThatPassesToTheNextOwnerIsTakenOver();
    void aProgramThatEndsHasVanished();
    void onlyTheLastNameIsWatched();
    void aStoppedWatchReportsNothing();

private:
    /// The callbacks so far, after all signals of the bus have arrived.
    [[nodiscard]] QString told()
    {
        // The answer to this call arrives after all signals that the bus has sent before it.
        static_cast<void>(QDBusConnection::sessionBus().interface()->isServiceRegistered(kName));
        QCoreApplication::processEvents();
        return _told.join(QLatin1Char(' '));
    }

    const QString _address;
    std::optional<Owner> _owner;
    std::optional<BusNameWatch> _watch;
    QStringList _told;
};

void tst_BusNameWatch::init()
{
    Test::init();
    _told.clear();
    _owner.emplace(_address, QStringLiteral("owner"));
    _watch.emplace();
    connect(&*_watch, &BusNameWatch::appeared, this, [this](bool takenOver) {
        _told << (takenOver ? QStringLiteral("taken") : QStringLiteral("appeared"));
    });
    connect(&*_watch, &BusNameWatch::vanished, this,
            [this] { _told << QStringLiteral("vanished"); });
}

void tst_BusNameWatch::cleanup()
{
    _watch.reset();
    _owner.reset();
}

void tst_BusNameWatch::aNameThatFindsAnOwnerHasAppeared()
{
    _watch->watch(kName);
    QCOMPARE(told(), QString());
    _owner->take(kName);
    QCOMPARE(told(), QStringLiteral("appeared"));
}

void tst_BusNameWatch::aNameWithoutAnOwnerHasVanished()
{
    _owner->take(kName);
    _watch->watch(kName);
    QCOMPARE(told(), QString());
    _owner->release(kName);
    QCOMPARE(told(), QStringLiteral("vanished"));
}

void tst_BusNameWatch::aNameThatPassesToTheNextOwnerIsTakenOver()
{
    _owner->take(kName);
    Owner next(_address, QStringLiteral("next"));
    next.take(kName);
    _watch->watch(kName);
    _owner->release(kName);
    QCOMPARE(told(), QStringLiteral("taken"));
}

void tst_BusNameWatch::aProgramThatEndsHasVanished()
{
    _watch->watch(_owner->uniqueName());
    QCOMPARE(told(), QString());
    _owner.reset();
    QTRY_COMPARE(told(), QStringLiteral("vanished"));
}

void tst_BusNameWatch::onlyTheLastNameIsWatched()
{
    _watch->watch(kOtherName);
    _watch->watch(kName);
    _owner->take(kOtherName);
    QCOMPARE(told(), QString());
    _owner->take(kName);
    QCOMPARE(told(), QStringLiteral("appeared"));
}

void tst_BusNameWatch::aStoppedWatchReportsNothing()
{
    _watch->watch(kName);
    _watch->stop();
    _owner->take(kName);
    QCOMPARE(told(), QString());
    _watch->watch(kName);
    _owner->release(kName);
    QCOMPARE(told(), QStringLiteral("vanished"));
}

WUFFER_TEST(tst_BusNameWatch, OnPrivateBus)
#include "tst_BusNameWatch.moc"
