#include "platform/Announcement.h"

#include <QAccessibleWidget>

namespace
{
/// Seconds in which a busy screen reader can ask for the text.
constexpr double kSecondsInView = 10.0;

class AccessibleAnnouncement final : public QAccessibleWidget
{
public:
    // Screen readers of Linux read a notification aloud when it comes into view, but no alert.
    explicit AccessibleAnnouncement(Announcement &announcement) :
        QAccessibleWidget(&announcement, QAccessible::Notification)
    {}
};

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    if (className == QLatin1String("Announcement"))
        return new AccessibleAnnouncement(*static_cast<Announcement *>(object));
    return nullptr;
}
} // namespace

Announcement::Announcement(QWidget &window) : QWidget(&window)
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    setFixedSize(0, 0);
    hide();
}

void Announcement::say(QWidget &window, const QString &text)
{
    auto *announcement = window.findChild<Announcement *>({}, Qt::FindDirectChildrenOnly);
    if (announcement == nullptr)
        announcement = new Announcement(window);
    announcement->comeIntoView(text);
}

void Announcement::comeIntoView(const QString &text)
{
    hide();
    setAccessibleName(text);
    show();
    _leaveTimer.startOnce(kSecondsInView);
}
