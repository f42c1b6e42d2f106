#include "rules/NotificationText.h"

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

bool isControl(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QString shortened(QString text)
{
    if (text.size() <= kLongestLine)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(kLongestLine);
    qsizetype end = finder.isAtBoundary() ? kLongestLine : finder.toPreviousBoundary();
    if (end < kLongestLine - kLongestCharacter) {
        end = kLongestLine;
        if (text.at(end).isLowSurrogate())
            --end;
    }
    text.truncate(end);
    return text + QChar(0x2026);
}
} // namespace

QString NotificationText::line(const QString &text)
{
    QString line;
    // Skip most of what shortened() would cut off anyway.
    for (const QChar character : QStringView(text).left(4 * kLongestLine)) {
        if (!turnsDirection(character))
            line += isControl(character) ? QLatin1Char(' ') : character;
    }
    return shortened(line.trimmed());
}
