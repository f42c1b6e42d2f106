#pragma once

#include <QString>

/// The files that a killed process can leave beside the settings.
namespace SettingsLeftovers
{
/// Removes such files, if they belong to this user and are older than an hour: temporary files,
/// with a name as Qt makes it, and locks, as earlier versions made them. What could be a copy that
/// the user made stays.
void remove(const QString &settings);
} // namespace SettingsLeftovers
