#pragma once

#include <QLabel>

/// A short text in grey below a check box, which says what the box does. It is plain text, wraps,
/// and begins where the text of the box begins.
class HintLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit HintLabel(QWidget *parent = nullptr);

    /// The colour of the text: between those of the text and the ground of the palette, and always
    /// readable.
    [[nodiscard]] QColor color() const;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void alignWithTextOfBox();
};
