#include "timer/TimeField.h"

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
#include <limits>

namespace
{
struct StepKey
{
    Qt::Key key;
    int count;
};

constexpr std::array kStepKeys{StepKey{Qt::Key_Up, 1}, StepKey{Qt::Key_Down, -1},
                               StepKey{Qt::Key_PageUp, 10}, StepKey{Qt::Key_PageDown, -10}};

/// By how much the key changes the number; 0 for all others.
int stepOf(const QKeyEvent &event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return 0;
    const auto *found = std::ranges::find(kStepKeys, event.key(), &StepKey::key);
    return found == kStepKeys.end() ? 0 : found->count;
}

/// What the key types; empty for keys that mean something else.
QString typedBy(const QKeyEvent &event)
{
    // AltGr types characters; it comes as Control and Alt on some systems.
    const Qt::KeyboardModifiers command =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isCommand =
        command != Qt::NoModifier && command != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = event.text();
    const bool isControl = text.isEmpty() || text.front().category() == QChar::Other_Control;
    return isCommand || isControl ? QString() : text;
}

/// Whether a text says something that the fields take.
bool isOfUse(const QMimeData &data)
{
    return !data.hasUrls() && (TimeText::isNumber(data.text()) || TimeText::read(data.text()));
}
/// The item that pastes; it is told by its text only, which has its key behind it.
QAction *pasteIn(const QMenu &menu)
{
    const QList<QAction *> items = menu.actions();
    const auto paste = std::ranges::find_if(items, [](const QAction *each) {
        return each->text().startsWith(QLineEdit::tr("&Paste"));
    });
    return paste == items.end() ? nullptr : *paste;
}
} // namespace

TimeField::TimeField(QWidget *parent) : QLineEdit(parent)
{
    setInputMethodHints(Qt::ImhTime | Qt::ImhPreferNumbers);
}

void TimeField::edit(const QString &text)
{
    // Inserted, so that it can be undone.
    selectAll();
    insert(text);
}

void TimeField::step(int count)
{
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    const qint64 number = NumberText::integerFrom(text());
    const QString changed = QString::number(std::clamp<qint64>(number + count, 0, most));
    if (changed != text())
        edit(changed);
    selectAll();
}

void TimeField::keyPressEvent(QKeyEvent *event)
{
    if (takes(*event))
        event->accept();
    else
        QLineEdit::keyPressEvent(event);
}

bool TimeField::takes(const QKeyEvent &event)
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
    if (typed.isEmpty() || hasRoomFor(typed))
        return false;
    refuse(typed);
    return true;
}

/// Reports what was typed and may not stand in the field, if it means something.
void TimeField::refuse(const QString &typed)
{
    if (typed == u':')
        Q_EMIT colonTyped();
    else if (typed.size() == 1 && typed.front().isLetter())
        Q_EMIT letterTyped(typed.front());
}

/// Whether the number would still be one with this in place of what is selected.
bool TimeField::hasRoomFor(const QString &typed) const
{
    const bool selected = hasSelectedText();
    const int from = selected ? selectionStart() : cursorPosition();
    const qsizetype count = selected ? selectionLength() : 0;
    return TimeText::isNumberBegun(text().replace(from, count, typed));
}

void TimeField::inputMethodEvent(QInputMethodEvent *event)
{
    // What is still being composed is not shown, because it could be anything. What has been
    // composed is typed, wherever a colon in it has moved the focus meanwhile.
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
    // Over a field that is not in use, it may have been meant for something else.
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
    // A drag that passes over leaves the caret where it is.
}

/// Accepts what would be taken; the rest goes on to the window.
void TimeField::accept(QDropEvent &drag)
{
    // Not moved: only the text is wanted, not that it goes from where it is.
    drag.setDropAction(Qt::CopyAction);
    drag.setAccepted(isOfUse(*drag.mimeData()));
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
