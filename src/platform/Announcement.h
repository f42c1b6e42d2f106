#pragma once

#include "base/ClockTimer.h"

#include <QWidget>

/// A text that screen readers read aloud, wherever the focus is.
///
/// It is a notification that comes into their view for a moment and then leaves it. It takes no
/// room in its window, which owns it, so that it is not seen on the screen. Main thread.
class Announcement final : public QWidget
{
    Q_OBJECT

public:
    /// Announces the text once, from this window, in place of an earlier text.
    static void say(QWidget &window, const QString &text);

private:
    explicit Announcement(QWidget &window);

    void comeIntoView(const QString &text);

    ClockTimer _leaveTimer{[this] { hide(); }};
};
