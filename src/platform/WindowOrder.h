#pragma once

class QWidget;

/// Shows the window in front of the others, also when it was hidden, minimized or on another
/// workspace, and makes it the active one, also when another program is active.
void bringToFront(QWidget &window);
