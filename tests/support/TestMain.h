#pragma once

#include <QCoreApplication>
#include <QTest>

#include <memory>

/// A test object every test of which fails when the program writes a warning that nobody expects.
class Test : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
};

/// The surroundings that most test classes run in: the program's application object, which leaves
/// the settings of the user alone.
class InApplication final
{
public:
    InApplication(int &argc, char **argv);
    ~InApplication();
    Q_DISABLE_COPY_MOVE(InApplication)

private:
    std::unique_ptr<QCoreApplication> _application;
};

/// An application object that knows of no windows.
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

/// Runs the tests of a class in its surroundings, which are given to a class that takes them.
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

/// Makes a test class known to the program that it is a part of, by its name without "tst_". The
/// program runs the one class that its first argument names: each has a process of its own, and an
/// application object that no other has used.
class KnownTest final
{
public:
    using Run = int (*)(int argc, char **argv);
    KnownTest(const char *className, Run run);
};

/// Enters a test class, and the surroundings it runs in unless they are InApplication.
#define WUFFER_TEST(...) WUFFER_TEST_IN(__VA_ARGS__, InApplication)
#define WUFFER_TEST_IN(Class, Surroundings, ...)                                                   \
    namespace                                                                                      \
    {                                                                                              \
    const KnownTest known(#Class, &runTest<Class, Surroundings>);                                  \
    }
