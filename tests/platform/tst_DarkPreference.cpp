#include "platform/DarkPreference.h"
#include "support/BusObject.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/TestMain.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QSignalSpy>

#include <optional>

namespace
{
constexpr uint kNoPreference = 0;
constexpr uint kDark = 1;
constexpr uint kLight = 2;

/// A portal on the session bus with one setting. It owns its name while this object lives.
class Portal final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Portal(const QString &busAddress, uint scheme) :
        _scheme(scheme), _bus(QDBusConnection::connectToBus(busAddress, QStringLiteral("portal")))
    {
        if (!_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                 QDBusConnection::ExportAllSlots) ||
            !_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")))
            qFatal("the portal could not be registered");
    }
    ~Portal() override { leaveBus(*this, _bus); }
    Q_DISABLE_COPY_MOVE(Portal)

    void change(const QString &space, const QString &key, uint scheme)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal.setArguments({space, key, QVariant::fromValue(QDBusVariant(scheme))});
        _bus.send(signal);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &space, const QString &key)
    {
        const bool known = space == QLatin1String("org.freedesktop.appearance") &&
                           key == QLatin1String("color-scheme");
        return QDBusVariant(QVariant::fromValue(QDBusVariant(known ? _scheme : 99U)));
    }

private:
    uint _scheme;
    QDBusConnection _bus;
};
} // namespace

/// The preference for dark windows. Runs on a private session bus, where the test plays the portal.
class tst_DarkPreference final : public Test
{
    Q_OBJECT

public:
    explicit tst_DarkPreference(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void thePortalIsAsked()
    {
        _portal.emplace(_address, kDark);
        const DarkPreference preference;
        QVERIFY(!preference.isDark());
        QTRY_VERIFY(preference.isDark());
    }

    void lightAndNoPreferenceAreNotDark()
    {
        for (const uint scheme : {kLight, kNoPreference}) {
            _portal.reset();
            _portal.emplace(_address, scheme);
            const DarkPreference preference;
            settleWith(QStringLiteral("org.freedesktop.portal.Desktop"));
            QVERIFY(!preference.isDark());
        }
    }

    void aChangeIsNoticed()
    {
        _portal.reset();
        _portal.emplace(_address, kLight);
        const DarkPreference preference;
        const QSignalSpy changes(&preference, &DarkPreference::changed);
        settleWith(QStringLiteral("org.freedesktop.portal.Desktop"));
        const QString space = QStringLiteral("org.freedesktop.appearance");
        const QString key = QStringLiteral("color-scheme");
        _portal->change(space, QStringLiteral("accent-color"), kDark);
        _portal->change(QStringLiteral("org.example"), key, kDark);
        settleWith(QStringLiteral("org.freedesktop.portal.Desktop"));
        QVERIFY(!preference.isDark());
        _portal->change(space, key, kDark);
        QTRY_VERIFY(preference.isDark());
        _portal->change(space, key, kLight);
        QTRY_VERIFY(!preference.isDark());
        QCOMPARE(changes.count(), 2);
    }

    void aPortalThatComesLaterIsAsked()
    {
        _portal.reset();
        const DarkPreference preference;
        settleWith(QStringLiteral("org.freedesktop.DBus"));
        QVERIFY(!preference.isDark());
        _portal.emplace(_address, kDark);
        QTRY_VERIFY(preference.isDark());
    }

private:
    const QString _address;
    std::optional<Portal> _portal;
};

WUFFER_TEST(tst_DarkPreference, OnPrivateBus)
#include "tst_DarkPreference.moc"
