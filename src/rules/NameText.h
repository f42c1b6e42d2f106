#pragma once

#include <QString>

/// Names as users write them, made fit for the places where they are shown. Pure functions.
namespace NameText
{
/// The name in one line, as it is if it is one, and a very long one cut in its middle, so that no
/// menu becomes wider than the screen.
[[nodiscard]] QString inOneLine(const QString &name);

/// The name as a window has to be given it for its title to show just that. What no title bar
/// has room for is left out: a title of megabytes costs the connection to the X server.
[[nodiscard]] QString asWindowTitle(const QString &name);
} // namespace NameText
