#pragma once

#include <QStringView>

// Texts of the preferences that the program compares or stores as well as shows. Each is defined
// once.

// What may open at launch, as the settings store it. Any other text opens one timer.
inline constexpr QStringView kLaunchTimer = u"Open a Wuffer";
inline constexpr QStringView kLaunchNothing = u"Do Nothing";
inline constexpr QStringView kLaunchPreset = u"Open Preset ⌘1";
inline constexpr QStringView kLaunchAndStartPreset = u"Open and Start Preset ⌘1";

/// The text at the end of a timer, unless the user has chosen another.
inline constexpr QStringView kFinishedTextDefault = u"Wuff!";

// The entries of the sound combos that are commands.
inline constexpr QStringView kSelectAnotherSound = u"Select another sound...";
inline constexpr QStringView kClearCustomSounds = u"Clear custom sounds";
inline constexpr QStringView kManageSounds = u"Manage Sounds...";
