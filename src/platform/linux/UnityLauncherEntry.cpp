#include "platform/linux/UnityLauncherEntry.h"

#include "platform/linux/BusConnection.h"
#include "platform/linux/BusQuestion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

namespace
{
const QString kReader = QStringLiteral("com.canonical.Unity");
/// The least number of seconds between two messages.
constexpr double kPause = 1;

QVariantMap properties(const LauncherState &state)
{
    return {{QStringLiteral("progress"), state.percent.value_or(0) / 100.0},
            {QStringLiteral("progress-visible"), state.percent.has_value()},
            {QStringLiteral("urgent"), state.urgent}};
}
} // namespace

bool UnityLauncherEntry::isRead()
{
    if (!std::exchange(_isLooking, true))
        lookForReader();
    return _isRead;
}

void UnityLauncherEntry::lookForReader()
{
    connect(&_watch, &BusNameWatch::appeared, this, [this] { setRead(true); });
    connect(&_watch, &BusNameWatch::vanished, this, [this] { setRead(false); });
    connect(&BusConnection::instance(), &BusConnection::found, this,
            &UnityLauncherEntry::askForReader);
    _watch.watch(kReader);
    askForReader();
}

void UnityLauncherEntry::askForReader()
{
    if (!BusQuestion::isPossible())
        return;
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question.setArguments({kReader});
    BusQuestion::ask(question, *this, BusQuestion::kDefaultTimeout,
                     [this](const QDBusMessage &answer) {
                         if (answer.arguments().value(0).toBool())
                             setRead(true);
                     });
}

void UnityLauncherEntry::setRead(bool read)
{
    _isRead = read;
    _sent = {};
    if (read)
        becomeRead();
}

void UnityLauncherEntry::show(const LauncherState &state)
{
    _state = state;
    if (!_pause.isValid())
        send();
}

void UnityLauncherEntry::send()
{
    if (!_isRead || _state == _sent)
        return;
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/com/canonical/Unity/LauncherEntry"),
        QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update.setArguments({QString(QStringLiteral("application://%1.desktop"))
                             .arg(QGuiApplication::desktopFileName()),
                         properties(_state)});
    BusConnection::instance().current().send(update);
    _sent = _state;
    _pause.startOnce(kPause);
}
