#include "support/TimerFixture.h"

void TimerFixture::set(const char *key, const QVariant &value)
{
    defaults.setObject(value, QString::fromLatin1(key));
    NotificationCenter::defaultCenter().postNotificationName(
        QStringLiteral("prefsChangedNotification"));
}
