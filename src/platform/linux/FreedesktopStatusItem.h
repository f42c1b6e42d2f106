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

/// A status item as the desktops of freedesktop.org show one: over the session bus where somebody
/// watches for such items, else as a picture in the tray.
///
/// The watcher may come, go and come back at any time. Calls are sent and never waited for; a bus
/// or a watcher that is missing, slow or dead changes nothing else. Changes go out together when
/// the event loop comes round.
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
    void askForWatcher();
    void watcherChanged(bool takenOver);
    void watcherAppeared();
    void watcherVanished();
    void publish();

    std::unique_ptr<TrayIcon> _tray;
    std::unique_ptr<StatusNotifierItem> _notifier;
    std::unique_ptr<DBusMenu> _dbusMenu;
    std::unique_ptr<BusNameWatch> _watch;
    /// Whether somebody watches for items; unknown until the bus has answered.
    std::optional<bool> _isWatched;
    QTimer _publishTimer;
};
