#include "base/Mnemonics.h"

QString Mnemonics::escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString Mnemonics::shown(const QString &text)
{
    QString shown;
    bool isMarked = false;
    for (const QChar character : text) {
        isMarked = character == QLatin1Char('&') && !isMarked;
        if (!isMarked)
            shown += character;
    }
    return shown;
}
