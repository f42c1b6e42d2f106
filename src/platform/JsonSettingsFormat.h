#pragma once

#include <QSettings>

/// Settings as one JSON object, for QSettings.
namespace JsonSettingsFormat
{
/// The format to construct a QSettings with; registered at the first call.
///
/// A file that is there but holds no JSON object is renamed to "<path>.unreadable" (with a number
/// when that exists too) before it would be overwritten, so that somebody may still mend it by
/// hand. An empty file is no settings.
[[nodiscard]] QSettings::Format format();
} // namespace JsonSettingsFormat
