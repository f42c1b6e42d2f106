#pragma once

#include <QString>

/// How a text that somebody has typed or pasted stands in a notification.
namespace NotificationText
{
/// The text in one line of a length that a person would read: line breaks and other controls
/// become spaces, what would turn the direction of the text around it is left out, and a text that
/// is too long ends in an ellipsis. Never cuts through a character.
[[nodiscard]] QString line(const QString &text);
} // namespace NotificationText
