#pragma once

#include <QLocale>
#include <QString>

/// Reads and writes numbers in the notation of a locale. Pure functions.
namespace FigureText
{
/// The number at the beginning of the text, after blanks: "12.5 cups" is 12.5. It is 0 if there is
/// none, and limited to the range of a float. Group separators are accepted only where the locale
/// puts them; a point or comma elsewhere is the decimal mark. The exponent is marked by E or e.
[[nodiscard]] float read(const QString &text, const QLocale &locale);

/// The longest beginning of the text that is a number or can become one by further typing: all of
/// "12.", "-" and "3e"; of "12.5 cups" only "12.5 ", of "cups" nothing.
[[nodiscard]] QString begun(const QString &text, const QLocale &locale);

/// The shortest text that reads as this number: at most nine significant digits, no group
/// separators, an exponent only for very large and very small numbers.
[[nodiscard]] QString write(float number, const QLocale &locale);

/// The number rounded to five significant digits, or to a whole number if that has more. Written
/// like the numbers of write(), without zeros at the end of a fraction.
[[nodiscard]] QString writeRounded(float number, const QLocale &locale);
} // namespace FigureText
