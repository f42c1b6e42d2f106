#pragma once

#include "platform/DarkPreference.h"

#include <QPalette>

/// Gives the program dark colours while the user prefers dark windows and the desktop's theme has
/// given light ones: some desktops only tell of the preference and leave the colours to programs.
class DarkTheme final
{
public:
    DarkTheme();

    /// Applies the preference; has no effect on a theme that is dark itself.
    void setDark(bool dark);

    /// The dark colours.
    [[nodiscard]] static QPalette palette();

private:
    DarkPreference _preference;
    bool _isSet = false;
};
