#pragma once

#include <QLabel>

/// An image that posts Notices::kClickableImageViewClicked, with itself as the object, at every
/// click. When it has the focus, the space bar clicks it, too. To assistive programs it is a button
/// that stays pressed in until the next press.
class ClickableImageView final : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableImageView(QWidget *parent = nullptr);

    /// Shows the program's image of this file name ("sound_high.png").
    void setImage(const QString &fileName);

    /// The file name of the image shown; empty before the first.
    [[nodiscard]] QString imageName() const { return _imageName; }

    /// Whether assistive programs see it pressed in; at first it is not. A click does not change
    /// that: the code that handles the click does. A change has screen readers read the accessible
    /// description aloud, which therefore has to be the new one already.
    [[nodiscard]] bool isChecked() const { return _checked; }
    void setChecked(bool checked);

    /// Does the same as a click of the user.
    void click();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString _imageName;
    bool _checked = false;
};
