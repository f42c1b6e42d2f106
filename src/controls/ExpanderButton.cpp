#include "controls/ExpanderButton.h"

#include "controls/AccessibleFactory.h"
#include "controls/AccessiblePress.h"

namespace
{
class AccessibleExpanderButton final : public AccessibleButton
{
public:
    explicit AccessibleExpanderButton(ExpanderButton &button) :
        AccessibleButton(button), _button(button)
    {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        state.expandable = true;
        state.expanded = _button.isExpanded();
        state.collapsed = !_button.isExpanded();
        return state;
    }

private:
    const ExpanderButton &_button;
};
} // namespace

ExpanderButton::ExpanderButton(QWidget *parent) : QPushButton(parent)
{
    AccessibleFactory::install<ExpanderButton, AccessibleExpanderButton>();
}

void ExpanderButton::setExpanded(bool expanded)
{
    if (expanded == _expanded)
        return;
    _expanded = expanded;
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    SpokenText::changed(*this);
}
