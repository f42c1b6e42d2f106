#pragma once

#include <QMenu>

#include <vector>

class WufferController;

/// The menu of presets: items that open a preset, and a submenu of items that save into one.
///
/// Its items are made once and only change their texts, so that saving from an item of this menu
/// does not destroy that item.
class PresetsMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit PresetsMenu(WufferController &controller);

    /// Updates the texts. A preset that was never saved is made first.
    void populate();

    /// The items that open a preset, in the order of the list.
    [[nodiscard]] const std::vector<QAction *> &openItems() const { return _open; }

    /// The item with these keys, whether it opens or saves a preset; null when there is none.
    [[nodiscard]] QAction *itemWithKeys(const QKeySequence &keys) const;

    /// Enables the items that save if a timer is open, else disables them.
    void validate();

    /// The number of the preset that the item of this menu stands for.
    [[nodiscard]] static int presetNumber(const QAction &item);

private:
    WufferController &_controller;
    /// In the order of the list.
    std::vector<QAction *> _open;
    std::vector<QAction *> _save;
};
