#pragma once

#include <QString>

#include <functional>

class QObject;

/// What a desktop notification says, in plain text, and what can be done with it.
struct DesktopNotification
{
    /// Why it comes up.
    enum class Occasion {
        /// Something has happened.
        News,
        /// What stands offers something else from now on, and says the same.
        Change,
        /// It went by itself and is needed still: it comes back, without asking to be noticed.
        Reminder,
    };
    /// How one that was not withdrawn has gone.
    enum class End {
        /// The desktop has shown it for as long as it shows such ones.
        Expired,
        /// The user has taken it away, or it is not known how it went.
        Dismissed,
    };

    QString title;
    QString text;
    /// What kind of event it tells of, in the program's own words.
    QString name;
    /// Whom it tells of, in a line: what is left of it among many others.
    QString subject = {};

    /// What the buttons do, and a click on the notification itself, which shows. A desktop may
    /// have no buttons. Without a function there is none. They are called at most until the
    /// notification is withdrawn or its sender destroyed.
    std::function<void()> show = {};
    std::function<void()> stop = {};
    /// Called when it has gone by itself or been dismissed by the user.
    std::function<void(End)> closed = {};

    Occasion occasion = Occasion::News;
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
    /// there. The sender is only an identity.
    virtual void notify(const QObject &sender, const DesktopNotification &notification) = 0;

    /// Takes away what the sender has shown last, or is about to show; harmless when there is
    /// nothing. A sender that is destroyed leaves nothing behind either.
    virtual void withdraw(const QObject &sender) = 0;
};
