#pragma once

/// Whether the desktop has a session bus. One that is missing is done without: the libraries that
/// we use would otherwise start one for themselves, which would outlive the program.
namespace SessionBus
{
[[nodiscard]] bool isPresent();

/// Keeps everybody in this process from starting a bus where there is none, and from waiting for
/// one that hangs. Comes before all that might ask for it, the application object included.
void doWithoutUnlessItAnswers();
} // namespace SessionBus
