#include "app/PresetKeys.h"

#include "app/PresetsMenu.h"
#include "platform/Keyboard.h"
#include "platform/KeyboardLayout.h"
#include "rules/DigitRow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QWindow>

namespace
{
/// The modifiers that are held, except Shift.
Qt::KeyboardModifiers modifierOf(const QKeyEvent &press)
{
    return press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
}

std::optional<int> digitOf(const QKeyEvent &press)
{
    const std::optional<int> digit = DigitRow::digitOfKey(press.key());
    const quint32 number = KeyboardLayout::numberOf(press);
    if (digit || !DigitRow::contains(number))
        return digit;
    return DigitRow::digitAt(number, [state = press.nativeModifiers()](quint32 key) {
        return KeyboardLayout::symbolsOf(key, state);
    });
}

QAction *itemFor(const PresetsMenu &menu, const QKeyEvent &press)
{
    const Qt::KeyboardModifiers modifier = modifierOf(press);
    if (modifier != Keyboard::kCommand && modifier != Keyboard::kControl)
        return nullptr;
    const std::optional<int> digit = digitOf(press);
    return digit ? menu.itemWithKeys(QKeyCombination(modifier, Qt::Key(Qt::Key_0 + *digit)))
                 : nullptr;
}
} // namespace

PresetKeys::PresetKeys(PresetsMenu &menu) : QObject(&menu), _menu(menu)
{
    qApp->installEventFilter(this);
}

bool PresetKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
        _held.letGo(static_cast<const QKeyEvent &>(*event));
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        // The window receives these before the widget with the focus does.
        return hasShortcutsIn(*watched) && handles(static_cast<QKeyEvent &>(*event));
    default:
        return false;
    }
}

bool PresetKeys::handles(QKeyEvent &press)
{
    QAction *item = itemFor(_menu, press);
    if (!item)
        return false;
    const bool repeats = _held.isRepeatedBy(press);
    if (!repeats) {
        // It may still become a shortcut. If it does not, it arrives again as a press.
        if (press.type() == QEvent::ShortcutOverride)
            return false;
        item->trigger();
    }
    // An accepted ShortcutOverride does not become a shortcut, so a held key does not repeat one.
    press.accept();
    return true;
}

bool PresetKeys::hasShortcutsIn(const QObject &window) const
{
    const auto *active = qobject_cast<const QMainWindow *>(QApplication::activeWindow());
    return active && active->windowHandle() == &window && !QApplication::activePopupWidget() &&
           active->menuWidget() && active->menuWidget()->actions().contains(_menu.menuAction());
}
