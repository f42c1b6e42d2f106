#include "rules/FigureText.h"

#include "base/SinglePrecision.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{
/// More characters than any number needs. Limits the work on a pasted text, which may be huge.
constexpr qsizetype kLongestNumber = 100;

/// This many significant digits distinguish any two floats.
constexpr int kMostDigits = 9;

/// Significant digits of a rounded number, if its whole part does not need more.
constexpr int kRoundedDigits = 5;

/// The number in the text, written with the locale's own marks.
std::optional<double> strictNumberIn(const QString &number, const QLocale &locale)
{
    bool valid = false;
    const double value = locale.toDouble(number, &valid);
    // toDouble() also accepts "inf" and "nan".
    if (!valid || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<double> numberIn(const QString &text, const QLocale &locale)
{
    // Some locales accept only an upper-case E.
    QString number = text;
    number.replace(QLatin1Char('e'), QLatin1Char('E'));
    if (const std::optional<double> value = strictNumberIn(number, locale))
        return value;
    // Accept the other decimal mark too: the keypad may type it, or a recipe from another country
    // contain it. Ignoring it would turn 12.5 into 125.
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
    // After a group separator up to three digits may still be missing.
    for (const char *rest : {"", "1", "11", "111"}) {
        if (numberIn(text + QLatin1String(rest), locale))
            return true;
    }
    return false;
}

/// The number rounded to this many significant digits.
double rounded(double number, int digits)
{
    return QByteArray::number(number, 'e', digits - 1).toDouble();
}

/// The decimal exponent of the number when written with this many significant digits.
int powerOf(double number, int digits)
{
    const QByteArray text = QByteArray::number(number, 'e', digits - 1);
    return text.mid(text.indexOf('e') + 1).toInt();
}

/// The fewest significant digits that distinguish the number from other floats.
int digitsNeeded(float number)
{
    int digits = 1;
    while (digits < kMostDigits &&
           QByteArray::number(static_cast<double>(number), 'e', digits - 1).toFloat() != number)
        ++digits;
    return digits;
}

/// The fewest significant digits that show the number as well as this many do.
int digitsNeeded(double number, int limit)
{
    int digits = 1;
    while (digits < limit && rounded(number, digits) != rounded(number, limit))
        ++digits;
    return digits;
}

/// The number with this many significant digits.
QString written(double number, int digits, const QLocale &locale)
{
    // With exponents outside this range, a number without an exponent would be mostly zeros.
    constexpr int smallest = -6;
    const int power = powerOf(number, digits);
    const bool plain = power >= smallest && power < kMostDigits;

    QLocale ungrouped = locale;
    ungrouped.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = plain ? ungrouped.toString(number, 'f', std::max(0, digits - 1 - power))
                         : ungrouped.toString(number, 'e', digits - 1);
    // Write signs and the exponent in ASCII. Those of some locales contain invisible characters,
    // which read() would not understand.
    text.replace(locale.exponential(), QLatin1String("E"));
    text.replace(locale.negativeSign(), QLatin1String("-"));
    text.remove(locale.positiveSign());
    return text;
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
    if (number == 0.0F)
        return locale.zeroDigit();
    return written(static_cast<double>(number), digitsNeeded(number), locale);
}

QString FigureText::writeRounded(float number, const QLocale &locale)
{
    if (number == 0.0F)
        return locale.zeroDigit();
    const auto value = static_cast<double>(number);
    const int whole = powerOf(value, kMostDigits) + 1;
    const int most = std::min(std::max(kRoundedDigits, whole), digitsNeeded(number));
    return written(value, digitsNeeded(value, most), locale);
}
