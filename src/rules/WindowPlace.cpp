#include "rules/WindowPlace.h"

#include "base/PropertyList.h"

#include <algorithm>

namespace
{
/// Beyond any desktop, but small enough that calculations do not overflow.
constexpr int kMaxCoordinate = 1 << 20;

/// The part of a title bar that must be visible, so that the user can drag it.
constexpr QSize kGrabArea{60, 20};

bool canBeReached(QPoint origin, QSize size, const QRect &room)
{
    const QRect titleBar(origin, QSize(size.width(), kGrabArea.height()));
    const QRect inSight = titleBar & room;
    return inSight.width() >= kGrabArea.width() && inSight.height() >= kGrabArea.height();
}

QPoint nearestIn(const QRect &room, QPoint origin, QSize size)
{
    const QPoint last =
        room.topLeft() + QPoint(room.width() - size.width(), room.height() - size.height());
    // A window larger than the room keeps its title bar visible.
    return {std::max(room.x(), std::min(origin.x(), last.x())),
            std::max(room.y(), std::min(origin.y(), last.y()))};
}
} // namespace

QVariantMap WindowPlace::record(QPoint origin)
{
    return {{PlaceKeys::kX.text(), origin.x()}, {PlaceKeys::kY.text(), origin.y()}};
}

std::optional<QPoint> WindowPlace::fromRecord(const QVariantMap &record)
{
    const std::optional<qint32> x = PropertyList::valueIn(record, PlaceKeys::kX);
    const std::optional<qint32> y = PropertyList::valueIn(record, PlaceKeys::kY);
    if (!x || !y)
        return std::nullopt;
    return QPoint(std::clamp(*x, -kMaxCoordinate, kMaxCoordinate),
                  std::clamp(*y, -kMaxCoordinate, kMaxCoordinate));
}

QPoint WindowPlace::reachable(QPoint origin, QSize size, const QList<QRect> &rooms)
{
    Q_ASSERT(!rooms.isEmpty());
    const auto reaches = [&](const QRect &room) { return canBeReached(origin, size, room); };
    if (std::ranges::any_of(rooms, reaches))
        return origin;
    const auto distance = [&](const QRect &room) {
        return (nearestIn(room, origin, size) - origin).manhattanLength();
    };
    return nearestIn(*std::ranges::min_element(rooms, {}, distance), origin, size);
}
