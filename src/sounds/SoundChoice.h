#pragma once

#include "base/Sound.h"

/// The sound for a choice, which is the name of a built-in sound or else the path of a file. Null
/// if the program has no such sound; a file that cannot be played gives a sound of duration 0.
[[nodiscard]] std::unique_ptr<Sound> soundForChoice(const QString &choice);
