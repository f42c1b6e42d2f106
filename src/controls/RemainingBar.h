#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// The slim bar at the foot of a display, whose length shows what is left of a countdown.
///
/// It is a part of what the display paints and no widget: it takes no room in the layout, receives
/// no mouse clicks, and tells assistive programs nothing that the texts do not.
class RemainingBar final
{
public:
    /// Where the bar is drawn.
    struct Place
    {
        /// The room of a full bar.
        QRectF track;
        qreal cornerRadius = 0;
        qreal devicePixelRatio = 1;
        Qt::LayoutDirection direction = Qt::LeftToRight;
    };

    /// The share that is left, from 0 to 1. At 0, nothing is drawn.
    [[nodiscard]] double share() const { return _share; }
    void setShare(double share);

    /// The colour of the texts of the display, which may be drawn in another ink.
    [[nodiscard]] QColor color() const { return _color; }
    void setColor(const QColor &color) { _color = color; }

    /// The part of the track that the bar fills, in whole pixels of the screen: at least one if
    /// anything is left. It begins where lines of text begin.
    [[nodiscard]] QRectF filledPart(const Place &place) const;

    /// Draws the bar in this ink, and the rest of its track faintly.
    void paint(QPainter &painter, const Place &place, const QColor &ink) const;

private:
    double _share = 0;
    QColor _color = Qt::black;
};
