#include "platform/generic/TrayStatusItem.h"

#include <QApplication>
#include <QSystemTrayIcon>

TrayStatusItem::TrayStatusItem()
{
    _publishTimer.setSingleShot(true);
    _publishTimer.setInterval(0);
    connect(&_publishTimer, &QTimer::timeout, this, &TrayStatusItem::publish);
}

void TrayStatusItem::changed()
{
    _publishTimer.start();
}

void TrayStatusItem::publish()
{
    if (isEmpty()) {
        _tray.hide();
        return;
    }
    if (QSystemTrayIcon::isSystemTrayAvailable())
        _tray.prepare();
    _tray.show(StatusIcon::of(image(), attributedTitle(), QApplication::palette()),
               titleWithProgram(attributedTitle().text));
}
