#include "app/MenuText.h"

QString menuText(const QString &text)
{
    // Wider than this, a menu would fill the screen.
    constexpr int mostCharacters = 80;
    QString shown = text.simplified();
    if (shown.length() > mostCharacters)
        shown = shown.left(mostCharacters / 2) + QChar(0x2026) + shown.right(mostCharacters / 2);
    return shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
}
