#pragma once

#include <QCoreApplication>
#include <QTest>

#include <memory>

/// A test class in which every test fails if the program writes an unexpected warning.
class Test : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
};

/// The surroundings of most test classes: the program's application object, which here does not
/// touch the user's settings.
class InApplication final
{
public:
    InApplication(int &argc, char **argv);
    ~InApplication();
    Q_DISABLE_COPY_MOVE(InApplication)

private:
    std::unique_ptr<QCoreApplication> _application;
};

/// An application object without support for windows.
class WithoutWindows final
{
public:
    WithoutWindows(int &argc, char **argv) : _application(argc, argv) {}

private:
    QCoreApplication _application;
};

/// No application object at all.
class WithoutApplication final
{
public:
    WithoutApplication(int & /*argc*/, char ** /*argv*/) {}
};

/// Runs the tests of a class in its surroundings. The class gets them if its constructor takes
/// them.
template<typename Class, typename Surroundings = InApplication> int runTest(int argc, char **argv)
{
    [[maybe_unused]] const Surroundings surroundings(argc, argv);
    if constexpr (std::is_constructible_v<Class, const Surroundings &>) {
        Class test(surroundings);
        return QTest::qExec(&test, argc, argv);
    } else {
        Class test;
        return QTest::qExec(&test, argc, argv);
    }
}

/// Registers a test class with its test program, under its name without "tst_". The program runs
/// only the class that its first argument names, so each class has its own process and a fresh
/// application object.
class KnownTest final
{
public:
    using Run = int (*)(int argc, char **argv);
    KnownTest(const char *className, Run run);
};

/// Registers a test class, and as a second argument its surroundings; the default is InApplication.
#define WUFFER_TEST(...) WUFFER_TEST_IN(__VA_ARGS__, InApplication)
#define WUFFER_TEST_IN(Class, Surroundings, ...)                                                   \
    namespace                                                                                      \
    {                                                                                              \
    const KnownTest known(#Class, &runTest<Class, Surroundings>);                                  \
    }
