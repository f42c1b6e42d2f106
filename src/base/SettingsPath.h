#pragma once

#include <QString>

#include <optional>

class QByteArray;
class QIODevice;

/// Checks what lies at the path of the settings file, without ever blocking, and renames whatever
/// is not a settings file. Nothing here overwrites or removes data that the user may still want.
namespace SettingsPath
{
/// A path at which no file can exist, for settings that last only as long as the program.
[[nodiscard]] QString unusable();

/// Sets aside a folder, a pipe, a device or an unreadable file at the path. Returns the path or, if
/// that failed, an unusable one.
[[nodiscard]] QString cleared(const QString &path);

/// Renames what lies at the path to "<path>.unreadable", with a number if that exists too, and
/// returns whether it could. Of a link, the file that it leads to is renamed; only if that fails,
/// the link itself.
[[nodiscard]] bool setAside(const QString &path);

/// The file that a link at the path leads to; the path itself if there is no link, or it leads to
/// nothing.
[[nodiscard]] QString fileAt(const QString &path);

/// Whether a file can be written at the path: there is none, or a regular one that may be written.
[[nodiscard]] bool isWritable(const QString &path);

/// The whole text of an open file; nothing if it could not be read to its end, or is too large to
/// be settings.
[[nodiscard]] std::optional<QByteArray> textOf(QIODevice &file);

/// Makes a folder and its missing parents, open to their owner only, but none in the root of the
/// file system. Existing folders stay as they are.
void makePrivateFolder(const QString &path);
} // namespace SettingsPath
