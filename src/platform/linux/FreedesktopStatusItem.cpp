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

#include <utility>

namespace
{
const QString kItemPath = QStringLiteral("/StatusNotifierItem");
const QString kMenuPath = QStringLiteral("/StatusNotifierItem/Menu");
const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
constexpr auto kExported = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                           QDBusConnection::ExportAllProperties;

/// A name on the bus for the item alone. Some panels heed no status and show an item until its name
/// has gone. Made from our unique name, so that no other process has it.
QString itemName()
{
    const QString number = BusConnection::instance().current().baseService().mid(1);
    return QGuiApplication::desktopFileName() + QStringLiteral(".StatusItem-") +
           QString(number).replace(QLatin1Char('.'), QLatin1Char('-'));
}

QDBusMessage callOfBus(const QString &method, const QVariantList &arguments)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage call =
        QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage callOfWatcher(const QString &interface, const QString &method,
                           const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        kWatcher, QStringLiteral("/StatusNotifierWatcher"), interface, method);
    call.setArguments(arguments);
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
    // Panels that read the path of the menu only once have the placeholder, and ask for lines
    // there.
    bus.registerObject(StatusNotifierItem::kNoMenuPath, _dbusMenu.get(), kExported);
    _watch->watch(kWatcher);
    _isWatched.reset();
    askForWatcher();
}

void FreedesktopStatusItem::askForWatcher()
{
    BusQuestion::ask(callOfBus(QStringLiteral("NameHasOwner"), {kWatcher}), *this,
                     BusQuestion::kDefaultTimeout, [this](const QDBusMessage &answer) {
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
    unregister();
    publish();
}

void FreedesktopStatusItem::watcherVanished()
{
    _isWatched = false;
    unregister();
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
        _notifier->show(
            {icon, attributedTitle().text, toolTip(), menu() != nullptr || _dbusMenu->isOpen()});
        if (isEmpty())
            unregisterLater();
        else
            registerOnce();
    } else if (isEmpty()) {
        _tray->hide();
    } else {
        _tray->show(icon, titleWithProgram(attributedTitle().text));
    }
}

QString FreedesktopStatusItem::toolTip()
{
    // Panels show a tooltip again when it changes, even over the list.
    if (!_dbusMenu->isInView())
        _toolTip = titleWithProgram(attributedTitle().text);
    return _toolTip;
}

void FreedesktopStatusItem::registerOnce()
{
    ++_request;
    if (std::exchange(_isRegistered, true))
        return;
    constexpr uint doNotQueue = 4;
    const QString name = itemName();
    QDBusConnection bus = BusConnection::instance().current();
    bus.asyncCall(callOfBus(QStringLiteral("RequestName"), {name, doNotQueue}));
    // Watchers look for the item at the usual path.
    bus.asyncCall(callOfWatcher(kWatcher, QStringLiteral("RegisterStatusNotifierItem"), {name}));
}

void FreedesktopStatusItem::unregisterLater()
{
    if (!_isRegistered)
        return;
    // The panel of Xfce crashes if the item goes while its properties are being read, and our
    // signals make the panel read them. Once the watcher has answered, they have been read.
    const auto answered = [this, request = ++_request](const QDBusMessage & /*answer*/) {
        if (request == _request)
            unregister();
    };
    const QDBusMessage question =
        callOfWatcher(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                      {kWatcher, QStringLiteral("ProtocolVersion")});
    BusQuestion::ask(question, *this, BusQuestion::kNoTimeout, answered);
}

void FreedesktopStatusItem::unregister()
{
    if (std::exchange(_isRegistered, false))
        BusConnection::instance().current().asyncCall(
            callOfBus(QStringLiteral("ReleaseName"), {itemName()}));
}
