#pragma once

#include "rules/SoundEntries.h"
#include "rules/SoundHistory.h"

#include <initializer_list>
#include <optional>

class WebbyComboBox;

/// Operations for all combo boxes in which the user chooses sounds.
namespace SoundCombos
{
/// The sounds that the user has added, from the settings.
[[nodiscard]] SoundHistory storedHistory();

/// The tool tip for the path of a sound: exactly the path, or nothing for an empty one.
[[nodiscard]] QString toolTip(const QString &path);

/// Replaces the entries of the box by the built-in sound, the sounds of the user, the newest first,
/// and the commands. Leaves nothing selected.
void fill(WebbyComboBox &combo, SoundEntry builtInSound,
          std::initializer_list<SoundEntry> commands);

/// Selects a built-in sound. Does nothing if it is not listed.
void select(WebbyComboBox &combo, SoundEntry builtInSound);

/// The selected built-in sound or command; nothing if a file or no entry is selected.
[[nodiscard]] std::optional<SoundEntry> selectedEntry(const WebbyComboBox &combo);
} // namespace SoundCombos
