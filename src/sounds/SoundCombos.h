#pragma once

#include "rules/SoundHistory.h"

#include <QStringView>

#include <initializer_list>

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
void fill(WebbyComboBox &combo, QStringView builtInSound,
          std::initializer_list<QStringView> commands);
} // namespace SoundCombos
