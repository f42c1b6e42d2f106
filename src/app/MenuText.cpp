#include "app/MenuText.h"

namespace
{
/// So many characters from the beginning, or one less where the last would be half of a pair.
QString beginning(const QString &text, qsizetype count)
{
    return text.left(text.at(count - 1).isHighSurrogate() ? count - 1 : count);
}

/// So many characters at the end, likewise.
QString ending(const QString &text, qsizetype count)
{
    return text.right(text.at(text.length() - count).isLowSurrogate() ? count - 1 : count);
}
} // namespace

QString menuText(const QString &text)
{
    // Wider than this, a menu would fill the screen.
    constexpr int mostCharacters = 80;
    QString shown = text.simplified();
    if (shown.length() > mostCharacters)
        shown = beginning(shown, mostCharacters / 2) + QChar(0x2026) +
                ending(shown, mostCharacters / 2);
    return shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
}
