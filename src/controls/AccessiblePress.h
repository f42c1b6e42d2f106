#pragma once

#include "base/Mnemonics.h"
#include "controls/SpokenText.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

#include <functional>

/// Presents a widget to assistive programs as a button that they can press. While it has the focus,
/// screen readers read its spoken text aloud at SpokenText::changed().
class AccessiblePress : public QAccessibleWidget
{
public:
    AccessiblePress(QWidget &widget, std::function<void()> press, std::function<QString()> spoken) :
        QAccessibleWidget(&widget, QAccessible::Button), _press(std::move(press)),
        _spoken(widget, std::move(spoken))
    {}

    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(&_spoken);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (widget()->isEnabled())
            _press();
    }

private:
    const std::function<void()> _press;
    SpokenText _spoken;
};

/// Presents a button with a title, which is also what screen readers read aloud when it changes.
class AccessibleButton : public AccessiblePress
{
public:
    explicit AccessibleButton(QAbstractButton &button) :
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

private:
    const QAbstractButton &_button;
};
