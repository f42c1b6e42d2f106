#include "rules/NotificationText.h"

#include "rules/OneLine.h"

#include <QTextBoundaryFinder>

namespace
{
/// In UTF-16 units: about two lines of most notifications.
constexpr qsizetype kLongestLine = 100;
/// Longest character that is never cut, in UTF-16 units. Any number of marks may follow a base.
constexpr qsizetype kLongestCharacter = 24;

/// True for embeddings, overrides, isolates and their ends.
bool turnsDirection(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

QString shortened(const QString &text)
{
    if (text.size() <= kLongestLine)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(kLongestLine);
    const qsizetype end = finder.isAtBoundary() ? kLongestLine : finder.toPreviousBoundary();
    const bool isEndless = end < kLongestLine - kLongestCharacter;
    return (isEndless ? OneLine::beginning(text, kLongestLine) : text.left(end)) + QChar(0x2026);
}
} // namespace

QString NotificationText::line(const QString &text)
{
    // Skip most of what shortened() would cut off anyway.
    QString line = text.left(4 * kLongestLine);
    line.removeIf(turnsDirection);
    return shortened(OneLine::of(line).trimmed());
}
