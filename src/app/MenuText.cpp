#include "app/MenuText.h"

#include "timer/NameText.h"

QString menuText(const QString &text)
{
    return NameText::inOneLine(text).replace(QLatin1Char('&'), QStringLiteral("&&"));
}
