#pragma once

/// The way out that the sound library is to take on this system, by the library's own name; null to
/// let it choose. May wait for the sound server, for ever if that is stuck. Any thread.
[[nodiscard]] const char *soundBackEnd();
