#include "base/Service.h"
#include "platform/linux/UnityLauncherEntry.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/TestClock.h"
#include "support/TestMain.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <optional>

namespace
{
/// A dock on the session bus. It owns the name of readers while this object lives, and records
/// what it is sent.
class Dock final : public QObject
{
    Q_OBJECT

public:
    explicit Dock(const QString &busAddress) :
        _bus(QDBusConnection::connectToBus(busAddress, QStringLiteral("dock")))
    {
        if (!_bus.registerService(QStringLiteral("com.canonical.Unity")) ||
            !_bus.connect({}, {}, QStringLiteral("com.canonical.Unity.LauncherEntry"),
                          QStringLiteral("Update"), this, SLOT(hear(QString, QVariantMap))))
            qFatal("the dock could not be registered");
    }
    ~Dock() override
    {
        _bus.unregisterService(QStringLiteral("com.canonical.Unity"));
        QDBusConnection::disconnectFromBus(QStringLiteral("dock"));
    }
    Q_DISABLE_COPY_MOVE(Dock)

    QStringList applications;
    QList<QVariantMap> heard;

public Q_SLOTS:
    void hear(const QString &application, const QVariantMap &properties)
    {
        applications << application;
        heard << properties;
    }

private:
    QDBusConnection _bus;
};
} // namespace

/// The icon in docks that read launcher entries. Runs on a private session bus, where the test
/// plays the dock.
class tst_UnityLauncherEntry final : public Test
{
    Q_OBJECT

public:
    explicit tst_UnityLauncherEntry(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void theDockIsToldWhatToShow();
    void withoutADockNothingIsSent();
    void aDockThatComesLaterIsFound();
    void aDockThatIsReplacedIsToldAnew();
    void whatHasNotChangedIsNotSentAgain();
    void thereIsOneMessageASecond();

private:
    [[nodiscard]] Dock &addDock() { return _dock.emplace(_address); }
    /// Waits until all messages of the program have arrived.
    static void settle() { settleWith(QStringLiteral("org.freedesktop.DBus")); }

    const QString _address;
    TestClock _clock;
    const Service<Clock> _clockService{_clock};
    std::optional<Dock> _dock;
};

void tst_UnityLauncherEntry::theDockIsToldWhatToShow()
{
    const Dock &dock = addDock();
    UnityLauncherEntry entry;
    QTRY_VERIFY(entry.isRead());
    entry.show({.percent = 40, .urgent = true});
    QTRY_COMPARE(dock.heard.size(), 1);
    QCOMPARE(dock.applications.front(), QStringLiteral("application://org.wuffer.Wuffer.desktop"));
    const QVariantMap expected{{QStringLiteral("progress"), 0.4},
                               {QStringLiteral("progress-visible"), true},
                               {QStringLiteral("urgent"), true}};
    QCOMPARE(dock.heard.front(), expected);
    _clock.advance(1);
    entry.show({});
    QTRY_COMPARE(dock.heard.size(), 2);
    QCOMPARE(dock.heard.back().value(QStringLiteral("progress-visible")), QVariant(false));
    QCOMPARE(dock.heard.back().value(QStringLiteral("urgent")), QVariant(false));
}

void tst_UnityLauncherEntry::withoutADockNothingIsSent()
{
    _dock.reset();
    UnityLauncherEntry entry;
    QVERIFY(!entry.isRead());
    settle();
    QVERIFY(!entry.isRead());
    entry.show({.percent = 40, .urgent = false});
    settle();
    const Dock &dock = addDock();
    QTRY_VERIFY(entry.isRead());
    settle();
    QVERIFY(dock.heard.isEmpty());
}

void tst_UnityLauncherEntry::aDockThatComesLaterIsFound()
{
    _dock.reset();
    UnityLauncherEntry entry;
    entry.setReadHandler([&] { entry.show({.percent = 7, .urgent = false}); });
    QVERIFY(!entry.isRead());
    settle();
    const Dock &dock = addDock();
    QTRY_COMPARE(dock.heard.size(), 1);
    QVERIFY(entry.isRead());
}

void tst_UnityLauncherEntry::aDockThatIsReplacedIsToldAnew()
{
    _dock.emplace(_address);
    UnityLauncherEntry entry;
    entry.setReadHandler([&] { entry.show({.percent = 7, .urgent = false}); });
    QVERIFY(!entry.isRead());
    QTRY_COMPARE(_dock->heard.size(), 1);
    _dock.reset();
    QTRY_VERIFY(!entry.isRead());
    const Dock &dock = addDock();
    QTRY_VERIFY(entry.isRead());
    _clock.advance(1);
    QTRY_COMPARE(dock.heard.size(), 1);
}

void tst_UnityLauncherEntry::whatHasNotChangedIsNotSentAgain()
{
    const Dock &dock = addDock();
    UnityLauncherEntry entry;
    QTRY_VERIFY(entry.isRead());
    for (int i = 0; i < 5; ++i) {
        entry.show({.percent = 40, .urgent = false});
        _clock.advance(1);
    }
    settle();
    QCOMPARE(dock.heard.size(), 1);
}

void tst_UnityLauncherEntry::thereIsOneMessageASecond()
{
    const Dock &dock = addDock();
    UnityLauncherEntry entry;
    QTRY_VERIFY(entry.isRead());
    for (int percent = 0; percent < 100; ++percent) {
        entry.show({.percent = percent, .urgent = false});
        _clock.advance(0.1);
    }
    QTRY_COMPARE(dock.heard.size(), 10);
    // The last state is not lost.
    _clock.advance(1);
    QTRY_COMPARE(dock.heard.size(), 11);
    QCOMPARE(dock.heard.back().value(QStringLiteral("progress")), QVariant(0.99));
}

WUFFER_TEST(tst_UnityLauncherEntry, OnPrivateBus)
#include "tst_UnityLauncherEntry.moc"
