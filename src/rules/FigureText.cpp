#include "rules/FigureText.h"

#include "base/SinglePrecision.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{
/// More characters than any number needs; what is pasted may have millions.
constexpr qsizetype kLongestNumber = 100;

/// Any float can be told from its neighbours by so many significant digits.
constexpr int kMostDigits = 9;

/// The text as a number with the locale's own marks.
std::optional<double> strictNumberIn(const QString &number, const QLocale &locale)
{
    bool valid = false;
    const double value = locale.toDouble(number, &valid);
    // "inf" and "nan" are words.
    if (!valid || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<double> numberIn(const QString &text, const QLocale &locale)
{
    // Some locales do not know the small e.
    QString number = text;
    number.replace(QLatin1Char('e'), QLatin1Char('E'));
    if (const std::optional<double> value = strictNumberIn(number, locale))
        return value;
    // The other decimal mark, as it is on the key pad or in a recipe from elsewhere. To leave it
    // out would make 125 of 12.5.
    for (const char mark : {'.', ','}) {
        if (number.count(QLatin1Char(mark)) == 1) {
            QString own = number;
            own.replace(QLatin1Char(mark), locale.decimalPoint());
            if (own.count(locale.decimalPoint()) == 1)
                return strictNumberIn(own, locale);
        }
    }
    return std::nullopt;
}

bool canBecomeNumber(const QString &text, const QLocale &locale)
{
    // As many digits as a group has may be missing.
    for (const char *rest : {"", "1", "11", "111"}) {
        if (numberIn(text + QLatin1String(rest), locale))
            return true;
    }
    return false;
}

int digitsThatTell(float number)
{
    int digits = 1;
    while (digits < kMostDigits &&
           QByteArray::number(static_cast<double>(number), 'e', digits - 1).toFloat() != number)
        ++digits;
    return digits;
}

/// The power of ten of the first of so many digits.
int powerOf(double number, int digits)
{
    const QByteArray text = QByteArray::number(number, 'e', digits - 1);
    return text.mid(text.indexOf('e') + 1).toInt();
}
} // namespace

float FigureText::read(const QString &text, const QLocale &locale)
{
    const QString start = text.trimmed().left(kLongestNumber);
    for (qsizetype length = start.size(); length > 0; --length) {
        if (const std::optional<double> number = numberIn(start.first(length), locale))
            return toSinglePrecision(*number);
    }
    return 0.0F;
}

QString FigureText::begun(const QString &text, const QLocale &locale)
{
    QString start = text.left(kLongestNumber);
    while (!start.isEmpty() && !canBecomeNumber(start, locale))
        start.chop(1);
    return start;
}

QString FigureText::write(float number, const QLocale &locale)
{
    // Outside of these powers of ten a plain number would be a row of zeros.
    constexpr int smallest = -6;
    if (number == 0.0F)
        return locale.zeroDigit();
    const auto value = static_cast<double>(number);
    const int digits = digitsThatTell(number);
    const int power = powerOf(value, digits);
    const bool plain = power >= smallest && power < kMostDigits;

    QLocale ungrouped = locale;
    ungrouped.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = plain ? ungrouped.toString(value, 'f', std::max(0, digits - 1 - power))
                         : ungrouped.toString(value, 'e', digits - 1);
    // Signs and the mark of the exponent as they are on every keyboard: those of some locales
    // contain marks that cannot be seen, and would not be understood when read.
    text.replace(locale.exponential(), QLatin1String("E"));
    text.replace(locale.negativeSign(), QLatin1String("-"));
    text.remove(locale.positiveSign());
    return text;
}
