#pragma once

#include <QStringView>

#include <array>
#include <optional>

/// The entries of the sound combos other than the user's files: the built-in sounds and the
/// commands.
enum class SoundEntry {
    Wuff,
    Crow,
    SelectAnother,
    ClearCustom,
    Manage,
};

/// The table of these entries, one row for each.
namespace SoundEntries
{
struct Row
{
    SoundEntry entry;
    /// The data of the combo entry and, for a sound, the text in a preset; the same in every
    /// language.
    QStringView stored;
    /// The text in the list, to be translated in the context "SoundEntries".
    const char *shown;
    /// The file of a built-in sound; empty for a command.
    QStringView fileName;
};

[[nodiscard]] const Row &row(SoundEntry entry);

/// The entry stored as this text; nothing for the path of a file.
[[nodiscard]] std::optional<SoundEntry> fromStored(QStringView text);

/// The file name of the built-in sound stored as this text; empty for any other text.
[[nodiscard]] QString builtInFile(QStringView text);

/// The translated text for lists and labels.
[[nodiscard]] QString shownText(SoundEntry entry);
} // namespace SoundEntries
