#pragma once

class QWidget;

/// Shows the window in front of the others, also when it was hidden or minimized, and makes it the
/// active one.
void bringToFront(QWidget &window);
