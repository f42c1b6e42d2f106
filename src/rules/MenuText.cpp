#include "rules/MenuText.h"

#include "rules/NameText.h"

QString menuText(const QString &text)
{
    return NameText::inOneLine(text).replace(QLatin1Char('&'), QStringLiteral("&&"));
}
