#pragma once

#include "base/Sound.h"

/// The sound that a choice stands for: the name of a built-in sound, or else the path of a file.
/// Null when the program has no such sound; a file that cannot be played has the duration 0.
[[nodiscard]] std::unique_ptr<Sound> soundForChoice(const QString &choice);
