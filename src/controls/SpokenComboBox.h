#pragma once

#include <QComboBox>

/// A combo box that screen readers read aloud: its entry when the user selects another one with a
/// key, and the current entry of its list when the list opens.
class SpokenComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit SpokenComboBox(QWidget *parent = nullptr);

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
