#pragma once

#include "rules/SoundEntries.h"
#include "rules/SoundHistory.h"

#include <initializer_list>
#include <optional>

class WebbyComboBox;

/// What the combo boxes in which sounds are chosen have in common.
namespace SoundCombos
{
/// The sounds that the user has added, from the settings.
[[nodiscard]] SoundHistory storedHistory();

/// What the tool tip of a sound shows for its path: just that, or nothing for none.
[[nodiscard]] QString toolTip(const QString &path);

/// Empties the box and lists the built-in sound, the user's own, newest first, and the commands.
/// Nothing is selected afterwards.
void fill(WebbyComboBox &combo, SoundEntry builtInSound,
          std::initializer_list<SoundEntry> commands);

/// Selects a built-in sound. Nothing happens where it is not listed.
void select(WebbyComboBox &combo, SoundEntry builtInSound);

/// The built-in sound or the command that is selected; nothing for a file and for no selection.
[[nodiscard]] std::optional<SoundEntry> selectedEntry(const WebbyComboBox &combo);
} // namespace SoundCombos
