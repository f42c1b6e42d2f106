#include "app/MissingDisplay.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace
{
QtMessageHandler previousHandler = nullptr;
/// What Qt says before it fails, in several lines.
QStringList warnings;

void write(const QString &line)
{
    std::fprintf(stderr, "%s\n", qPrintable(line));
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        warnings << qFormatLogMessage(type, context, message);
        return;
    }
    write(QStringLiteral("wuffer: There is no display that the program can open."));
    // The application object is half made, so it cannot be destroyed.
    std::_Exit(EXIT_FAILURE);
}
} // namespace

MissingDisplay::MissingDisplay()
{
    previousHandler = qInstallMessageHandler(handle);
}

MissingDisplay::~MissingDisplay()
{
    qInstallMessageHandler(previousHandler);
    for (const QString &warning : std::exchange(warnings, {}))
        write(warning);
}
