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
    // What looks like markup in a name is none.
    return path.isEmpty() ? QString() : Qt::convertFromPlainText(path);
}

/// Appends the entry: what stands for it is stored, what is shown may be translated.
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
        // Files of the same name are told apart by where they lie.
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
