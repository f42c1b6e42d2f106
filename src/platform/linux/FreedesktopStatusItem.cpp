#include "platform/linux/FreedesktopStatusItem.h"

#include "platform/TrayIcon.h"
#include "platform/linux/DBusMenu.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/StatusNotifierItem.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace
{
const QString kItemPath = QStringLiteral("/StatusNotifierItem");
const QString kMenuPath = QStringLiteral("/StatusNotifierItem/Menu");
const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
constexpr auto kExported = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                           QDBusConnection::ExportAllProperties;

QDBusMessage registration()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(kWatcher, QStringLiteral("/StatusNotifierWatcher"), kWatcher,
                                       QStringLiteral("RegisterStatusNotifierItem"));
    // The name that the bus has given us; the path is the one that watchers look at.
    call.setArguments({QDBusConnection::sessionBus().baseService()});
    call.setAutoStartService(false);
    return call;
}
} // namespace

FreedesktopStatusItem::FreedesktopStatusItem() :
    _tray(std::make_unique<TrayIcon>(*this)),
    _notifier(std::make_unique<StatusNotifierItem>(
        kMenuPath, [this] { _tray->press(); }, [this] { _tray->openMenu(); })),
    _dbusMenu(std::make_unique<DBusMenu>([this] { changed(); })),
    _watcher(std::make_unique<QDBusServiceWatcher>())
{
    _publishTimer.setSingleShot(true);
    _publishTimer.setInterval(0);
    connect(&_publishTimer, &QTimer::timeout, this, &FreedesktopStatusItem::publish);
    connect(_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            &FreedesktopStatusItem::watcherChanged);
    // The first window comes first, the bus when the event loop has come round.
    connect(&_publishTimer, &QTimer::timeout, this, &FreedesktopStatusItem::start,
            Qt::SingleShotConnection);
    _publishTimer.start();
}

FreedesktopStatusItem::~FreedesktopStatusItem() = default;

void FreedesktopStatusItem::changed()
{
    _publishTimer.start();
}

void FreedesktopStatusItem::start()
{
    if (!SessionBus::isPresent() || !QDBusConnection::sessionBus().isConnected()) {
        watcherVanished();
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(kItemPath, _notifier.get(), kExported);
    bus.registerObject(kMenuPath, _dbusMenu.get(), kExported);
    _watcher->setConnection(bus);
    _watcher->addWatchedService(kWatcher);
    askForWatcher();
}

void FreedesktopStatusItem::askForWatcher()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question.setArguments({kWatcher});
    auto *call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, call, &QObject::deleteLater);
    connect(call, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *answer) {
                const QDBusPendingReply<bool> hasOwner = *answer;
                // It may have come or gone while the question was under way. A bus that gives no
                // answer has no panels either.
                if (_isWatched || !hasOwner.isValid())
                    return;
                if (hasOwner.value())
                    watcherAppeared();
                else
                    watcherVanished();
            });
}

void FreedesktopStatusItem::watcherChanged(const QString & /*name*/, const QString &oldOwner,
                                           const QString &newOwner)
{
    if (newOwner.isEmpty()) {
        watcherVanished();
        return;
    }
    // One that has waited for the other to go takes its place without a moment between them.
    if (!oldOwner.isEmpty())
        _dbusMenu->forgetPanel();
    watcherAppeared();
}

void FreedesktopStatusItem::watcherAppeared()
{
    _isWatched = true;
    publish();
    QDBusConnection::sessionBus().asyncCall(registration());
}

void FreedesktopStatusItem::watcherVanished()
{
    _isWatched = false;
    _dbusMenu->forgetPanel();
    // Where there are no X windows, no tray takes one in.
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        // The bus has just spoken.
        _tray->prepare();
    }
    publish();
}

void FreedesktopStatusItem::publish()
{
    if (!_isWatched)
        return;
    const auto icon = StatusIcon::of(image(), attributedTitle(), QApplication::palette());
    if (*_isWatched) {
        _tray->hide();
        // A menu that is open is there until it closes.
        _dbusMenu->setMenu(menu());
        _notifier->show({icon, attributedTitle().text, menu() != nullptr || _dbusMenu->isOpen()});
    } else if (isEmpty()) {
        _tray->hide();
    } else {
        _tray->show(icon, titleWithProgram(attributedTitle().text));
    }
}
