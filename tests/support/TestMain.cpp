#include "support/TestMain.h"

#include "app/WufferApplication.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <iostream>
#include <map>
#include <string>

namespace
{
using Tests = std::map<std::string, KnownTest::Run, std::less<>>;

/// All test classes of this program. They register themselves before main() begins.
Tests &tests()
{
    static Tests all;
    return all;
}

int listTests(const char *program)
{
    std::cerr << "Usage: " << program << " NAME [Qt Test arguments]\n\nRuns one of these:\n\n";
    for (const auto &[name, run] : tests())
        std::cerr << "    " << name << '\n';
    return 2;
}
} // namespace

void Test::init()
{
    // The offscreen platform warns whenever a window asks for something that it lacks.
    const auto unexpected = QStringLiteral("^(?!This plugin does not support )");
    QTest::failOnWarning(QRegularExpression(unexpected));
}

InApplication::InApplication(int &argc, char **argv)
{
    QStandardPaths::setTestModeEnabled(true);
    _application = std::make_unique<WufferApplication>(argc, argv);
}

InApplication::~InApplication() = default;

KnownTest::KnownTest(const char *className, Run run)
{
    const std::string name = std::string(className).substr(std::string("tst_").size());
    if (!tests().emplace(name, run).second)
        qFatal("two test classes are named %s", name.c_str());
}

int main(int argc, char *argv[])
{
    const auto test = tests().find(argc > 1 ? argv[1] : "");
    if (test == tests().end())
        return listTests(argv[0]);
    // Qt Test gets the arguments without the name of the class.
    argv[1] = argv[0];
    return test->second(argc - 1, argv + 1);
}
