#include "platform/linux/BusConnection.h"

#include "platform/linux/BusProbe.h"
#include "platform/linux/SessionBus.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QPointer>
#include <QRegularExpression>
#include <QThreadPool>

#include <array>
#include <chrono>
#include <utility>

namespace
{
using std::chrono_literals::operator""ms;

/// The pauses before the attempts of a search. A bus does not answer as soon as it has its socket.
constexpr std::array kPauses{20ms, 50ms, 100ms, 200ms, 500ms, 1000ms, 2000ms, 4000ms};

/// The address for a bus that has started anew. The guid in an address is that of the first bus.
QString addressOfNextBus()
{
    static const QRegularExpression guid(QStringLiteral(",guid=[^,;]*"));
    return QString::fromUtf8(SessionBus::address()).remove(guid);
}

/// When the file of the bus's socket was last made or changed; invalid if there is none.
QDateTime changeOfSocket()
{
    const QString file = BusProbe::socketFile(SessionBus::address());
    return file.isEmpty() ? QDateTime() : QFileInfo(file).metadataChangeTime();
}
} // namespace

BusConnection &BusConnection::instance()
{
    static QPointer<BusConnection> instance;
    if (!instance)
        instance = new BusConnection(QCoreApplication::instance());
    return *instance;
}

BusConnection::BusConnection(QObject *parent) : QObject(parent)
{
    _searchTimer.setSingleShot(true);
    connect(&_searchTimer, &QTimer::timeout, this, &BusConnection::knock);
    connect(this, &BusConnection::knocked, this, &BusConnection::handleKnock, Qt::QueuedConnection);
}

BusConnection::~BusConnection() = default;

QDBusConnection BusConnection::current()
{
    if (!_current && SessionBus::isPresent()) {
        // Qt and the program share the first connection.
        use(QDBusConnection::sessionBus());
        if (!isConnected())
            watchSocket();
    }
    return _current.value_or(QDBusConnection(QString()));
}

bool BusConnection::isPossible()
{
    if (!SessionBus::isPresent())
        return false;
    const bool possible = current().isConnected();
    if (!possible)
        search();
    return possible;
}

void BusConnection::use(const QDBusConnection &connection)
{
    _current = connection;
    // The library sends this signal itself.
    _current->connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                      QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                      this, SLOT(lose()));
}

void BusConnection::lose()
{
    if (isConnected())
        return;
    Q_EMIT lost();
    _current->unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    watchSocket();
    search();
}

void BusConnection::watchSocket()
{
    _socketChange = changeOfSocket();
    const QString file = BusProbe::socketFile(SessionBus::address());
    if (file.isEmpty())
        return;
    _socketWatch = std::make_unique<QFileSystemWatcher>();
    _socketWatch->addPath(QFileInfo(file).path());
    connect(_socketWatch.get(), &QFileSystemWatcher::directoryChanged, this,
            &BusConnection::socketChanged);
}

void BusConnection::socketChanged()
{
    const QDateTime change = changeOfSocket();
    if (change == std::exchange(_socketChange, change) || !change.isValid())
        return;
    _searchTimer.stop();
    search();
}

void BusConnection::search()
{
    if (_searchTimer.isActive() || isConnected())
        return;
    _attempt = 0;
    _searchTimer.start(kPauses.front());
}

void BusConnection::knock()
{
    if (std::exchange(_knocking, true))
        return;
    // The application waits for this thread before it destroys us.
    QThreadPool::globalInstance()->start(
        [this, address = SessionBus::address()] { Q_EMIT knocked(BusProbe::answers(address)); });
}

void BusConnection::handleKnock(bool answered)
{
    _knocking = false;
    if (answered)
        reconnect();
    if (isConnected()) {
        _searchTimer.stop();
        _socketWatch.reset();
        Q_EMIT found();
    } else if (++_attempt < kPauses.size()) {
        _searchTimer.start(kPauses.at(_attempt));
    }
}

void BusConnection::reconnect()
{
    const QString name = QStringLiteral("session bus %1").arg(++_connections);
    const QDBusConnection bus = QDBusConnection::connectToBus(addressOfNextBus(), name);
    if (bus.isConnected()) {
        // Qt goes on to use the first one.
        if (_current->name() != QDBusConnection::sessionBus().name())
            QDBusConnection::disconnectFromBus(_current->name());
        use(bus);
    } else {
        QDBusConnection::disconnectFromBus(name);
    }
}
