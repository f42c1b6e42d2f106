#include "support/TestServices.h"

#include "app/WufferApplication.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QCoreApplication>

TestServices::TestServices() : defaults(settingsPath()) {}

TestServices::~TestServices()
{
    for (Wuffer *timer : WufferApplication::getWuffers())
        timer->window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString TestServices::settingsPath() const
{
    return _folder.filePath(QStringLiteral("settings.json"));
}
