#pragma once

/// Seconds since the computer was started. They include the time in suspend where the system counts
/// it, and do not change when the computer's clock is set. Any thread.
[[nodiscard]] double secondsSinceBoot();
