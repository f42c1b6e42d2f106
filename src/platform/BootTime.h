#pragma once

/// Seconds since the computer was started, suspended ones included where the system counts those.
/// Setting the computer's clock changes nothing. Any thread.
[[nodiscard]] double secondsSinceBoot();
