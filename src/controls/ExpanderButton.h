#pragma once

#include <QPushButton>

/// A button that opens a part of its window and closes it again. It only tells assistive programs
/// whether that part is open; the code that opens and closes calls setExpanded().
class ExpanderButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit ExpanderButton(QWidget *parent = nullptr);

    /// Whether the part of the window is open; at first it is not. A change has screen readers read
    /// the title aloud, which therefore has to be the new one already.
    [[nodiscard]] bool isExpanded() const { return _expanded; }
    void setExpanded(bool expanded);

private:
    bool _expanded = false;
};
