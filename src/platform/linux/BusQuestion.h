#pragma once

#include <functional>
#include <limits>

class QDBusMessage;
class QObject;

/// Calls to services on the session bus that do not block. Main thread.
namespace BusQuestion
{
/// For answers that must be handled however late they come.
inline constexpr int kNoTimeout = std::numeric_limits<int>::max(); // ms
/// Lets Qt D-Bus choose the timeout.
inline constexpr int kDefaultTimeout = -1;

/// Whether there is a bus for calls. Connects to it.
[[nodiscard]] bool isPossible();

/// Sends the question and calls `answered` with the answer, which may be an error, unless the
/// context has been destroyed by then. The timeout is in milliseconds.
void ask(const QDBusMessage &question, QObject &context, int timeout,
         std::function<void(const QDBusMessage &answer)> answered);
} // namespace BusQuestion
