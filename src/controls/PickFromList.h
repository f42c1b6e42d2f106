#pragma once

#include <QObject>

class QComboBox;

/// Lets the user pick the entries of a combo box only from its open list, for a box whose entries
/// act as soon as they are selected: over a closed box the wheel does nothing, and the keys that
/// would select another entry open the list. The box owns this object.
class PickFromList final : public QObject
{
    Q_OBJECT

public:
    explicit PickFromList(QComboBox &combo);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QComboBox &_combo;
};
