#pragma once

#include <QComboBox>

/// A combo box that says when its list is about to open, so that the list can be brought up to
/// date first.
class PopUpComboBox final : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;

Q_SIGNALS:
    void willPopUp();
};
