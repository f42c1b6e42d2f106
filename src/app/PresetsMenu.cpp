#include "app/PresetsMenu.h"

#include "app/PresetKeys.h"
#include "app/WufferController.h"
#include "platform/Keyboard.h"
#include "rules/MenuText.h"
#include "rules/Preset.h"
#include "timer/Wuffer.h"

#include <algorithm>

namespace
{
/// The tag of a preset's item is this plus the number of the preset.
constexpr int kFirstTag = 1000;

QAction *addItem(QMenu &menu, Qt::KeyboardModifier modifier, int number)
{
    QAction *item = menu.addAction(QString());
    item->setData(kFirstTag + number);
    item->setShortcut(QKeyCombination(modifier, Qt::Key(Qt::Key_0 + number)));
    // A key that is held down opens one timer, not thirty a second.
    item->setAutoRepeat(false);
    return item;
}
} // namespace

PresetsMenu::PresetsMenu(WufferController &controller) :
    QMenu(tr("&Presets")), _controller(controller)
{
    for (const int number : Preset::kNumbers) {
        QAction *item = _open.emplace_back(addItem(*this, Keyboard::kCommand, number));
        connect(item, &QAction::triggered, this, [this, item] { _controller.preset(item); });
    }
    addSeparator();
    QMenu &submenu = *addMenu(tr("Save Wuffer to Preset"));
    submenu.addAction(tr("Shortcut: Hold Control and press a number key"))->setEnabled(false);
    submenu.addSeparator();
    for (const int number : Preset::kNumbers) {
        QAction *item = _save.emplace_back(addItem(submenu, Keyboard::kControl, number));
        connect(item, &QAction::triggered, this, [this, item] { _controller.setPreset(*item); });
    }
    new PresetKeys(*this);
}

void PresetsMenu::populate()
{
    for (std::size_t place = 0; place < Preset::kNumbers.size(); ++place) {
        const int number = Preset::kNumbers.at(place);
        const QString text = Wuffer::stringForPreset(number);
        _open.at(place)->setText(menuText(text));
        _save.at(place)->setText(
            //: The number of a preset, and the name and time in it, which saving replaces.
            menuText(tr("⌘%1 (Overwrite %2)").arg(QString::number(number), text)));
    }
}

void PresetsMenu::validate()
{
    const bool mayBeSaved = _controller.validateMenuItem(&WufferController::setPreset);
    for (QAction *item : _save)
        item->setEnabled(mayBeSaved);
}

QAction *PresetsMenu::itemWithKeys(const QKeySequence &keys) const
{
    for (const std::vector<QAction *> &items : {_open, _save}) {
        const auto item = std::ranges::find(items, keys, &QAction::shortcut);
        if (item != items.end())
            return *item;
    }
    return nullptr;
}

int PresetsMenu::presetNumber(const QAction &item)
{
    return item.data().toInt() - kFirstTag;
}
