#include "base/Mnemonics.h"

#include <QRegularExpression>

QString Mnemonics::escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString Mnemonics::shown(const QString &text)
{
    // Languages without Latin letters add the letter to press in parentheses, before an ellipsis.
    static const QRegularExpression added(QStringLiteral("\\s?\\(&[^&]\\)(?=(…|\\.\\.\\.)?:?$)"));
    QString rest = text;
    rest.remove(added);
    QString shown;
    bool isMarked = false;
    for (const QChar character : rest) {
        isMarked = character == QLatin1Char('&') && !isMarked;
        if (!isMarked)
            shown += character;
    }
    return shown;
}
