#pragma once

#include <QString>

/// Prepares names that users write for the places that show them. Pure functions.
namespace NameText
{
/// The name in one line. The middle of a very long name is cut out, so that no menu becomes wider
/// than the screen.
[[nodiscard]] QString inOneLine(const QString &name);

/// Prepares the name for setWindowTitle(), so that the title shows it as it is. Cuts a name that no
/// title bar has room for: a title of megabytes breaks the connection to the X server.
[[nodiscard]] QString asWindowTitle(const QString &name);

/// The name for use within a text. A name in a script that is written from right to left is
/// isolated from the text around it: otherwise it would change the order of a time that follows.
[[nodiscard]] QString isolated(const QString &name);

/// The text with the first occurrence of the name in it isolated like that.
[[nodiscard]] QString isolatedIn(QString text, const QString &name);
} // namespace NameText
