#pragma once

#include <QStringView>

#include <optional>

/// How people write a time: "5:30", "1h 5m", "1.5 h", "90 s". Pure functions of texts, which may
/// be anything; numbers are limited to 32 bits.
namespace TimeText
{
enum class Unit { Days, Hours, Minutes, Seconds };

/// What goes into the three fields of a timer. Each takes any count: 90 s are no 1 min 30 s.
struct Time
{
    qint32 hours = 0;
    qint32 minutes = 0;
    qint32 seconds = 0;

    [[nodiscard]] bool operator==(const Time &) const = default;
};

/// Whether the text is a number or may become one by going on: digits after an optional sign, with
/// one decimal mark (a point or a comma) at most. So is the empty text.
[[nodiscard]] bool isNumberBegun(QStringView text);

/// Whether the text is a number and nothing else, but for blanks around it.
[[nodiscard]] bool isNumber(QStringView text);

/// The unit of this name: a letter or an English word, "h", "min", "Seconds". Nothing for others.
[[nodiscard]] std::optional<Unit> unitNamed(QStringView word);

/// The time that the text as a whole says: numbers with units, the larger first, the last of them
/// perhaps without its unit ("1h 5m", "1h05", "2d 3h", "1,5 h"), or two or three numbers with
/// colons or blanks between them, which are minutes and seconds, or hours before these ("5:30",
/// "1:02:03"). Days become hours, fractions of a larger unit smaller ones, to the nearest second;
/// fractions of a second are cut. Nothing for any other text, a single number among them.
[[nodiscard]] std::optional<Time> read(QStringView text);

/// A number of this unit with its fraction in smaller ones: 1.5 hours are {1, 30, 0}. Nothing for a
/// number without a fraction, or with a sign.
[[nodiscard]] std::optional<Time> spread(QStringView number, Unit unit);
} // namespace TimeText
