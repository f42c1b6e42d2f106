#pragma once

/// The name of the back end that cubeb is to use on this system; null to let it choose. Waits for
/// the sound server, for ever if that hangs. Any thread.
[[nodiscard]] const char *soundBackEnd();
