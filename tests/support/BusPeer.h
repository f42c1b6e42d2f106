#pragma once

#include "support/BusObject.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>
#include <QTest>

/// Stands for another program on the session bus: calls one object of the program under test and
/// receives its signals. Calls are asynchronous, because the program runs in this process.
class BusPeer final : public QObject
{
    Q_OBJECT

public:
    BusPeer(const QString &busAddress, QString path, QString interface) :
        _bus(QDBusConnection::connectToBus(busAddress, QStringLiteral("peer ") + path)),
        _path(std::move(path)), _interface(std::move(interface))
    {
        if (!_bus.connect({}, _path, _interface, {}, this, SLOT(hear(QDBusMessage))))
            qFatal("cannot connect to the signals of %s", qPrintable(_path));
    }
    ~BusPeer() override { leaveBus(*this, _bus); }
    Q_DISABLE_COPY_MOVE(BusPeer)

    /// Calls a method of the interface. Returns the answer, which may be an error.
    [[nodiscard]] QDBusMessage ask(const QString &method, const QVariantList &arguments = {})
    {
        return ask(_interface, method, arguments);
    }

    /// Calls a method and waits until it has been carried out.
    void tell(const QString &method, const QVariantList &arguments = {})
    {
        const QDBusMessage answer = ask(method, arguments);
        if (answer.type() != QDBusMessage::ReplyMessage)
            qFatal("%s: %s", qPrintable(method), qPrintable(answer.errorMessage()));
    }

    [[nodiscard]] QVariant property(const QString &name)
    {
        const QDBusMessage answer = ask(QStringLiteral("org.freedesktop.DBus.Properties"),
                                        QStringLiteral("Get"), {_interface, name});
        return answer.type() == QDBusMessage::ReplyMessage
                   ? answer.arguments().constFirst().value<QDBusVariant>().variant()
                   : QVariant();
    }

    /// The signals received since the last call, in order.
    [[nodiscard]] QList<QDBusMessage> takeHeard()
    {
        // Lets the program send what it has queued.
        QCoreApplication::processEvents();
        // The answer to this call arrives after all signals sent before it.
        static_cast<void>(property(QStringLiteral("Version")));
        QCoreApplication::processEvents();
        return std::exchange(_heard, {});
    }

    /// The names of the signals received since the last call, sorted.
    [[nodiscard]] QStringList takeNames()
    {
        QStringList names;
        for (const QDBusMessage &signal : takeHeard())
            names << signal.member();
        names.sort();
        return names;
    }

    [[nodiscard]] bool hasHeardSomething() const { return !_heard.isEmpty(); }

private Q_SLOTS:
    void hear(const QDBusMessage &signal) { _heard << signal; }

private:
    QDBusMessage ask(const QString &interface, const QString &method, const QVariantList &arguments)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QDBusConnection::sessionBus().baseService(), _path, interface, method);
        call.setArguments(arguments);
        const QDBusPendingCall pending = _bus.asyncCall(call);
        if (!QTest::qWaitFor([&] { return pending.isFinished(); }))
            qFatal("no answer to %s", qPrintable(method));
        return pending.reply();
    }

    QDBusConnection _bus;
    QString _path;
    QString _interface;
    QList<QDBusMessage> _heard;
};
