#pragma once

#include <QtGlobal>

class QUrl;
class QWidget;

/// Small favours that the program asks of the desktop. None of them reports anything back.
/// Main thread.
class Desktop
{
public:
    Desktop() = default;
    virtual ~Desktop() = default;
    Q_DISABLE_COPY_MOVE(Desktop)

    /// Marks the window in the task bar until the user turns to it. Nothing happens when it has
    /// the user's attention already.
    virtual void requestUserAttention(QWidget &window) = 0;

    /// The short sound by which the desktop says no.
    virtual void beep() = 0;

    /// Shows the page or file in the program that the user prefers for it.
    virtual void openUrl(const QUrl &url) = 0;
};
