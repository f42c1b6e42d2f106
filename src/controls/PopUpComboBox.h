#pragma once

#include "controls/SpokenComboBox.h"

/// A combo box that signals when its list is about to open, so that the list can be updated first.
/// While the list is closed the wheel selects nothing; the parent widget gets its events.
class PopUpComboBox final : public SpokenComboBox
{
    Q_OBJECT

public:
    using SpokenComboBox::SpokenComboBox;

    void showPopup() override;

Q_SIGNALS:
    void willPopUp();

protected:
    void wheelEvent(QWheelEvent *event) override;
};
