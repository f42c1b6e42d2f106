#pragma once

#include <QApplication>
#include <QWidget>
#include <QtTest/QTest>

/// The descendant of this class and object name. If there is none, the test program ends with a
/// message that says what was missing.
template<class Class> Class &child(const QObject &parent, const char *name)
{
    auto *found = parent.findChild<Class *>(QString::fromLatin1(name));
    if (!found)
        qFatal("there is no %s named %s", Class::staticMetaObject.className(), name);
    return *found;
}

/// The window of the visible widget of this class. If there is none, the test program ends with a
/// message that says what was missing.
template<class Class> QWidget &windowWith()
{
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (widget->isVisible() && qobject_cast<const Class *>(widget))
            return *widget->window();
    }
    qFatal("no open window has a %s", Class::staticMetaObject.className());
}
