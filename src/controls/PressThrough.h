#pragma once

#include <QObject>

class QAbstractButton;

/// Lets the mouse through a button while that is disabled, to the window behind it. A disabled
/// button would keep every press to itself, and be a spot at which the window cannot be dragged.
/// Its tool tip shows as ever. Belongs to the button.
class PressThrough final : public QObject
{
    Q_OBJECT

public:
    explicit PressThrough(QAbstractButton &button);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QAbstractButton &_button;
};
