#pragma once

#include "app/WufferApplication.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

/// A test object every test of which fails when the program writes a warning that nobody expects.
class Test : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init()
    {
        // The display that is only in memory says so whenever a window wants more of it.
        const auto unexpected = QStringLiteral("^(?!This plugin does not support )");
        QTest::failOnWarning(QRegularExpression(unexpected));
    }
};

/// The main function of a test program: runs the tests of the class in a real application object,
/// without touching the settings of whoever runs them.
#define WUFFER_TEST_MAIN(Class)                                                                    \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QStandardPaths::setTestModeEnabled(true);                                                  \
        WufferApplication application(argc, argv);                                                 \
        Class test;                                                                                \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
