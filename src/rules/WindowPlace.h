#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QVariant>

#include <optional>

/// Where a window stood and where it may stand again, in device-independent pixels of the desktop.
namespace WindowPlace
{
/// The place as it is stored.
[[nodiscard]] QVariantMap record(QPoint origin);

/// The place that is stored; nothing when there is none. Numbers that no desktop reaches are
/// limited.
[[nodiscard]] std::optional<QPoint> fromRecord(const QVariantMap &record);

/// Where a frame of this size is put that stood at this place: there, if its title bar can still
/// be reached in one of the rooms, which are what the screens leave free; otherwise at the
/// nearest place that lies in a room as a whole. There must be a room.
[[nodiscard]] QPoint reachable(QPoint origin, QSize size, const QList<QRect> &rooms);
} // namespace WindowPlace
