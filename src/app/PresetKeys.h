#pragma once

#include "platform/HeldKey.h"

#include <QObject>

class PresetsMenu;
class QKeyEvent;

/// Makes the keys of the presets those of the digits, whatever else the keyboard has on them. Many
/// want Shift for a digit, and on the others Shift makes something else of it; both are the same
/// key to the hand. It looks at the presses that have been no shortcut, and lets an item of the
/// menu act on them where its shortcut would have. A key that is held down opens one timer.
class PresetKeys final : public QObject
{
    Q_OBJECT

public:
    /// The menu owns this object.
    explicit PresetKeys(PresetsMenu &menu);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Whether the press, or the question that goes before it, goes no further.
    [[nodiscard]] bool takes(QKeyEvent &press);
    [[nodiscard]] bool hasShortcutsIn(const QObject &window) const;

    PresetsMenu &_menu;
    HeldKey _held;
};
