#pragma once

#include <QString>

/// Prepares a text for a menu item, which then shows it in one line as it is: nothing in it becomes
/// a mnemonic or a shortcut. A very long text is cut.
[[nodiscard]] QString menuText(const QString &text);
