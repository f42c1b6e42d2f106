#include "timer/TimeField.h"

#include "base/Integers.h"
#include "rules/NumberText.h"
#include "rules/TimeText.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <array>

namespace
{
struct StepKey
{
    Qt::Key key;
    int count;
};

constexpr std::array kStepKeys{StepKey{Qt::Key_Up, 1}, StepKey{Qt::Key_Down, -1},
                               StepKey{Qt::Key_PageUp, 10}, StepKey{Qt::Key_PageDown, -10}};

/// How much the key adds to the number; 0 for keys that do not change it.
int stepOf(const QKeyEvent &event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return 0;
    const auto *found = std::ranges::find(kStepKeys, event.key(), &StepKey::key);
    return found == kStepKeys.end() ? 0 : found->count;
}

/// The text that the key types; empty for commands and control keys.
QString typedBy(const QKeyEvent &event)
{
    // AltGr types characters, and some systems report it as Control and Alt.
    const Qt::KeyboardModifiers command =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isCommand =
        command != Qt::NoModifier && command != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = event.text();
    const bool isControl = text.isEmpty() || text.front().category() == QChar::Other_Control;
    return isCommand || isControl ? QString() : text;
}

/// Whether the data is a text with a number or a time.
bool isNumberOrTime(const QMimeData &data)
{
    return !data.hasUrls() && (TimeText::isNumber(data.text()) || TimeText::read(data.text()));
}

/// The Paste item; null if there is none. Only its text identifies it, in which the shortcut
/// follows the name.
QAction *pasteIn(const QMenu &menu)
{
    // A text of Qt's own translation, which this program does not translate.
    constexpr const char *name = "&Paste";
    const QList<QAction *> items = menu.actions();
    const auto paste = std::ranges::find_if(
        items, [](const QAction *each) { return each->text().startsWith(QLineEdit::tr(name)); });
    return paste == items.end() ? nullptr : *paste;
}
} // namespace

TimeField::TimeField(QWidget *parent) : QLineEdit(parent)
{
    setInputMethodHints(Qt::ImhTime | Qt::ImhPreferNumbers);
}

void TimeField::edit(const QString &text)
{
    // Unlike setText(), insert() can be undone.
    selectAll();
    insert(text);
}

void TimeField::step(int count)
{
    const qint64 number = NumberText::integerFrom(text());
    const QString changed = QString::number(limitedToInteger(std::max<qint64>(number + count, 0)));
    if (changed != text())
        edit(changed);
    selectAll();
}

void TimeField::keyPressEvent(QKeyEvent *event)
{
    if (handleKey(*event))
        event->accept();
    else
        QLineEdit::keyPressEvent(event);
}

bool TimeField::handleKey(const QKeyEvent &event)
{
    if (const int count = stepOf(event)) {
        step(count);
        return true;
    }
    if (event.matches(QKeySequence::Paste)) {
        offerClipboard();
        return true;
    }
    const QString typed = typedBy(event);
    if (typed.isEmpty() || staysNumberWith(typed))
        return false;
    reportRefused(typed);
    return true;
}

/// Reports a colon or a letter, which the field does not insert.
void TimeField::reportRefused(const QString &typed)
{
    constexpr char16_t wideColon = 0xFF1A;
    if (typed == u':' || typed == wideColon)
        Q_EMIT colonTyped();
    else if (typed.size() == 1 && typed.front().isLetter())
        Q_EMIT letterTyped(typed.front());
}

/// Whether the text would still be a number, or the beginning of one, after typing this over the
/// selection.
bool TimeField::staysNumberWith(const QString &typed) const
{
    const bool selected = hasSelectedText();
    const int from = selected ? selectionStart() : cursorPosition();
    const qsizetype count = selected ? selectionLength() : 0;
    return TimeText::isNumberBegun(text().replace(from, count, typed));
}

void TimeField::inputMethodEvent(QInputMethodEvent *event)
{
    // Do not show text that is still being composed: it could be anything. Send composed text as
    // key presses to the focused field, because a colon in it may have moved the focus.
    for (const QChar character : event->commitString()) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
        QWidget *focused = window()->focusWidget();
        QCoreApplication::sendEvent(focused ? focused : this, &press);
    }
    event->accept();
}

void TimeField::mouseReleaseEvent(QMouseEvent *event)
{
    QClipboard &clipboard = *QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard.supportsSelection())
        Q_EMIT textOffered(clipboard.text(QClipboard::Selection));
    else
        QLineEdit::mouseReleaseEvent(event);
}

void TimeField::offerClipboard()
{
    Q_EMIT textOffered(QGuiApplication::clipboard()->text());
}

void TimeField::wheelEvent(QWheelEvent *event)
{
    // Without the focus, the field ignores the wheel, which may be meant for something else.
    if (!hasFocus() || event->angleDelta().y() == 0) {
        event->ignore();
        return;
    }
    _turned += event->angleDelta().y();
    if (const int count = _turned / QWheelEvent::DefaultDeltasPerStep)
        step(count);
    _turned %= QWheelEvent::DefaultDeltasPerStep;
    event->accept();
}

void TimeField::dropEvent(QDropEvent *event)
{
    accept(*event);
    if (event->isAccepted())
        Q_EMIT textOffered(event->mimeData()->text());
}

void TimeField::dragEnterEvent(QDragEnterEvent *event)
{
    accept(*event);
}

void TimeField::dragMoveEvent(QDragMoveEvent *event)
{
    accept(*event);
}

void TimeField::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    // The caret has not followed the drag, so there is nothing to undo.
}

/// Accepts a drag with a number or a time; the window handles all others.
void TimeField::accept(QDropEvent &drag)
{
    // Copy: moving would remove the text from its source.
    drag.setDropAction(Qt::CopyAction);
    drag.setAccepted(isNumberOrTime(*drag.mimeData()));
}

void TimeField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction *paste = pasteIn(*menu)) {
        disconnect(paste, &QAction::triggered, this, nullptr);
        connect(paste, &QAction::triggered, this, &TimeField::offerClipboard);
    }
    menu->popup(event->globalPos());
}
