#pragma once

#include <QtGlobal>

class QString;
class QUrl;
class QWidget;

/// Small requests to the desktop. None of them reports a result. Main thread.
class Desktop
{
public:
    Desktop() = default;
    virtual ~Desktop() = default;
    Q_DISABLE_COPY_MOVE(Desktop)

    /// Marks the window in the task bar until the user activates it. Has no effect on the active
    /// window.
    virtual void requestUserAttention(QWidget &window) = 0;

    /// Plays the desktop's short error sound.
    virtual void beep() = 0;

    /// Has screen readers read the text aloud, in the name of this window, wherever the focus is.
    virtual void announce(QWidget &window, const QString &text) = 0;

    /// Opens the page or file in the user's preferred program for it.
    virtual void openUrl(const QUrl &url) = 0;
};
