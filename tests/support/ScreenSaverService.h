#pragma once

#include "support/BusObject.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <utility>
#include <vector>

/// A service on the session bus that programs ask to keep the screen on: the screen saver or the
/// portal, depending on the name and the path. It is registered while this object lives and records
/// the calls.
class InhibitService : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    InhibitService(const QString &busAddress, QString name, const QString &path) :
        _name(std::move(name)), _bus(QDBusConnection::connectToBus(busAddress, _name))
    {
        if (!_bus.registerObject(path, this, QDBusConnection::ExportAllSlots) ||
            !_bus.registerService(_name))
            qFatal("%s could not be registered", qPrintable(_name));
    }
    ~InhibitService() override { leaveBus(*this, _bus); }
    Q_DISABLE_COPY_MOVE(InhibitService)

    /// From now on the service receives calls but holds back the answers.
    void stopAnswering() { _answers = false; }
    /// Sends the answers held back, and answers later calls at once.
    void answerAgain()
    {
        _answers = true;
        for (const QDBusMessage &answer : std::exchange(_heldBack, {}))
            _bus.send(answer);
    }
    [[nodiscard]] std::size_t heldBack() const { return _heldBack.size(); }

    /// The calls in order: "inhibit Wuffer: reason", "release 7".
    QStringList diary;

protected:
    void holdBackIfAsked(const QVariant &answer)
    {
        if (_answers)
            return;
        setDelayedReply(true);
        _heldBack.push_back(message().createReply(answer));
    }
    [[nodiscard]] QDBusConnection &bus() { return _bus; }

private:
    const QString _name;
    QDBusConnection _bus;
    bool _answers = true;
    std::vector<QDBusMessage> _heldBack;
};

/// A desktop's screen saver. The slots are the methods of its D-Bus interface.
class ScreenSaverService final : public InhibitService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    explicit ScreenSaverService(const QString &busAddress, const QString &path = QStringLiteral(
                                                               "/org/freedesktop/ScreenSaver")) :
        InhibitService(busAddress, QStringLiteral("org.freedesktop.ScreenSaver"), path)
    {}

public Q_SLOTS:
    uint Inhibit(const QString &application, const QString &reason)
    {
        diary << QStringLiteral("inhibit %1: %2").arg(application, reason);
        holdBackIfAsked(++_cookie);
        return _cookie;
    }
    void UnInhibit(uint cookie) { diary << QStringLiteral("release %1").arg(cookie); }

private:
    uint _cookie = 6;
};

/// An inhibition that the portal has granted; Close() ends it.
class PortalRequest final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    explicit PortalRequest(QStringList &diary) : _diary(diary) {}

public Q_SLOTS:
    void Close() { _diary << QStringLiteral("release"); }

private:
    QStringList &_diary;
};

/// A desktop's portal. The slots are the methods of its D-Bus interface.
class InhibitPortal final : public InhibitService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    explicit InhibitPortal(const QString &busAddress) :
        InhibitService(busAddress, QStringLiteral("org.freedesktop.portal.Desktop"),
                       QStringLiteral("/org/freedesktop/portal/desktop"))
    {
        if (!bus().registerObject(requestPath(), &_request, QDBusConnection::ExportAllSlots))
            qFatal("the request could not be registered");
    }

public Q_SLOTS:
    QDBusObjectPath Inhibit(const QString &window, uint flags, const QVariantMap &options)
    {
        diary << QStringLiteral("inhibit %1%2: %3")
                     .arg(window, QString::number(flags),
                          options.value(QStringLiteral("reason")).toString());
        return QDBusObjectPath(requestPath());
    }

private:
    [[nodiscard]] static QString requestPath()
    {
        return QStringLiteral("/org/freedesktop/portal/desktop/request/1_2/x");
    }

    PortalRequest _request{diary};
};
