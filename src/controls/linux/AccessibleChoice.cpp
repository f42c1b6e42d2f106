#include "controls/linux/AccessibleChoice.h"

#include <QAbstractItemView>
#include <QComboBox>

AccessibleChoice::AccessibleChoice(QComboBox &combo) :
    QAccessibleWidget(&combo, QAccessible::ComboBox), _combo(combo),
    _chosen(combo, [&combo] { return combo.currentText(); })
{}

void *AccessibleChoice::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(&_chosen);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleChoice::text(QAccessible::Text kind) const
{
    // A label is a relation, so that the name can be the chosen entry.
    if (kind == QAccessible::Name || kind == QAccessible::Value)
        return _combo.currentText();
    return QAccessibleWidget::text(kind);
}

QAccessible::State AccessibleChoice::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = isOpen();
    return state;
}

QAccessibleInterface *AccessibleChoice::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(_combo.view()) : nullptr;
}

int AccessibleChoice::indexOfChild(const QAccessibleInterface *child) const
{
    return child->object() == _combo.view() ? 0 : -1;
}

QStringList AccessibleChoice::actionNames() const
{
    if (!_combo.isEnabled())
        return {};
    return {showMenuAction(), pressAction()};
}

void AccessibleChoice::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    if (isOpen())
        _combo.hidePopup();
    else
        _combo.showPopup();
}

bool AccessibleChoice::isOpen() const
{
    return _combo.isVisible() && _combo.view()->isVisible();
}
