#include "tools/NumberField.h"

#include "rules/FigureText.h"

#include <QScopedValueRollback>
#include <QStyle>

NumberField::NumberField(QWidget *parent) : QLineEdit(parent)
{
    // By itself the side would follow the digits, which read from left to right everywhere.
    setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading) | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, &NumberField::handleEdit);
    connect(this, &QLineEdit::editingFinished, this, &NumberField::finishTyping);
}

float NumberField::floatValue() const
{
    return _known && _known->text == text() ? _known->number : FigureText::read(text(), QLocale());
}

void NumberField::setFloatValue(float number)
{
    showAs(number, _isBeingEdited ? text() : FigureText::writeRounded(number, QLocale()));
}

void NumberField::showAllDigits()
{
    const float number = floatValue();
    showAs(number, FigureText::write(number, QLocale()));
}

void NumberField::selectText()
{
    setFocus();
    selectAll();
}

void NumberField::handleEdit()
{
    const QScopedValueRollback<bool> editing(_isBeingEdited, true);
    _known.reset();
    Q_EMIT edited();
}

void NumberField::finishTyping()
{
    // No number was set while the user typed: the text is all that counts.
    if (!_known)
        return;
    const QLocale locale;
    const float number = floatValue();
    const QString shown = FigureText::writeRounded(number, locale);
    const bool isNumber = !text().isEmpty() && FigureText::begun(text(), locale) == text();
    const float typed = FigureText::read(text(), locale);
    if (!isNumber || FigureText::writeRounded(typed, locale) != shown)
        showAs(number, shown);
}

void NumberField::showAs(float number, const QString &text)
{
    // Setting the same text again would lose the cursor and what can be undone.
    if (text != this->text())
        setText(text);
    _known = Known{number, text};
}
