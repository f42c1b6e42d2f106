#pragma once

#include <QString>

/// The sign that marks the letter to press in the texts of menus and buttons.
namespace Mnemonics
{
/// The text as an item of a menu or a button has to be given it, so that none of its letters is
/// the one to press.
[[nodiscard]] QString escaped(QString text);

/// What an item of a menu or a button that was given the text shows, without the underline, and
/// without a letter that only names the key: "ファイル(&F)" is "ファイル".
[[nodiscard]] QString shown(const QString &text);
} // namespace Mnemonics
