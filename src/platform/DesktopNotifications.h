#pragma once

#include <QString>

class QObject;

/// What a desktop notification says. Plain text.
struct DesktopNotification {
    QString title;
    QString text;
    /// What kind of event it tells of, in the program's own words.
    QString name;
};

/// Shows notifications outside the windows of the program. A notification that cannot be shown
/// is not reported; nothing waits for one. Main thread.
class DesktopNotifications
{
public:
    DesktopNotifications() = default;
    virtual ~DesktopNotifications() = default;
    Q_DISABLE_COPY_MOVE(DesktopNotifications)

    /// Shows the notification in place of the last one from the same sender, if that is still
    /// there. The sender is only an identity; what it has shown outlives it.
    virtual void notify(const QObject &sender, const DesktopNotification &notification) = 0;
};
