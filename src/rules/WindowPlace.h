#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QVariant>

#include <optional>

/// Saved places of windows and where to restore them, in device-independent pixels of the desktop.
namespace WindowPlace
{
/// The dictionary to store for this place.
[[nodiscard]] QVariantMap record(QPoint origin);

/// The place in a stored dictionary; nothing if there is none. Coordinates beyond any desktop are
/// limited.
[[nodiscard]] std::optional<QPoint> fromRecord(const QVariantMap &record);

/// Where to restore a frame of this size that was saved at this place. Each room is the free area
/// of a screen; there must be one. If the title bar can be reached in a room, the place stays;
/// otherwise it is the nearest one completely inside a room.
[[nodiscard]] QPoint reachable(QPoint origin, QSize size, const QList<QRect> &rooms);
} // namespace WindowPlace
