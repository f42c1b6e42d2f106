#include "rules/NameText.h"

#include "rules/OneLine.h"

#include <QList>

#include <algorithm>

namespace
{
bool isWrittenFromRightToLeft(char32_t character)
{
    const QChar::Direction direction = QChar::direction(character);
    return direction == QChar::DirR || direction == QChar::DirAL;
}
} // namespace

QString NameText::inOneLine(const QString &name)
{
    // A longer name would make a menu as wide as the screen.
    constexpr int mostCharacters = 80;
    QString line = OneLine::of(name);
    if (line != name)
        line = line.simplified();
    if (line.length() <= mostCharacters)
        return line;
    return OneLine::beginning(line, mostCharacters / 2) + QChar(0x2026) +
           OneLine::ending(line, mostCharacters / 2);
}

QString NameText::asWindowTitle(const QString &name)
{
    constexpr qsizetype mostCharacters = 500;
    const bool tooLong = name.length() > mostCharacters;
    QString title = OneLine::of(tooLong ? OneLine::beginning(name, mostCharacters) : name);
    // Qt replaces [*] by a mark for unsaved changes, and [*][*] by a literal [*].
    return title.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

QString NameText::isolated(const QString &name)
{
    constexpr QChar beginning(0x2068);
    constexpr QChar end(0x2069);
    const QList<uint> characters = name.toUcs4();
    return std::ranges::any_of(characters, isWrittenFromRightToLeft) ? beginning + name + end
                                                                     : name;
}

QString NameText::isolatedIn(QString text, const QString &name)
{
    const qsizetype place = text.indexOf(name);
    return place < 0 ? text : text.replace(place, name.size(), isolated(name));
}
