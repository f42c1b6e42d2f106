#include "rules/NameText.h"

#include <algorithm>

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
/// True for ends of lines and paragraphs, tabs, and whatever else is no sign to be seen.
bool breaksLine(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}
} // namespace

QString NameText::inOneLine(const QString &name)
{
    // Wider than this, a menu would fill the screen.
    constexpr int mostCharacters = 80;
    QString line = name;
    if (std::ranges::any_of(line, breaksLine)) {
        std::ranges::replace_if(line, breaksLine, QLatin1Char(' '));
        line = line.simplified();
    }
    if (line.length() <= mostCharacters)
        return line;
    return beginning(line, mostCharacters / 2) + QChar(0x2026) + ending(line, mostCharacters / 2);
}

QString NameText::asWindowTitle(const QString &name)
{
    constexpr qsizetype mostCharacters = 500;
    QString title = name.length() > mostCharacters ? beginning(name, mostCharacters) : name;
    std::ranges::replace_if(title, breaksLine, QLatin1Char(' '));
    // Qt puts a mark for unsaved changes there.
    return title.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}
