#include "platform/linux/FreedesktopScreenBlanking.h"

#include "platform/linux/BusConnection.h"
#include "platform/linux/BusNameWatch.h"
#include "platform/linux/BusQuestion.h"
#include "platform/linux/XScreenSaver.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QGuiApplication>
#include <QVariantMap>

#include <array>
#include <utility>

namespace
{
const QString kScreenSaver = QStringLiteral("org.freedesktop.ScreenSaver");
const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");

/// A service that can keep the screen from going blank.
struct Inhibitor
{
    QString service;
    QString path;
    QString interface;
    /// The arguments of Inhibit.
    QVariantList (*arguments)(const QString &reason);
    /// The signature of an answer that grants the request.
    QString granted;
    /// Makes the call that returns what the answer has granted.
    QDBusMessage (*giveBack)(const Inhibitor &inhibitor, const QDBusMessage &answer);
};

QVariantList nameAndReason(const QString &reason)
{
    return {QGuiApplication::applicationDisplayName(), reason};
}

QVariantList portalArguments(const QString &reason)
{
    constexpr uint idle = 8;
    const QString noWindow;
    return {noWindow, idle, QVariantMap{{QStringLiteral("reason"), reason}}};
}

// Both calls go to the unique name that has granted the request, because a restarted service does
// not know the grant.

QDBusMessage uninhibit(const Inhibitor &inhibitor, const QDBusMessage &answer)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        answer.service(), inhibitor.path, inhibitor.interface, QStringLiteral("UnInhibit"));
    call.setArguments(answer.arguments());
    return call;
}

QDBusMessage closeRequest(const Inhibitor & /*inhibitor*/, const QDBusMessage &answer)
{
    return QDBusMessage::createMethodCall(
        answer.service(), answer.arguments().constFirst().value<QDBusObjectPath>().path(),
        QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
}

/// In the order in which they are tried.
const std::array kInhibitors{
    Inhibitor{kScreenSaver, QStringLiteral("/org/freedesktop/ScreenSaver"), kScreenSaver,
              nameAndReason, QStringLiteral("u"), uninhibit},
    Inhibitor{kScreenSaver, QStringLiteral("/ScreenSaver"), kScreenSaver, nameAndReason,
              QStringLiteral("u"), uninhibit},
    Inhibitor{kPortal, QStringLiteral("/org/freedesktop/portal/desktop"),
              QStringLiteral("org.freedesktop.portal.Inhibit"), portalArguments,
              QStringLiteral("o"), closeRequest},
};
} // namespace

FreedesktopScreenBlanking::FreedesktopScreenBlanking()
{
    const BusConnection &bus = BusConnection::instance();
    connect(&bus, &BusConnection::lost, this, [this] { _returningCall.reset(); });
    connect(&bus, &BusConnection::found, this, &FreedesktopScreenBlanking::busFound);
}

FreedesktopScreenBlanking::~FreedesktopScreenBlanking() = default;

void FreedesktopScreenBlanking::begin(const QString &reason)
{
    _wanted = true;
    _reason = reason;
    XScreenSaver::suspend(true);
    if (!BusQuestion::isPossible())
        return;
    watch();
    // The answer to a pending call will do.
    if (!_asking)
        ask(0, Start::IfNeeded);
}

void FreedesktopScreenBlanking::end()
{
    _wanted = false;
    XScreenSaver::suspend(false);
    giveBack();
}

void FreedesktopScreenBlanking::watch()
{
    if (_watch)
        return;
    _watch = std::make_unique<BusNameWatch>();
    _watch->watch(kScreenSaver);
    connect(_watch.get(), &BusNameWatch::appeared, this,
            &FreedesktopScreenBlanking::screenSaverAppeared);
}

void FreedesktopScreenBlanking::ask(std::size_t inhibitor, Start start)
{
    const Inhibitor &asked = kInhibitors[inhibitor];
    QDBusMessage question = QDBusMessage::createMethodCall(
        asked.service, asked.path, asked.interface, QStringLiteral("Inhibit"));
    question.setArguments(asked.arguments(_reason));
    question.setAutoStartService(start == Start::IfNeeded);
    _asking = true;
    _appeared = false;
    // A grant that a frozen service sends late must still be returned.
    BusQuestion::ask(
        question, *this, BusQuestion::kNoTimeout,
        [this, inhibitor](const QDBusMessage &answer) { answered(inhibitor, answer); });
}

void FreedesktopScreenBlanking::answered(std::size_t inhibitor, const QDBusMessage &answer)
{
    _asking = false;
    const Inhibitor &asked = kInhibitors[inhibitor];
    if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == asked.granted) {
        _returningCall = std::make_unique<QDBusMessage>(asked.giveBack(asked, answer));
        if (!_wanted)
            giveBack();
    } else if (_wanted && _appeared) {
        ask(0, Start::No);
    } else if (_wanted && inhibitor + 1 < std::size(kInhibitors)) {
        const bool another = kInhibitors[inhibitor + 1].service != asked.service;
        ask(inhibitor + 1, another ? Start::IfNeeded : Start::No);
    }
}

void FreedesktopScreenBlanking::screenSaverAppeared()
{
    // If the pending call has started this screen saver, it will answer that call.
    _appeared = _asking;
    if (!_wanted || _asking)
        return;
    giveBack();
    ask(0, Start::No);
}

void FreedesktopScreenBlanking::busFound()
{
    // The pending call was made on the old bus and is about to fail.
    _appeared = _asking;
    if (!_wanted || _asking)
        return;
    watch();
    ask(0, Start::IfNeeded);
}

void FreedesktopScreenBlanking::giveBack()
{
    if (_returningCall)
        BusConnection::instance().current().asyncCall(*std::exchange(_returningCall, nullptr));
}
