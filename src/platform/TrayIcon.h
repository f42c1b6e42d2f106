#pragma once

#include "platform/StatusIcon.h"
#include "platform/StatusPopup.h"

#include <QObject>
#include <QString>

#include <memory>

class QSystemTrayIcon;
class StatusItem;

/// The status item in the tray of the system, as one of X11 that takes windows in: the picture,
/// with the title as its tooltip. It is there only while it has been given something to show.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    /// Stands for this item, which a press is passed on to.
    explicit TrayIcon(StatusItem &item);
    ~TrayIcon() override;

    /// Makes itself ready to be shown. This may wait for the session bus, so call it when that
    /// has just shown that it answers, or that it is missing. As often as you like.
    void prepare();

    /// Shows the item as it is now; does nothing before it is ready.
    void show(const StatusIcon &icon, const QString &toolTip);
    void hide();

    /// Opens the menu of the item at the pointer; does nothing when it has none.
    void openMenu();
    /// What a press with the left button does: opens the menu, or sends the item's action.
    void press();

private:
    StatusItem &_item;
    std::unique_ptr<QSystemTrayIcon> _tray;
    std::unique_ptr<StatusPopup> _popup;
    StatusIcon _shown;
};
