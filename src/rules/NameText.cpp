#include "rules/NameText.h"

#include <algorithm>

namespace
{
/// The first characters, one less if the last one would be half of a surrogate pair.
QString beginning(const QString &text, qsizetype count)
{
    return text.left(text.at(count - 1).isHighSurrogate() ? count - 1 : count);
}

/// The last characters, one less if the first one would be half of a surrogate pair.
QString ending(const QString &text, qsizetype count)
{
    return text.right(text.at(text.length() - count).isLowSurrogate() ? count - 1 : count);
}
/// True for ends of lines and paragraphs, tabs and other control characters.
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
    // A longer name would make a menu as wide as the screen.
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
    // Qt replaces [*] by a mark for unsaved changes, and [*][*] by a literal [*].
    return title.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}
