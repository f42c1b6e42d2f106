#pragma once

#include <QComboBox>

/// A combo box that says when its list is about to open, so that the list can be brought up to
/// date first. While the list is closed the wheel selects nothing: it was meant for what lies
/// around the box.
class PopUpComboBox final : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;

Q_SIGNALS:
    void willPopUp();

protected:
    void wheelEvent(QWheelEvent *event) override;
};
