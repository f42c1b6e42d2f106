#pragma once

class QByteArray;

/// The session bus of the desktop. If it is missing or hangs, the program does without.
namespace SessionBus
{
/// Whether there is a session bus to connect to.
[[nodiscard]] bool isPresent();

/// The address of the bus, as the environment has it or at the usual place.
[[nodiscard]] QByteArray address();

/// Keeps the libraries of this process from starting a bus of their own, which would outlive the
/// program, and from waiting for a bus that hangs. Call it before anything that may connect to the
/// bus, the application object included.
void disableUnlessItAnswers();
} // namespace SessionBus
