#include "controls/SpokenButton.h"

#include "controls/AccessibleFactory.h"
#include "controls/AccessiblePress.h"

namespace
{
class AccessibleSpokenButton final : public AccessibleButton
{
public:
    explicit AccessibleSpokenButton(SpokenButton &button) :
        AccessibleButton(button), _button(button)
    {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
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
