#pragma once

#include "controls/DataComboBox.h"

/// A data combo box whose list opens wherever the box is clicked: every press is passed to the base
/// class as a press on the arrow at the box's right edge.
class WebbyComboBox final : public DataComboBox
{
    Q_OBJECT

public:
    using DataComboBox::DataComboBox;

    /// The x coordinate of such a press in the window: 5 points inside the right edge of a box of
    /// this width. The origins are those of the box and of its ancestors, innermost first, each
    /// relative to the next; the running sum is truncated toward zero after each of them.
    [[nodiscard]] static int arrowX(const QList<qreal> &frameOrigins, qreal width);

    /// arrowX() of this box at its current position.
    [[nodiscard]] int arrowX() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
};
