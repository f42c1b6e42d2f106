#pragma once

#include "app/WufferApplication.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

/// A test object every test of which fails when the program writes a warning that nobody expects.
class Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // What a platform without a screen cannot do is no fault of the program.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
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
