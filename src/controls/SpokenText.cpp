#include "controls/SpokenText.h"

#include <QWidget>

#include <algorithm>
#include <utility>

SpokenText::SpokenText(const QWidget &control, std::function<QString()> text) :
    _control(control), _text(std::move(text))
{}

void SpokenText::changed(QWidget &control)
{
    if (!control.hasFocus())
        return;
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&control);
    const QAccessibleTextInterface *spoken = seen ? seen->textInterface() : nullptr;
    if (!spoken || spoken->characterCount() == 0)
        return;
    QAccessibleTextInsertEvent event(&control, 0, spoken->text(0, spoken->characterCount()));
    QAccessible::updateAccessibility(&event);
}

QString SpokenText::text(int startOffset, int endOffset) const
{
    const QString whole = _text();
    const qsizetype end = endOffset < 0 ? whole.size() : endOffset;
    return whole.mid(startOffset, std::max<qsizetype>(0, end - startOffset));
}

int SpokenText::characterCount() const
{
    return static_cast<int>(_text().size());
}

void SpokenText::selection(int selectionIndex, int *startOffset, int *endOffset) const
{
    *startOffset = 0;
    *endOffset = selectionIndex < selectionCount() ? characterCount() : 0;
}

int SpokenText::selectionCount() const
{
    return characterCount() > 0 ? 1 : 0;
}

int SpokenText::cursorPosition() const
{
    return characterCount();
}

QRect SpokenText::characterRect(int /*offset*/) const
{
    return {_control.mapToGlobal(QPoint()), _control.size()};
}

int SpokenText::offsetAtPoint(const QPoint & /*point*/) const
{
    return 0;
}

QString SpokenText::attributes(int /*offset*/, int *startOffset, int *endOffset) const
{
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}
