#include "sounds/SoundCombos.h"

#include "base/UserDefaults.h"
#include "controls/WebbyComboBox.h"

#include <QTextDocument>

SoundHistory SoundCombos::storedHistory()
{
    return SoundHistory(
        UserDefaults::standardUserDefaults().stringArrayForKey(QStringLiteral("soundHistory")));
}

QString SoundCombos::toolTip(const QString &path)
{
    // What looks like markup in a name is none.
    return path.isEmpty() ? QString() : Qt::convertFromPlainText(path);
}

void SoundCombos::fill(WebbyComboBox &combo, QStringView builtInSound,
                       std::initializer_list<QStringView> commands)
{
    combo.removeAllItems();
    combo.addItemWithObjectValue(builtInSound.toString());
    const SoundHistory history = storedHistory();
    for (const QString &path : history.paths()) {
        combo.addDataObject(path, SoundHistory::displayTitle(path));
        // Files of the same name are told apart by where they lie.
        combo.setItemData(combo.count() - 1, toolTip(path), Qt::ToolTipRole);
    }
    for (const QStringView command : commands)
        combo.addItemWithObjectValue(command.toString());
}
