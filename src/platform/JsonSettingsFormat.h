#pragma once

#include <QSettings>

/// Settings as one JSON object, for QSettings.
namespace JsonSettingsFormat
{
/// The format to construct a QSettings with; registered at the first call.
[[nodiscard]] QSettings::Format format();

/// Renames a file that is there but holds no JSON object to "<path>.unreadable" (with a number
/// when that exists too), so that writing the settings cannot destroy what somebody may still
/// want to mend by hand. An empty or missing file stays as it is.
void setAsideUnreadable(const QString &path);
} // namespace JsonSettingsFormat
