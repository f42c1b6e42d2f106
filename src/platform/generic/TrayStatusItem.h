#pragma once

#include "platform/StatusItem.h"
#include "platform/TrayIcon.h"

#include <QObject>
#include <QTimer>

/// A status item in the tray of the system. Where there is no tray it does not show. Changes go out
/// together when the event loop comes round.
class TrayStatusItem final : public QObject, public StatusItem
{
    Q_OBJECT

public:
    TrayStatusItem();

protected:
    void changed() override;

private:
    void publish();

    TrayIcon _tray{*this};
    QTimer _publishTimer;
};
