#include "sounds/SoundCombos.h"

#include "base/UserDefaults.h"
#include "controls/WebbyComboBox.h"

#include <QTextDocument>

SoundHistory SoundCombos::storedHistory()
{
    return SoundHistory(UserDefaults::standardUserDefaults().value(Keys::kSoundHistory));
}

QString SoundCombos::toolTip(const QString &path)
{
    // Escape the path: it may look like markup.
    return path.isEmpty() ? QString() : Qt::convertFromPlainText(path);
}

/// Appends the entry: the stored text as its data, the translated text to show.
static void append(WebbyComboBox &combo, SoundEntry entry)
{
    combo.addDataObject(SoundEntries::row(entry).stored.toString(), SoundEntries::shownText(entry));
}

void SoundCombos::fill(WebbyComboBox &combo, SoundEntry builtInSound,
                       std::initializer_list<SoundEntry> commands)
{
    combo.removeAllItems();
    append(combo, builtInSound);
    const SoundHistory history = storedHistory();
    for (const QString &path : history.paths()) {
        combo.addDataObject(path, SoundHistory::displayTitle(path));
        // The tool tip distinguishes files of the same name in different folders.
        combo.setItemData(combo.count() - 1, toolTip(path), Qt::ToolTipRole);
    }
    for (const SoundEntry command : commands)
        append(combo, command);
}

void SoundCombos::select(WebbyComboBox &combo, SoundEntry builtInSound)
{
    combo.selectItemWithDataObjectValue(SoundEntries::row(builtInSound).stored.toString());
}

std::optional<SoundEntry> SoundCombos::selectedEntry(const WebbyComboBox &combo)
{
    return SoundEntries::fromStored(combo.dataObjectOfSelectedItem().value_or(QString()));
}
