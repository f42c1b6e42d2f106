#pragma once

#include <QWidget>
#include <QtTest/QTest>

/// The descendant of this class and object name. Without one the test program ends, saying what
/// was missing.
template<class Class> Class &child(const QObject &parent, const char *name)
{
    auto *found = parent.findChild<Class *>(QString::fromLatin1(name));
    if (!found)
        qFatal("there is no %s named %s", Class::staticMetaObject.className(), name);
    return *found;
}
