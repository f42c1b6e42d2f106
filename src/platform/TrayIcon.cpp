#include "platform/TrayIcon.h"

#include "platform/StatusItem.h"

#include <QCursor>
#include <QSystemTrayIcon>
#include <QTextDocument>

TrayIcon::TrayIcon(StatusItem &item) : _item(item) {}

TrayIcon::~TrayIcon() = default;

void TrayIcon::show(const StatusIcon &icon, const QString &toolTip)
{
    if (!_tray)
        return;
    if (icon != _shown) {
        QIcon sizes;
        for (const int size : {16, 22, 24, 32, 44, 48})
            sizes.addPixmap(QPixmap::fromImage(icon.painted(size)));
        _tray->setIcon(sizes);
        _shown = icon;
    }
    // The tooltip is plain text, even where it looks like markup.
    const QString markup = Qt::convertFromPlainText(toolTip);
    if (markup != _tray->toolTip())
        _tray->setToolTip(markup);
    _tray->show();
}

void TrayIcon::hide()
{
    if (_tray)
        _tray->hide();
}

void TrayIcon::openMenu()
{
    if (!_item.menu())
        return;
    if (!_popup)
        _popup = std::make_unique<StatusPopup>();
    _popup->open(*_item.menu(), QCursor::pos());
}

void TrayIcon::press()
{
    if (_item.menu())
        openMenu();
    else
        _item.sendAction();
}

void TrayIcon::prepare()
{
    if (_tray)
        return;
    // Here Qt makes a call on the session bus, if there is one, and waits for the answer.
    _tray = std::make_unique<QSystemTrayIcon>();
    connect(_tray.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // The tray reports the second of two quick presses as a double click.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    press();
                else if (reason == QSystemTrayIcon::Context)
                    openMenu();
            });
}
