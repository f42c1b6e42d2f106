#pragma once

class QWidget;

/// Asks the window manager to turn to the workspace of the window, which is shown, and to make it
/// the active one. For a window that only asks for itself a window manager draws attention to it
/// and no more while the user is at something else: of a press in the panel it knows nothing.
/// Nothing happens away from X11.
void askWindowManagerFor(const QWidget &window);
