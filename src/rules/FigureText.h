#pragma once

#include <QLocale>
#include <QString>

/// How figures are written and read, both in the way of one locale. Pure functions.
namespace FigureText
{
/// The number that the text begins with, after blanks: "12.5 cups" is 12.5. 0 when there is none,
/// limited to what a float holds. Separators between groups of digits count only where the locale
/// would put them; a point or comma elsewhere is taken for the decimal mark. An exponent is
/// written with E.
[[nodiscard]] float read(const QString &text, const QLocale &locale);

/// As much of the text as is a number or can still become one when somebody types on: all of
/// "12.", "-" and "3e"; of "12.5 cups" only "12.5 ", of "cups" nothing.
[[nodiscard]] QString begun(const QString &text, const QLocale &locale);

/// The shortest text that reads as this number: at most nine significant digits, no separators
/// between groups, an exponent only for very large and very small ones.
[[nodiscard]] QString write(float number, const QLocale &locale);
} // namespace FigureText
