#pragma once

#include <QDBusConnection>
#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

class QFileSystemWatcher;

/// The connection of the program to the session bus, which may die and start anew at its address.
///
/// While the bus is missing, a change of its socket's file starts a search: a few attempts that
/// become rarer. A use of the bus starts one, too, because not every address has a file. Otherwise
/// nothing happens. A new bus is first asked on another thread whether it answers. Main thread.
class BusConnection final : public QObject
{
    Q_OBJECT

public:
    /// The connection of this process. The application object owns it.
    [[nodiscard]] static BusConnection &instance();

    ~BusConnection() override;

    /// The connection to the bus of the moment. Connects to the bus, unless there is none.
    [[nodiscard]] QDBusConnection current();

    /// Whether there is a bus for calls. Connects to it, or else looks for it soon.
    [[nodiscard]] bool isPossible();

Q_SIGNALS:
    /// The bus has gone, and with it all names, grants and unfinished calls.
    void lost();
    /// There is a bus again. It knows nothing of the program.
    void found();
    /// Internal; sent on another thread.
    void knocked(bool answered);

private Q_SLOTS:
    void lose();

private:
    explicit BusConnection(QObject *parent);

    void use(const QDBusConnection &connection);
    void watchSocket();
    void socketChanged();
    void search();
    void knock();
    void handleKnock(bool answered);
    void reconnect();
    [[nodiscard]] bool isConnected() const { return _current && _current->isConnected(); }

    std::optional<QDBusConnection> _current;
    QTimer _searchTimer;
    std::size_t _attempt = 0;
    bool _knocking = false;
    int _connections = 0;
    /// Only while the bus is missing.
    std::unique_ptr<QFileSystemWatcher> _socketWatch;
    /// When the socket's file was changed, as far as it is known.
    QDateTime _socketChange;
};
