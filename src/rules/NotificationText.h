#pragma once

#include <QString>

/// Prepares texts that users have typed or pasted for notifications.
namespace NotificationText
{
/// The text in one line of readable length: line breaks and other control characters become blanks,
/// and characters that would change the direction of the text are removed. A text that is too long
/// ends in an ellipsis, and is not cut inside a character unless that is extremely long.
[[nodiscard]] QString line(const QString &text);
} // namespace NotificationText
