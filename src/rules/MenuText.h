#pragma once

#include <QString>

/// The text as a menu item has to be given it so that it shows just that: nothing in it is taken
/// for a mnemonic or a shortcut, and a very long one is cut.
[[nodiscard]] QString menuText(const QString &text);
