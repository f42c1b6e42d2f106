#pragma once

#include "app/LaunchOrder.h"

#include <QStringList>

#include <optional>

/// What the command line asks for.
struct CommandLine
{
    LaunchOrder order = LaunchOrder::Activate;
    /// True when the session bus started the program; the order then comes over the bus.
    bool service = false;
    /// When set, the program writes this text and exits with exitStatus instead of starting.
    std::optional<QString> answer;
    int exitStatus = 0;
};

/// Reads the arguments, of which the first is the program. Of several orders the last one counts.
/// For an unknown argument the answer is an error message.
[[nodiscard]] CommandLine readCommandLine(const QStringList &arguments);

/// Writes the answer, if there is one, and returns whether there was.
bool writeAnswer(const CommandLine &commandLine);

/// Answers --help and --version, which need no display, and returns whether one of them was given.
/// Call it before the application object is made.
[[nodiscard]] bool answeredWithoutDisplay(int argc, char **argv);
