#include "controls/SpokenButton.h"

#include "base/Mnemonics.h"
#include "controls/AccessibleFactory.h"
#include "controls/AccessiblePress.h"

namespace
{
class AccessibleSpokenButton final : public AccessiblePress
{
public:
    explicit AccessibleSpokenButton(SpokenButton &button) :
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
        state.defaultButton = _button.isDefault();
        return state;
    }

private:
    const SpokenButton &_button;
};
} // namespace

SpokenButton::SpokenButton(QWidget *parent) : QPushButton(parent)
{
    AccessibleFactory::install<SpokenButton, AccessibleSpokenButton>();
}

void SpokenButton::sayTitle()
{
    SpokenText::changed(*this);
}
