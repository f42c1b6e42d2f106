#pragma once

#include <QString>

class QFileInfo;

/// What the system knows of the user who runs the program.
namespace User
{
/// The folder in which the programs of this user keep their settings; empty if the user has none.
[[nodiscard]] QString configFolder();

/// Whether the file belongs to this user; false if the system does not tell.
[[nodiscard]] bool owns(const QFileInfo &file);
} // namespace User
