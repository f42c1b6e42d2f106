#pragma once

class QString;

/// Tells the desktop that what it has launched under this identification is there, so that the
/// pointer need not show any longer that something is being started. By the Startup Notification
/// Protocol of freedesktop.org; for a launch that opens no window by itself. Nothing happens with
/// an empty identification or away from X.
void endStartupNotification(const QString &id);
