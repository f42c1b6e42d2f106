#pragma once

/// The screen saver of the X server, which blanks the screen where the desktop does not.
namespace XScreenSaver
{
/// Suspends the screen saver, or resumes it after one call that suspended it. The server resumes it
/// when the program ends. Does nothing without an X server that supports this.
void suspend(bool suspended);
} // namespace XScreenSaver
