#pragma once

#include <QString>

/// Whether an alarm may go on until the user stops it.
namespace KeepWuffing
{
/// What the keep-wuffing box says of itself: what it does, or why it cannot be ticked. The reason
/// that takes most to mend comes first.
[[nodiscard]] QString hint(bool stopwatch, bool somethingFollows, bool muted);
} // namespace KeepWuffing
