#pragma once

#include "platform/StatusIcon.h"
#include "platform/StatusPopup.h"

#include <QObject>
#include <QString>

#include <memory>

class QSystemTrayIcon;
class StatusItem;

/// The status item as an icon in the system tray, with the title as its tooltip.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    /// Passes presses on to this item.
    explicit TrayIcon(StatusItem &item);
    ~TrayIcon() override;

    /// Makes the icon; does nothing if that is done. This may wait for the session bus, so call it
    /// when the bus has just answered or is known to be missing.
    void prepare();

    /// Shows this picture and tooltip; does nothing before prepare().
    void show(const StatusIcon &icon, const QString &toolTip);
    void hide();

    /// Opens the menu of the item at the pointer; does nothing when it has none.
    void openMenu();
    /// Handles a left click: opens the menu, or without one runs the item's action.
    void press();

private:
    StatusItem &_item;
    std::unique_ptr<QSystemTrayIcon> _tray;
    std::unique_ptr<StatusPopup> _popup;
    StatusIcon _shown;
};
