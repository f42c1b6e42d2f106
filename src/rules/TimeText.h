#pragma once

#include <QStringView>

#include <optional>

/// Reads times as people write them: "5:30", "1h 5m", "1.5 h", "90 s". Pure functions for any text;
/// numbers are limited to 32 bits.
namespace TimeText
{
enum class Unit { Days, Hours, Minutes, Seconds };

/// The numbers for the three fields of a timer. They are not normalized: 90 s stay 90 s.
struct Time
{
    qint32 hours = 0;
    qint32 minutes = 0;
    qint32 seconds = 0;

    [[nodiscard]] bool operator==(const Time &) const = default;
};

/// Whether the text is a number or the beginning of one: an optional sign, then digits with at most
/// one decimal mark (point, comma or the Arabic one). True for the empty text.
[[nodiscard]] bool isNumberBegun(QStringView text);

/// Whether the text is a number with nothing but blanks around it.
[[nodiscard]] bool isNumber(QStringView text);

/// The unit with this name, a letter or a word in English or in the user's language: "h", "min",
/// "Seconds". Nothing for other words.
[[nodiscard]] std::optional<Unit> unitNamed(QStringView word);

/// The time in the text, in one of two forms. Numbers with units, the largest first; the last
/// number may have none ("1h 5m", "1h05", "2d 3h", "1,5 h"). Or two or three numbers separated by
/// colons or blanks, which are minutes and seconds, or hours, minutes and seconds ("5:30",
/// "1:02:03"). Days are converted to hours. Fractions of larger units are converted to smaller
/// ones, to the nearest second; fractions of a second are cut. Nothing for any other text, a single
/// number included.
[[nodiscard]] std::optional<Time> read(QStringView text);

/// Converts the fraction of a number of this unit into smaller units: 1.5 hours are {1, 30, 0}.
/// Nothing for a number without a fraction or with a sign.
[[nodiscard]] std::optional<Time> spread(QStringView number, Unit unit);
} // namespace TimeText
