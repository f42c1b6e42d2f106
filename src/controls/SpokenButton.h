#pragma once

#include <QPushButton>

/// A button whose press may give it another title, which screen readers then read aloud.
class SpokenButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit SpokenButton(QWidget *parent = nullptr);

    /// Has screen readers read the title aloud, if the button has the focus.
    void sayTitle();
};
