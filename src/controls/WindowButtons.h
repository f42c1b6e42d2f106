#pragma once

#include <Qt>

/// The flags of a window without a button that maximises it, for windows that would gain nothing
/// but empty space. Set them before the window is shown; later they would hide it.
inline constexpr Qt::WindowFlags kWindowNotToMaximize =
    Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
    Qt::WindowCloseButtonHint;
