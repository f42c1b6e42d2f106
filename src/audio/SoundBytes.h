#pragma once

#include <QIODevice>

#include <functional>
#include <memory>

/// Opens the bytes of a sound at their beginning; null if they cannot be opened. A sound is opened
/// once for its length and again each time it is played, on any thread.
using OpenSoundBytes = std::function<std::unique_ptr<QIODevice>()>;

/// The bytes of the regular file at this path. Null for anything else, such as a pipe or a device,
/// from which a read could block.
[[nodiscard]] std::unique_ptr<QIODevice> openSoundFile(const QString &path);

/// The bytes of the program's own sound of this file name ("crow.wav"), or null.
[[nodiscard]] std::unique_ptr<QIODevice> openSoundResource(const QString &fileName);

/// Up to count bytes from this offset on; fewer at the end of the file.
[[nodiscard]] QByteArray bytesAt(QIODevice &bytes, qint64 offset, qint64 count);

/// Seeks as lseek() does and returns the new position, or -1 if there is no such position. Any
/// offset is allowed.
[[nodiscard]] qint64 seekFrom(QIODevice &bytes, qint64 offset, int whence);

/// Where the contents begin: behind all ID3 tags at the head of the file. They may precede any
/// format.
[[nodiscard]] qint64 offsetBehindId3Tags(QIODevice &bytes);
