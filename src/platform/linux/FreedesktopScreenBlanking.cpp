#include "platform/linux/FreedesktopScreenBlanking.h"

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

/// Somebody who can keep the screen from going blank.
struct Way
{
    QString service;
    QString path;
    QString interface;
    /// The arguments of Inhibit.
    QVariantList (*arguments)(const QString &reason);
    /// The signature of the answer to it.
    QString granted;
    /// What gives back what an answer has granted.
    QDBusMessage (*giveBack)(const Way &way, const QDBusMessage &answer);
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

// To whoever has granted it; a number means nothing to a service that was restarted.

QDBusMessage uninhibit(const Way &way, const QDBusMessage &answer)
{
    QDBusMessage call = QDBusMessage::createMethodCall(answer.service(), way.path, way.interface,
                                                       QStringLiteral("UnInhibit"));
    call.setArguments(answer.arguments());
    return call;
}

QDBusMessage closeRequest(const Way & /*way*/, const QDBusMessage &answer)
{
    return QDBusMessage::createMethodCall(
        answer.service(), answer.arguments().constFirst().value<QDBusObjectPath>().path(),
        QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
}

/// In the order in which they are tried.
const std::array kWays{
    Way{kScreenSaver, QStringLiteral("/org/freedesktop/ScreenSaver"), kScreenSaver, nameAndReason,
        QStringLiteral("u"), uninhibit},
    Way{kScreenSaver, QStringLiteral("/ScreenSaver"), kScreenSaver, nameAndReason,
        QStringLiteral("u"), uninhibit},
    Way{kPortal, QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Inhibit"), portalArguments, QStringLiteral("o"),
        closeRequest},
};
} // namespace

FreedesktopScreenBlanking::FreedesktopScreenBlanking() = default;

FreedesktopScreenBlanking::~FreedesktopScreenBlanking() = default;

void FreedesktopScreenBlanking::begin(const QString &reason)
{
    _wanted = true;
    _reason = reason;
    XScreenSaver::suspend(true);
    if (!BusQuestion::isPossible())
        return;
    watch();
    // An answer that is still under way comes just as well.
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

void FreedesktopScreenBlanking::ask(std::size_t way, Start start)
{
    const Way &asked = kWays[way];
    QDBusMessage question = QDBusMessage::createMethodCall(
        asked.service, asked.path, asked.interface, QStringLiteral("Inhibit"));
    question.setArguments(asked.arguments(_reason));
    question.setAutoStartService(start == Start::IfNeeded);
    _asking = true;
    _appeared = false;
    // What a frozen service grants late must still be given back.
    BusQuestion::ask(question, *this, BusQuestion::kWithoutEnd,
                     [this, way](const QDBusMessage &answer) { answered(way, answer); });
}

void FreedesktopScreenBlanking::answered(std::size_t way, const QDBusMessage &answer)
{
    _asking = false;
    const Way &asked = kWays[way];
    if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == asked.granted) {
        _return = std::make_unique<QDBusMessage>(asked.giveBack(asked, answer));
        if (!_wanted)
            giveBack();
    } else if (_wanted && _appeared) {
        ask(0, Start::No);
    } else if (_wanted && way + 1 < std::size(kWays)) {
        const bool another = kWays[way + 1].service != asked.service;
        ask(way + 1, another ? Start::IfNeeded : Start::No);
    }
}

void FreedesktopScreenBlanking::screenSaverAppeared()
{
    // One that is starting because it was asked answers by itself.
    _appeared = _asking;
    if (!_wanted || _asking)
        return;
    giveBack();
    ask(0, Start::No);
}

void FreedesktopScreenBlanking::giveBack()
{
    if (_return)
        QDBusConnection::sessionBus().asyncCall(*std::exchange(_return, nullptr));
}
