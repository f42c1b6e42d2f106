#pragma once

#include "controls/DataComboBox.h"

/// A data combo box whose list opens wherever the box is clicked: every press is handed to the
/// base class as one on the arrow at the box's right edge.
class WebbyComboBox final : public DataComboBox
{
    Q_OBJECT

public:
    using DataComboBox::DataComboBox;

    /// Where such a press falls, in window coordinates: 5 points inside the right edge of a box
    /// of this width. The origins are those of the box and of the views around it, from the
    /// inside out, each within the next; the running sum is cut toward zero after each of them.
    [[nodiscard]] static int arrowX(const QList<qreal> &frameOrigins, qreal width);

    /// arrowX() of this box where it stands now.
    [[nodiscard]] int arrowX() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
};
