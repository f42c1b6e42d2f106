#include "platform/linux/FreedesktopStatusItem.h"

#include "platform/TrayIcon.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/BusNameWatch.h"
#include "platform/linux/BusQuestion.h"
#include "platform/linux/DBusMenu.h"
#include "platform/linux/StatusNotifierItem.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

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
    // Our unique name; watchers look for the item at the usual path.
    call.setArguments({BusConnection::instance().current().baseService()});
    call.setAutoStartService(false);
    return call;
}
} // namespace

FreedesktopStatusItem::FreedesktopStatusItem() :
    _tray(std::make_unique<TrayIcon>(*this)),
    _notifier(std::make_unique<StatusNotifierItem>(
        kMenuPath, [this] { _tray->press(); }, [this] { _tray->openMenu(); })),
    _dbusMenu(std::make_unique<DBusMenu>([this] { changed(); })),
    _watch(std::make_unique<BusNameWatch>())
{
    _publishTimer.setSingleShot(true);
    _publishTimer.setInterval(0);
    connect(&_publishTimer, &QTimer::timeout, this, &FreedesktopStatusItem::publish);
    connect(_watch.get(), &BusNameWatch::appeared, this, &FreedesktopStatusItem::watcherChanged);
    connect(_watch.get(), &BusNameWatch::vanished, this, &FreedesktopStatusItem::watcherVanished);
    // Connects to the bus when the event loop runs, so as not to delay the first window.
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
    connect(&BusConnection::instance(), &BusConnection::found, this,
            &FreedesktopStatusItem::joinBus);
    if (BusQuestion::isPossible())
        joinBus();
    else
        watcherVanished();
}

void FreedesktopStatusItem::joinBus()
{
    QDBusConnection bus = BusConnection::instance().current();
    bus.registerObject(kItemPath, _notifier.get(), kExported);
    bus.registerObject(kMenuPath, _dbusMenu.get(), kExported);
    _watch->watch(kWatcher);
    _isWatched.reset();
    askForWatcher();
}

void FreedesktopStatusItem::askForWatcher()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question.setArguments({kWatcher});
    BusQuestion::ask(question, *this, BusQuestion::kDefaultTimeout,
                     [this](const QDBusMessage &answer) {
                         const QDBusReply<bool> hasOwner(answer);
                         // If _isWatched is set, the watcher has appeared or vanished since the
                         // question. A bus that does not answer has no panels either.
                         if (_isWatched || !hasOwner.isValid())
                             return;
                         if (hasOwner.value())
                             watcherAppeared();
                         else
                             watcherVanished();
                     });
}

void FreedesktopStatusItem::watcherChanged(bool takenOver)
{
    // A watcher that has queued for the name takes it over without vanished() in between.
    if (takenOver)
        _dbusMenu->forgetPanel();
    watcherAppeared();
}

void FreedesktopStatusItem::watcherAppeared()
{
    _isWatched = true;
    publish();
    BusConnection::instance().current().asyncCall(registration());
}

void FreedesktopStatusItem::watcherVanished()
{
    _isWatched = false;
    _dbusMenu->forgetPanel();
    // Only X11 has a tray that embeds windows.
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        // This may wait for the bus, which has just answered or is missing.
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
        // An open menu stays until the panel closes it.
        _dbusMenu->setMenu(menu());
        _notifier->show({icon, attributedTitle().text, menu() != nullptr || _dbusMenu->isOpen()});
    } else if (isEmpty()) {
        _tray->hide();
    } else {
        _tray->show(icon, titleWithProgram(attributedTitle().text));
    }
}
