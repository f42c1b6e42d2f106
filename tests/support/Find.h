#pragma once

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
