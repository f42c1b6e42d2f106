#pragma once

#include "support/BusObject.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <vector>

/// A notification server on the session bus. It owns the well-known name while this object lives,
/// and records the calls. The slots are the methods of its D-Bus interface.
class NotificationServer final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown
    {
        QString application;
        uint replacedId;
        QString icon;
        QString title;
        QString text;
        QStringList actions;
        QVariantMap hints;
        int timeout;
    };

    explicit NotificationServer(const QString &busAddress, QStringList capabilities = {},
                                QString name = QStringLiteral("server")) :
        _capabilities(std::move(capabilities)),
        _name(std::move(name)),
        _bus(QDBusConnection::connectToBus(busAddress, QStringLiteral("server")))
    {
        if (!_bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                 QDBusConnection::ExportAllSlots) ||
            !_bus.registerService(QStringLiteral("org.freedesktop.Notifications")))
            qFatal("the notification server could not be registered");
    }
    ~NotificationServer() override { leaveBus(*this, _bus); }
    Q_DISABLE_COPY_MOVE(NotificationServer)

    /// From now on the server receives calls but holds back the answers that the program waits for.
    void stopAnswering() { _answers = false; }

    /// Sends the answers held back, and answers later calls at once.
    void answerAgain()
    {
        _answers = true;
        for (const QDBusMessage &answer : std::exchange(_heldBack, {}))
            _bus.send(answer);
    }

    /// How many answers the server holds back.
    [[nodiscard]] std::size_t heldBack() const { return _heldBack.size(); }

    /// Sends the signal for a press of the button with this key, or, with the key "default", for a
    /// click on the notification.
    void press(uint id, const QString &key) { say(QStringLiteral("ActionInvoked"), {id, key}); }

    /// From now on the server closes a notification at the moment it shows an equal one, as some
    /// servers do of their own.
    void mergeEqual() { _mergesEqual = true; }

    /// Sends the signal that the user has closed the notification.
    void dismiss(uint id)
    {
        constexpr uint byTheUser = 2;
        say(QStringLiteral("NotificationClosed"), {id, byTheUser});
    }

    void say(const QString &signal, const QVariantList &arguments)
    {
        QDBusMessage message =
            QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                       QStringLiteral("org.freedesktop.Notifications"), signal);
        message.setArguments(arguments);
        _bus.send(message);
    }

    std::vector<Shown> shown;

    /// The ids of the notifications that the program has closed, in order.
    std::vector<uint> closed;

    /// The id given last. The ids begin at 100, unlike those of other servers.
    uint lastId = 99;

public Q_SLOTS:
    QString GetServerInformation(QString &vendor, QString &version, QString &specVersion)
    {
        vendor = QStringLiteral("wuffer");
        version = QStringLiteral("1");
        specVersion = QStringLiteral("1.2");
        return _name;
    }

    QStringList GetCapabilities()
    {
        holdBackIfAsked({QVariant(_capabilities)});
        return _capabilities;
    }

    uint Notify(const QString &application, uint replacedId, const QString &icon,
                const QString &title, const QString &text, const QStringList &actions,
                const QVariantMap &hints, int timeout)
    {
        if (_mergesEqual && replacedId == 0 && !shown.empty() && shown.back().title == title &&
            shown.back().text == text)
            dismiss(lastId);
        shown.push_back({application, replacedId, icon, title, text, actions, hints, timeout});
        const uint id = replacedId != 0 ? replacedId : ++lastId;
        holdBackIfAsked({QVariant(id)});
        return id;
    }

    void CloseNotification(uint id)
    {
        closed.push_back(id);
        holdBackIfAsked({});
    }

private:
    void holdBackIfAsked(const QVariantList &answer)
    {
        if (_answers)
            return;
        setDelayedReply(true);
        _heldBack.push_back(message().createReply(answer));
    }

    const QStringList _capabilities;
    const QString _name;
    QDBusConnection _bus;
    bool _answers = true;
    bool _mergesEqual = false;
    std::vector<QDBusMessage> _heldBack;
};
