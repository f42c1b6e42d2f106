#pragma once

class QString;

/// Tells the desktop that the launch with this id is complete, so that it stops showing a busy
/// pointer. Follows the Startup Notification Protocol of freedesktop.org; meant for a launch that
/// opens no window. Does nothing with an empty id or without X11.
void endStartupNotification(const QString &id);
