#include "controls/SpokenComboBox.h"

#include "controls/AccessibleChoices.h"
#include "controls/SpokenText.h"

#include <QAbstractItemView>
#include <QAccessible>

namespace
{
/// Tells assistive programs that the focus is in this entry of the list.
void reportFocus(QAbstractItemView &list, int row)
{
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&list);
    QAccessibleInterface *entry = seen ? seen->child(row) : nullptr;
    if (!entry)
        return;
    QAccessibleEvent event(entry, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}
} // namespace

SpokenComboBox::SpokenComboBox(QWidget *parent) : QComboBox(parent)
{
    AccessibleChoices::install();
}

void SpokenComboBox::showPopup()
{
    QComboBox::showPopup();
    // Qt reports the entry first and then the list, which screen readers take for the focus.
    if (view()->isVisible() && currentIndex() >= 0)
        reportFocus(*view(), currentIndex());
}

void SpokenComboBox::keyPressEvent(QKeyEvent *event)
{
    const QString before = currentText();
    QComboBox::keyPressEvent(event);
    if (currentText() != before)
        SpokenText::changed(*this);
}
