#pragma once

#include <QObject>

class QComboBox;

/// Has the entries of a combo box picked from its open list only, for a box with entries that act
/// as soon as they are selected: over a closed box the wheel does nothing, and the keys that would
/// run through the entries open the list. Belongs to the box.
class PickFromList final : public QObject
{
    Q_OBJECT

public:
    explicit PickFromList(QComboBox &combo);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QComboBox &_combo;
};
