#pragma once

class QWidget;

/// Asks the window manager to switch to the workspace of this visible window and to activate it, on
/// behalf of the user. Without that last part a window manager only draws attention to the window
/// while the user works elsewhere, because it does not know that the user has clicked in the panel.
/// Does nothing without X11.
void askWindowManagerToActivate(const QWidget &window);
