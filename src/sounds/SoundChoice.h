#pragma once

#include "base/Sound.h"

#include <QStringView>

/// The file name of the built-in sound that has this name; empty when there is none.
[[nodiscard]] QString builtInSoundFile(QStringView choice);

/// The sound that a choice stands for: the name of a built-in sound, or else the path of a file.
/// Null when the program has no such sound; a file that cannot be played has the duration 0.
[[nodiscard]] std::unique_ptr<Sound> soundForChoice(const QString &choice);
