#pragma once

#include <QLabel>

/// An image that posts Notices::kClickableImageViewClicked, with itself as the object, at every
/// click. When it has the focus, the space bar clicks it, too.
class ClickableImageView final : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableImageView(QWidget *parent = nullptr);

    /// Shows the program's image of this file name ("sound_high.png").
    void setImage(const QString &fileName);

    /// The file name of the image shown; empty before the first.
    [[nodiscard]] QString imageName() const { return _imageName; }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void announceClick();

    QString _imageName;
};
