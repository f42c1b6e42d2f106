#pragma once

#include <QSettings>

/// Settings as one JSON object, for QSettings.
namespace JsonSettingsFormat
{
/// The format to construct a QSettings with; registered at the first call.
///
/// A file that is there but holds no JSON object, or is too large to be settings, is set aside
/// (SettingsPath) before it would be overwritten, so that somebody may still mend it by hand; where
/// that fails, nothing is written. An empty file is no settings. Only its owner may read the file.
[[nodiscard]] QSettings::Format format();
} // namespace JsonSettingsFormat
