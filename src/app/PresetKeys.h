#pragma once

#include "platform/HeldKey.h"

#include <QObject>

class PresetsMenu;
class QKeyEvent;

/// Makes the shortcuts of the presets work with the digit keys of any keyboard layout. On some
/// layouts a digit needs Shift, on the others Shift turns it into another character; the user
/// presses the same key in both cases. This event filter handles key presses that matched no
/// shortcut, and triggers the item of the preset. A key that is held down triggers it once.
class PresetKeys final : public QObject
{
    Q_OBJECT

public:
    /// The menu owns this object.
    explicit PresetKeys(PresetsMenu &menu);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Handles a press or the ShortcutOverride before it; true when the event goes no further.
    [[nodiscard]] bool handles(QKeyEvent &press);
    [[nodiscard]] bool hasShortcutsIn(const QObject &window) const;

    PresetsMenu &_menu;
    HeldKey _held;
};
