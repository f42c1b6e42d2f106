#include "rules/NameText.h"

#include "rules/OneLine.h"

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
