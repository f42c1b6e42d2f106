#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// Delivers named notices from the objects that post them to the observers that have registered.
///
/// A notice is delivered before postNotificationName() returns, to its observers in the order in
/// which they registered. Destroying an observer removes it. Main thread.
class NotificationCenter final
{
public:
    NotificationCenter() = default;
    Q_DISABLE_COPY_MOVE(NotificationCenter)

    /// Called with the object that posted the notice, or null.
    using Handler = std::function<void(QObject *object)>;

    /// The one centre of the program.
    [[nodiscard]] static NotificationCenter &defaultCenter();

    /// Calls the handler whenever a notice of this name is posted, while the observer exists.
    void addObserver(QObject &observer, const QString &name, Handler handler);

    /// Removes every registration of this observer for the name.
    void removeObserver(const QObject &observer, const QString &name);

    /// Delivers the notice. Observers that register during the delivery do not get it, nor do those
    /// that are destroyed or removed before their turn. If the object is destroyed during the
    /// delivery, the remaining handlers get null.
    void postNotificationName(const QString &name, QObject *object = nullptr);

private:
    struct Registration
    {
        QPointer<QObject> observer;
        QString name;
        Handler handler;
    };

    // Shared with deliveries in progress, so that a handler outlives its removal until it returns.
    std::vector<std::shared_ptr<Registration>> _registrations;
};
