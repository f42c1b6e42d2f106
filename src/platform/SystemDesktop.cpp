#include "platform/SystemDesktop.h"

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

void SystemDesktop::openUrl(const QUrl &url)
{
    QDesktopServices::openUrl(url);
}
