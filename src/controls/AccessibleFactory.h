#pragma once

#include <QAccessible>
#include <QObject>

/// How the widgets of one class present themselves to assistive programs, such as screen readers.
namespace AccessibleFactory
{
/// Presents widgets of the class Widget by an Interface, which is made from such a widget when an
/// assistive program first asks for it. Further calls do nothing.
template<typename Widget, typename Interface> void install()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(
            [](const QString &className, QObject *object) -> QAccessibleInterface * {
                if (className != QLatin1String(Widget::staticMetaObject.className()))
                    return nullptr;
                return new Interface(*static_cast<Widget *>(object));
            });
        return true;
    }();
}
} // namespace AccessibleFactory
