#pragma once

#include "platform/StatusItem.h"
#include "platform/TrayIcon.h"

#include <QObject>
#include <QTimer>

/// A status item in the system tray; without a tray it is not visible. Changes are collected and
/// shown together in the next turn of the event loop.
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
