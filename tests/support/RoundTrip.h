#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

/// Waits until all messages between the program, which runs in this process, and the owner of a
/// name on the session bus have arrived and have been answered.
///
/// The bus keeps messages in order: a ping arrives after all earlier calls of the program, and its
/// answer after all earlier messages of the owner. Each answer may lead to another call, so there
/// are more pings than the longest exchange has messages.
inline void settleWith(const QString &name)
{
    constexpr int kPings = 8;
    constexpr std::chrono::seconds kLongestWait{5};
    for (int i = 0; i < kPings; ++i) {
        const QDBusMessage ping = QDBusMessage::createMethodCall(
            name, QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.Peer"),
            QStringLiteral("Ping"));
        const QDBusPendingCallWatcher answer(QDBusConnection::sessionBus().asyncCall(ping));
        QEventLoop loop;
        QObject::connect(&answer, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
        loop.exec();
        if (!answer.isFinished() || answer.isError())
            qFatal("%s does not answer", qPrintable(name));
    }
}

/// The same for messages between the program and the bus itself.
inline void settleWithBus()
{
    settleWith(QStringLiteral("org.freedesktop.DBus"));
}
