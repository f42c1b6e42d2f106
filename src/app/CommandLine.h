#pragma once

#include "app/LaunchOrder.h"

#include <QStringList>

#include <optional>

/// What the command line asks for.
struct CommandLine
{
    LaunchOrder order = LaunchOrder::Activate;
    /// Started by the session bus: the order comes from there.
    bool service = false;
    /// To be written before the program ends at once, and its exit status then.
    std::optional<QString> answer;
    int exitStatus = 0;
};

/// Reads the arguments, of which the first is the program. Of several orders the last holds. An
/// argument that nobody knows is answered with an explanation.
[[nodiscard]] CommandLine readCommandLine(const QStringList &arguments);

/// Writes the answer, if there is one; whether there was.
bool writeAnswer(const CommandLine &commandLine);

/// Answers a question for help or the version, which needs no display; whether there was one.
/// Comes before the application object.
[[nodiscard]] bool answeredWithoutDisplay(int argc, char **argv);
