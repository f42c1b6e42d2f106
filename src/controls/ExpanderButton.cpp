#include "controls/ExpanderButton.h"

#include "base/Mnemonics.h"
#include "controls/AccessibleFactory.h"
#include "controls/AccessiblePress.h"

namespace
{
class AccessibleExpanderButton final : public AccessiblePress
{
public:
    explicit AccessibleExpanderButton(ExpanderButton &button) :
        AccessiblePress(
            button, [&button] { button.click(); },
            [&button] { return Mnemonics::shown(button.text()); }),
        _button(button)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? Mnemonics::shown(_button.text())
                                         : AccessiblePress::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePress::state();
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
