#pragma once

#include "platform/StatusItem.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

class BusNameWatch;
class DBusMenu;
class StatusNotifierItem;
class TrayIcon;

/// A status item of the freedesktop.org desktops: over the session bus while a
/// StatusNotifierWatcher runs there, else as a picture in the X tray.
///
/// The item is registered with the watcher only while it shows something. The watcher may appear
/// and vanish at any time. Calls never wait for their answers, so a bus or a watcher that is
/// missing, slow or dead does not hold up the program. Changes are collected and sent together in
/// the next turn of the event loop.
class FreedesktopStatusItem final : public QObject, public StatusItem
{
    Q_OBJECT

public:
    FreedesktopStatusItem();
    ~FreedesktopStatusItem() override;

protected:
    void changed() override;

private:
    void start();
    void joinBus();
    void askForWatcher();
    void watcherChanged(bool takenOver);
    void watcherAppeared();
    void watcherVanished();
    void publish();
    [[nodiscard]] QString toolTip();
    void registerOnce();
    void unregisterLater();
    void unregister();

    std::unique_ptr<TrayIcon> _tray;
    std::unique_ptr<StatusNotifierItem> _notifier;
    std::unique_ptr<DBusMenu> _dbusMenu;
    std::unique_ptr<BusNameWatch> _watch;
    /// Whether a watcher runs; unknown until the bus has answered.
    std::optional<bool> _isWatched;
    bool _isRegistered = false;
    /// Counts the requests to unregister and to register; only the latest is carried out.
    int _request = 0;
    /// The tooltip, which rests while the list is in view.
    QString _toolTip;
    QTimer _publishTimer;
};
