#include "platform/SystemDesktop.h"

#include "platform/Announcement.h"

#include <QAccessible>
#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

void SystemDesktop::requestUserAttention(QWidget &window)
{
    QApplication::alert(&window);
}

void SystemDesktop::beep()
{
    QApplication::beep();
}

void SystemDesktop::announce(QWidget &window, const QString &text)
{
    // Without an assistive program that listens, an announcement would be made for nothing.
    if (QAccessible::isActive())
        Announcement::say(window, text);
}

void SystemDesktop::openUrl(const QUrl &url)
{
    QDesktopServices::openUrl(url);
}
