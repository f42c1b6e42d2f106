#pragma once

/// The screen saver of the X server, which blanks the screen where the desktop does not.
namespace XScreenSaver
{
/// Keeps it from coming up, or lets it again; each is said once. The server lets it again by itself
/// when the program ends. Does nothing where there is no X server that can.
void suspend(bool suspended);
} // namespace XScreenSaver
