#include "controls/RemainingBar.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{
/// How opaque the track is.
constexpr float kTrackAlpha = 0.12F;
} // namespace

void RemainingBar::setShare(double share)
{
    _share = std::clamp(share, 0.0, 1.0);
}

QRectF RemainingBar::filledPart(const Place &place) const
{
    QRectF part = place.track;
    const double steps = std::ceil(part.width() * place.devicePixelRatio * _share);
    part.setWidth(std::min(steps / place.devicePixelRatio, part.width()));
    if (place.direction == Qt::RightToLeft)
        part.moveRight(place.track.right());
    return part;
}

void RemainingBar::paint(QPainter &painter, const Place &place, const QColor &ink) const
{
    if (_share <= 0)
        return;
    QColor trackColor = ink;
    trackColor.setAlphaF(kTrackAlpha);
    painter.setPen(Qt::NoPen);
    painter.setBrush(trackColor);
    painter.drawRoundedRect(place.track, place.cornerRadius, place.cornerRadius);
    painter.setBrush(ink);
    painter.drawRoundedRect(filledPart(place), place.cornerRadius, place.cornerRadius);
}
