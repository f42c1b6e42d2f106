#include "tools/NumberField.h"

#include "rules/FigureText.h"

#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>
#include <utility>

NumberField::NumberField(QWidget *parent) : QLineEdit(parent)
{
    // By itself the side would follow the digits, which read from left to right everywhere.
    setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading) | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, &NumberField::handleEdit);
    connect(this, &QLineEdit::cursorPositionChanged, this, &NumberField::forgetTyped);
    connect(this, &QLineEdit::selectionChanged, this, &NumberField::forgetTyped);
}

float NumberField::floatValue() const
{
    return FigureText::read(text(), QLocale());
}

void NumberField::setFloatValue(float number)
{
    if (_isBeingEdited)
        showWhileTyping(number);
    else
        setText(FigureText::write(number, QLocale()));
}

void NumberField::selectText()
{
    setFocus();
    selectAll();
}

void NumberField::handleEdit()
{
    const QScopedValueRollback<bool> editing(_isBeingEdited, true);
    // textEdited comes before cursorPositionChanged, which resets _typed.
    if (const std::optional<Typed> typed = std::exchange(_typed, std::nullopt))
        applyEditToTyped(*typed);
    Q_EMIT edited();
}

/// Applies the user's edit of the shown text to the typed text, and shows the result.
void NumberField::applyEditToTyped(const Typed &typed)
{
    const QString changed = text();
    const qsizetype cursor = cursorPosition();
    const qsizetype inserted = cursor - typed.shownCursor;
    const qsizetype deletedBehind =
        typed.shown.size() - typed.shownCursor - (changed.size() - cursor);

    QString text = typed.text;
    qsizetype place = typed.cursor;
    if (deletedBehind > 0)
        text.remove(place, deletedBehind);
    if (inserted > 0) {
        text.insert(place, changed.mid(typed.shownCursor, inserted));
        place += inserted;
    } else {
        const qsizetype deleted = std::min(-inserted, place);
        place -= deleted;
        text.remove(place, deleted);
    }
    setText(text);
    setCursorPosition(static_cast<int>(place));
}

void NumberField::showWhileTyping(float number)
{
    const QLocale locale;
    const QString before = text();
    const QString typed = FigureText::begun(before, locale);
    const bool reads = FigureText::read(typed, locale) == number;
    const QString shown = reads ? typed : FigureText::write(number, locale);
    if (shown == before)
        return;

    const qsizetype cursor = std::min<qsizetype>(cursorPosition(), typed.size());
    const bool atEnd = cursor == typed.size();
    const qsizetype shownCursor = atEnd ? shown.size() : std::min(cursor, shown.size());
    setText(shown);
    setCursorPosition(static_cast<int>(shownCursor));
    _typed = Typed{typed, cursor, shown, shownCursor};
}

void NumberField::forgetTyped()
{
    _typed.reset();
}
