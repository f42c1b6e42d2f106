#pragma once

class QWidget;

/// Keeps windows above those of all programs. The window manager holds this state; the program only
/// requests and reads it.
namespace WindowLevel
{
/// Whether the window manager supports it. Always false without X11.
[[nodiscard]] bool canKeepOnTop();

/// Whether this window, which has been shown, is kept above the others now.
[[nodiscard]] bool isKeptOnTop(const QWidget &window);

/// Asks the window manager to keep the window above the others, or to stop doing so. Does not wait
/// until the window manager has done it.
void keepOnTop(QWidget &window, bool onTop);
} // namespace WindowLevel
