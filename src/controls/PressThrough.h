#pragma once

#include <QObject>

class QAbstractButton;

/// Passes the mouse events of a disabled button to the window behind it. Otherwise the button would
/// swallow them, and the window could not be dragged there. The tool tip of the button still shows.
/// The button owns this object.
class PressThrough final : public QObject
{
    Q_OBJECT

public:
    explicit PressThrough(QAbstractButton &button);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QAbstractButton &_button;
};
