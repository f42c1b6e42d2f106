#pragma once

class QWidget;

/// Windows that stay above those of all programs. That is a state which the window manager keeps
/// with the window; it is not the program's, which only asks for it and reads it.
namespace WindowLevel
{
/// Whether the window manager does it. It does so on X11.
[[nodiscard]] bool canKeepOnTop();

/// Whether this window, which has been shown, is kept above the others now.
[[nodiscard]] bool isKeptOnTop(const QWidget &window);

/// Asks the window manager to keep the window above the others, or no longer. The window stays as
/// it is until that answers.
void keepOnTop(QWidget &window, bool onTop);
} // namespace WindowLevel
