#pragma once

#include <QString>

#include <optional>

class QByteArray;
class QIODevice;

/// What may lie where the settings file should: looks at it without ever waiting for it, and moves
/// out of the way what is no file of settings. Nothing here overwrites or removes what somebody may
/// still want.
namespace SettingsPath
{
/// The path to keep the settings at, after a folder, a pipe, a device or a file that may not be
/// read has been set aside there, and a lock that could never be taken. A lock that a killed
/// process left without its number is removed. When setting aside fails, a path at which nothing
/// can be kept, so that the settings last only as long as the program.
[[nodiscard]] QString cleared(const QString &path);

/// Renames what lies at the path to "<path>.unreadable", with a number when that exists too;
/// whether it has. A link stays, and the file it leads to goes, unless that is not ours to rename.
[[nodiscard]] bool setAside(const QString &path);

/// True when nothing lies at the path, not even at the end of a link.
[[nodiscard]] bool isFree(const QString &path);

/// The whole text of an open file; nothing when it could not be read to its end, or when it is
/// larger than any settings are.
[[nodiscard]] std::optional<QByteArray> textOf(QIODevice &file);

/// The whole text of the file at the path, likewise; nothing when it is no file.
[[nodiscard]] std::optional<QByteArray> textAt(const QString &path);

/// Makes a folder, and those that it lies in, for nobody but its owner; those that are there
/// remain as they are.
void makePrivateFolder(const QString &path);
} // namespace SettingsPath
