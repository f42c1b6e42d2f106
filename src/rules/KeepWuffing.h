#pragma once

#include <QString>

/// The keep-wuffing box, which lets an alarm repeat until the user stops it.
namespace KeepWuffing
{
/// The tool tip of the box: what it does, or why it is disabled. Of several reasons, the one that
/// takes the user most effort to change.
[[nodiscard]] QString hint(bool stopwatch, bool somethingFollows, bool muted);
} // namespace KeepWuffing
