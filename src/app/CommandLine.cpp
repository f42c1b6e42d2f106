#include "app/CommandLine.h"

#include "BuildInfo.h"
#include "app/Translation.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>

namespace
{
const QString kService = QStringLiteral("service");

QString translated(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(translated(QT_TRANSLATE_NOOP(
        "CommandLine", "Countdown timers for the desktop. If the program is "
                       "already running, it carries out what is asked for here.")));
    for (const NamedLaunchOrder &order : kNamedLaunchOrders)
        parser.addOption({QString::fromLatin1(order.name), translated(order.description)});
    QCommandLineOption service(
        kService, translated(QT_TRANSLATE_NOOP("CommandLine",
                                               "Wait for the session bus to say what to open.")));
    parser.addOption(service);
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                      translated(QT_TRANSLATE_NOOP("CommandLine", "Show this help."))});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")},
                      translated(QT_TRANSLATE_NOOP("CommandLine", "Show the version."))});
}

LaunchOrder orderIn(const QStringList &options)
{
    LaunchOrder last = LaunchOrder::Activate;
    for (const QString &option : options)
        last = launchOrderNamed(option).value_or(last);
    return last;
}
} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return {.answer = parser.errorText() + QLatin1Char('\n'), .exitStatus = 2};
    if (parser.isSet(QStringLiteral("help")))
        return {.answer = parser.helpText()};
    if (parser.isSet(QStringLiteral("version")))
        return {.answer = BuildInfo::name() + QLatin1Char(' ') + BuildInfo::version() +
                          QLatin1Char('\n')};
    if (!parser.positionalArguments().isEmpty()) {
        const QString first = parser.positionalArguments().constFirst();
        return {.answer = translated(QT_TRANSLATE_NOOP("CommandLine", "Unexpected argument “%1”."))
                              .arg(first) +
                          QLatin1Char('\n'),
                .exitStatus = 2};
    }
    return {
        .order = orderIn(parser.optionNames()), .service = parser.isSet(kService), .answer = {}};
}

bool writeAnswer(const CommandLine &commandLine)
{
    if (!commandLine.answer)
        return false;
    std::fputs(qPrintable(*commandLine.answer), commandLine.exitStatus == 0 ? stdout : stderr);
    return true;
}

static bool isHelpOrVersion(std::string_view argument)
{
    return argument == "-h" || argument == "--help" || argument == "-v" || argument == "--version";
}

bool answeredWithoutDisplay(int argc, char **argv)
{
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    const auto option = std::ranges::find_if(arguments, isHelpOrVersion);
    if (option == arguments.end())
        return false;
    const QCoreApplication application(argc, argv);
    const Translation translation;
    return writeAnswer(readCommandLine(
        {QCoreApplication::arguments().constFirst(), QString::fromLocal8Bit(*option)}));
}
