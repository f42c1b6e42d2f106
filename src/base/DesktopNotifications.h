#pragma once

#include <QString>

#include <functional>

class QObject;

/// The texts of a desktop notification, in plain text, and what its buttons do.
struct DesktopNotification
{
    /// Why the notification is shown.
    enum class Occasion {
        /// An event has occurred.
        News,
        /// The buttons of the notification that is shown change, but not its texts.
        Change,
        /// The notification has expired but is still needed. It comes back without alerting the
        /// user.
        Reminder,
    };
    /// How a notification that was not withdrawn has ended.
    enum class End {
        /// The desktop has shown it for its usual time.
        Expired,
        /// The user has closed it, or the reason is unknown.
        Dismissed,
    };

    QString title;
    QString text;
    /// The program's name for this kind of event.
    QString name;
    /// What it is about, in one line. A summary of many notifications shows only this line.
    QString subject = {};

    /// What the buttons do; a click on the notification itself calls show. An empty function means
    /// that there is no such button, and a desktop may support no buttons at all. None is called
    /// after the notification was withdrawn or its sender destroyed.
    std::function<void()> show = {};
    std::function<void()> stop = {};
    /// Called when the notification has expired or the user has dismissed it.
    std::function<void(End)> closed = {};

    Occasion occasion = Occasion::News;
};

/// Shows notifications outside the windows of the program. A failure to show one is not reported,
/// and no call waits for the desktop. Main thread.
class DesktopNotifications
{
public:
    DesktopNotifications() = default;
    virtual ~DesktopNotifications() = default;
    Q_DISABLE_COPY_MOVE(DesktopNotifications)

    /// Shows the notification. It replaces the last one from the same sender, if that is still
    /// shown. The sender is only an identity.
    virtual void notify(const QObject &sender, const DesktopNotification &notification) = 0;

    /// Removes the sender's last notification, even if it is not shown yet; has no effect if there
    /// is none. Destroying the sender removes it, too.
    virtual void withdraw(const QObject &sender) = 0;
};
