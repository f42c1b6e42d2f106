#include "app/CommandLine.h"
#include "support/TestMain.h"

#include <QTemporaryFile>

#include <array>
#include <cstdio>
#include <functional>
#include <unistd.h>

/// What the arguments of the program mean.
class tst_CommandLine final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void withoutArgumentsTheOrderIsToActivate();
    void everyOrderHasAnOption();
    void theLastOfSeveralOrdersCounts();
    void theServiceOptionAsksForAService();
    void questionsAreAnswered_data();
    void questionsAreAnswered();
    void unknownArgumentsAreExplained_data();
    void unknownArgumentsAreExplained();
    void answersGoToTheOutputAndErrorsToTheErrorOutput();
    void onlyQuestionsAreAnsweredWithoutADisplay();
    void ordersHaveNamesAndBack();
};

/// The bytes that the function writes to this stream.
static QByteArray written(FILE *stream, const std::function<void()> &function)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("cannot create a temporary file");
    std::fflush(stream);
    const int before = ::dup(::fileno(stream));
    ::dup2(file.handle(), ::fileno(stream));
    function();
    std::fflush(stream);
    ::dup2(before, ::fileno(stream));
    ::close(before);
    file.seek(0);
    return file.readAll();
}

static CommandLine read(const QStringList &arguments)
{
    return readCommandLine(QStringList(QStringLiteral("wuffer")) + arguments);
}

void tst_CommandLine::withoutArgumentsTheOrderIsToActivate()
{
    const CommandLine line = read({});
    QVERIFY(line.order == LaunchOrder::Activate);
    QVERIFY(!line.service);
    QVERIFY(!line.answer);
}

void tst_CommandLine::everyOrderHasAnOption()
{
    QVERIFY(read({QStringLiteral("--new-timer")}).order == LaunchOrder::NewTimer);
    QVERIFY(read({QStringLiteral("--start-all")}).order == LaunchOrder::StartAll);
    QVERIFY(read({QStringLiteral("--preferences")}).order == LaunchOrder::Preferences);
    QVERIFY(read({QStringLiteral("--converter")}).order == LaunchOrder::Converter);
}

void tst_CommandLine::theLastOfSeveralOrdersCounts()
{
    const CommandLine line = read({QStringLiteral("--converter"), QStringLiteral("--new-timer")});
    QVERIFY(line.order == LaunchOrder::NewTimer);
}

void tst_CommandLine::theServiceOptionAsksForAService()
{
    const CommandLine line = read({QStringLiteral("--service")});
    QVERIFY(line.service);
    QVERIFY(line.order == LaunchOrder::Activate);
}

void tst_CommandLine::questionsAreAnswered_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("part");
    QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("--start-all");
    QTest::newRow("help, short") << QStringLiteral("-h") << QStringLiteral("--preferences");
    QTest::newRow("version") << QStringLiteral("--version")
                             << QCoreApplication::applicationVersion();
    QTest::newRow("version, short") << QStringLiteral("-v") << QStringLiteral("Wuffer ");
}

void tst_CommandLine::questionsAreAnswered()
{
    QFETCH(const QString, option);
    QFETCH(const QString, part);
    const CommandLine line = read({option});
    QVERIFY(line.answer);
    QVERIFY2(line.answer->contains(part), qPrintable(*line.answer));
    QVERIFY(line.answer->endsWith(QLatin1Char('\n')));
    QCOMPARE(line.exitStatus, 0);
}

void tst_CommandLine::unknownArgumentsAreExplained_data()
{
    QTest::addColumn<QString>("argument");
    QTest::newRow("option") << QStringLiteral("--sing");
    QTest::newRow("file") << QStringLiteral("tea.txt");
    QTest::newRow("value for an option without one") << QStringLiteral("--converter=2");
}

void tst_CommandLine::unknownArgumentsAreExplained()
{
    QFETCH(const QString, argument);
    const CommandLine line = read({argument});
    QVERIFY(line.answer);
    QVERIFY(line.answer->size() > 5);
    QCOMPARE(line.exitStatus, 2);
}

void tst_CommandLine::ordersHaveNamesAndBack()
{
    for (const NamedLaunchOrder &each : kNamedLaunchOrders)
        QVERIFY(launchOrderNamed(nameOf(each.order)) == each.order);
    QCOMPARE(nameOf(LaunchOrder::Activate), QString());
    QVERIFY(launchOrderNamed({}) == LaunchOrder::Activate);
    QVERIFY(!launchOrderNamed(QStringLiteral("New-Timer")));
}

void tst_CommandLine::answersGoToTheOutputAndErrorsToTheErrorOutput()
{
    const CommandLine answer{.answer = QStringLiteral("Wuffer 1\n")};
    const CommandLine complaint{.answer = QStringLiteral("no such option\n"), .exitStatus = 2};
    bool answered = false;
    const auto write = [&](const CommandLine &line) {
        return [&] { answered = writeAnswer(line); };
    };
    QCOMPARE(written(stdout, write(answer)), QByteArray("Wuffer 1\n"));
    QVERIFY(answered);
    QCOMPARE(written(stderr, write(complaint)), QByteArray("no such option\n"));
    QVERIFY(answered);
    QCOMPARE(written(stdout, write({})), QByteArray());
    QVERIFY(!answered);
}

void tst_CommandLine::onlyQuestionsAreAnsweredWithoutADisplay()
{
    for (const char *option : {"--new-timer", "--versions", "-help", "tea.txt"}) {
        QByteArray program("wuffer");
        QByteArray argument(option);
        std::array arguments{program.data(), argument.data()};
        QVERIFY2(!answeredWithoutDisplay(int(arguments.size()), arguments.data()), option);
    }
}

WUFFER_TEST(tst_CommandLine)
#include "tst_CommandLine.moc"
