#pragma once

class QWidget;

/// Shows the window in front of the others and activates it, even when it is hidden, minimized or
/// on another workspace, or another program is active.
void bringToFront(QWidget &window);
