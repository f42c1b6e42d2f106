#pragma once

/// Whether the program learns and chooses the places of its windows. On Wayland only the compositor
/// knows them: every window seems to be in the corner of its screen.
[[nodiscard]] bool knowsWindowPlaces();
