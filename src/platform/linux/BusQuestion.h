#pragma once

#include <functional>
#include <limits>

class QDBusMessage;
class QObject;

/// Questions to services on the session bus, put without waiting for the answer. Main thread.
namespace BusQuestion
{
/// The longest that an answer may take, for those that must be heard however late they come.
inline constexpr int kWithoutEnd = std::numeric_limits<int>::max(); // ms
/// As long as the library waits.
inline constexpr int kUsual = -1;

/// Whether there is a bus to put questions to. Connects to it.
[[nodiscard]] bool isPossible();

/// Puts the question, and calls the function with the answer, which may be an error, unless the
/// context has been destroyed by then.
void ask(const QDBusMessage &question, QObject &context, int longestWait,
         std::function<void(const QDBusMessage &answer)> answered);
} // namespace BusQuestion
