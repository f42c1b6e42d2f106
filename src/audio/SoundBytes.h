#pragma once

#include <QIODevice>

#include <functional>
#include <memory>

/// Opens the bytes of a sound at their beginning; gives null when they cannot be had. A sound
/// is opened once for its length and again each time it is played, on any thread.
using OpenSoundBytes = std::function<std::unique_ptr<QIODevice>()>;

/// The bytes of the regular file at this path. Null for anything else: a pipe or a device under
/// the name of a sound would keep its reader waiting.
[[nodiscard]] std::unique_ptr<QIODevice> openSoundFile(const QString &path);

/// The bytes of the program's own sound of this file name ("crow.wav"), or null.
[[nodiscard]] std::unique_ptr<QIODevice> openSoundResource(const QString &fileName);

/// Up to so many bytes from this offset on; fewer where the file ends.
[[nodiscard]] QByteArray bytesAt(QIODevice &bytes, qint64 offset, qint64 count);

/// Goes to an offset from the place that SEEK_SET, SEEK_CUR or SEEK_END means; gives where that is,
/// or -1 when there is no such place. Any offset will do.
[[nodiscard]] qint64 seekFrom(QIODevice &bytes, qint64 offset, int whence);

/// Where the contents begin: behind all ID3 tags at the head of the file, which may stand before
/// any format.
[[nodiscard]] qint64 offsetBehindId3Tags(QIODevice &bytes);
