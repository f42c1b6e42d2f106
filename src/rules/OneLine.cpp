#include "rules/OneLine.h"

#include <algorithm>
#include <utility>

namespace
{
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

QString OneLine::of(QString text)
{
    // Most texts are one line, and stay shared.
    if (std::ranges::any_of(std::as_const(text), breaksLine))
        std::ranges::replace_if(text, breaksLine, QLatin1Char(' '));
    return text;
}

QString OneLine::beginning(const QString &text, qsizetype count)
{
    return text.left(text.at(count - 1).isHighSurrogate() ? count - 1 : count);
}

QString OneLine::ending(const QString &text, qsizetype count)
{
    return text.right(text.at(text.length() - count).isLowSurrogate() ? count - 1 : count);
}
