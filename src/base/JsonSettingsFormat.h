#pragma once

#include <QSettings>

/// Settings as one JSON object, for QSettings.
namespace JsonSettingsFormat
{
/// The format to construct a QSettings with; registered at the first call.
///
/// A file that holds no JSON object, or is too large to be settings, is set aside (SettingsPath)
/// and not overwritten, so that the user can still repair it by hand; if that fails, nothing is
/// written. An empty file means that there are no settings. Only its owner may read the file.
[[nodiscard]] QSettings::Format format();
} // namespace JsonSettingsFormat
