#pragma once

#include <QAccessibleWidget>

#include <functional>

/// Presents a widget to assistive programs as a button that they can press.
class AccessiblePress : public QAccessibleWidget
{
public:
    AccessiblePress(QWidget &widget, std::function<void()> press) :
        QAccessibleWidget(&widget, QAccessible::Button), _press(std::move(press))
    {}

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
};
