#pragma once

#include <QByteArrayView>

#include <optional>

/// The settings that a desktop publishes for all programs on its X server (XSETTINGS).
namespace XSettings
{
/// The number with this name in a table of settings. Empty if the table has no such number, or is
/// damaged before it.
[[nodiscard]] std::optional<int> numberIn(QByteArrayView table, QByteArrayView name);

/// The number that the desktop has published under this name. Waits for the X server.
[[nodiscard]] std::optional<int> number(QByteArrayView name);
} // namespace XSettings
