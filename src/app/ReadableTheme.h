#pragma once

#include <QPalette>

/// The colours of the desktop's theme, but with texts that can be read. Some themes draw selected
/// texts, links or the hints in empty fields with too little contrast.
class ReadableTheme final
{
public:
    /// Takes the colours of the theme. Call it again when the palette of the application has
    /// changed.
    void follow();

    /// The theme with the colours that make all of its texts readable.
    [[nodiscard]] static QPalette readablePalette(const QPalette &theme);

private:
    /// Withdraws the colours that were set for the previous theme.
    void withdraw();

    /// What was set; it has the colours of the theme elsewhere.
    QPalette _set;
    QPalette::ResolveMask _roles = 0;
    bool _following = false;
};
