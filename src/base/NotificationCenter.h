#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// Carries named notices from those who post them to those who asked for them.
///
/// A notice is delivered at once, before the posting returns, to its observers in the order in
/// which they registered. An observer that is destroyed is dropped. Main thread.
class NotificationCenter final
{
public:
    NotificationCenter() = default;
    Q_DISABLE_COPY_MOVE(NotificationCenter)

    /// What a handler learns of the notice: who posted it, or null.
    using Handler = std::function<void(QObject *object)>;

    /// The one centre of the program.
    [[nodiscard]] static NotificationCenter &defaultCenter();

    /// Calls the handler whenever a notice of this name is posted, for as long as the observer
    /// exists.
    void addObserver(QObject &observer, const QString &name, Handler handler);

    /// Drops every registration of this observer for the name.
    void removeObserver(const QObject &observer, const QString &name);

    /// Delivers the notice. Observers that register during the delivery do not get this one;
    /// those that are destroyed or removed during it are left out. Once the object is destroyed
    /// during it, the rest get null.
    void postNotificationName(const QString &name, QObject *object = nullptr);

private:
    struct Registration
    {
        QPointer<QObject> observer;
        QString name;
        Handler handler;
    };

    // Shared with the deliveries under way, which they outlive.
    std::vector<std::shared_ptr<Registration>> _registrations;
};
