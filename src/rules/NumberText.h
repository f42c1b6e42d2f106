#pragma once

#include <QString>

/// Reads and writes the text of a number field.
namespace NumberText
{
/// The whole number at the beginning of the text, after blanks and an optional sign; limited to
/// 32 bits. 0 when there is none: "12.9 min" is 12, "-3" is -3, "five" is 0.
[[nodiscard]] qint32 integerFrom(QStringView text);

/// Seconds to the millisecond, without trailing zeros: "5", "5.4", "59.999". A fraction is never
/// rounded up to the next whole second, which would be read back as a second too many.
[[nodiscard]] QString fromSeconds(float seconds);
} // namespace NumberText
