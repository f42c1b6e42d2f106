#pragma once

#include "controls/DisplayLabel.h"

#include <QImage>

/// A label outside any window, with a font of this size in points.
class PaintedLabel
{
public:
    explicit PaintedLabel(const QString &text = {}, double points = 24)
    {
        QFont font = label.font();
        font.setPointSizeF(points);
        label.setFont(font);
        label.setText(text);
    }

    /// The label painted at this size.
    [[nodiscard]] QImage painted(QSize size)
    {
        label.resize(size);
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        label.render(&image);
        return image;
    }

    DisplayLabel label;
};

/// The smallest rectangle around all pixels that differ from the top left one.
inline QRect inkOf(const QImage &image)
{
    const QRgb background = image.pixel(0, 0);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != background)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}
