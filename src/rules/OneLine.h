#pragma once

#include <QString>

/// What all places have in common that show a text of the user's in one line. Pure functions.
namespace OneLine
{
/// The text with a space in place of each end of a line or paragraph, tab, and other control.
[[nodiscard]] QString of(QString text);

/// So many UTF-16 units from the beginning of a text that is at least as long, or one less where
/// the last would be half of a character.
[[nodiscard]] QString beginning(const QString &text, qsizetype count);

/// So many at the end, likewise.
[[nodiscard]] QString ending(const QString &text, qsizetype count);
} // namespace OneLine
