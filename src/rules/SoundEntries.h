#pragma once

#include <QStringView>

#include <array>
#include <optional>

/// The entries of the sound combos that are not sound files of the user's: the built-in sounds and
/// the commands.
enum class SoundEntry {
    Wuff,
    Crow,
    SelectAnother,
    ClearCustom,
    Manage,
};

/// The table of these entries, with a row for each.
namespace SoundEntries
{
struct Row
{
    SoundEntry entry;
    /// What stands for it in the combo and, for a sound, in a preset, whatever the language.
    QStringView stored;
    /// What the list shows, to be translated in the context "SoundEntries".
    const char *shown;
    /// The file of a built-in sound; empty for a command.
    QStringView fileName;
};

[[nodiscard]] const Row &row(SoundEntry entry);

/// The entry that is stored by this text; nothing for the path of a file.
[[nodiscard]] std::optional<SoundEntry> fromStored(QStringView text);

/// The file name of the built-in sound that is stored by this text; empty when there is none.
[[nodiscard]] QString builtInFile(QStringView text);

/// What the lists and labels show for it, in the language of the program.
[[nodiscard]] QString shownText(SoundEntry entry);
} // namespace SoundEntries
