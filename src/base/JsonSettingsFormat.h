#pragma once

#include <QVariantMap>

#include <optional>

class QByteArray;

/// Settings as the text of one JSON object.
namespace JsonSettingsFormat
{
/// The settings in a text; nothing if the text is no JSON object, or goes beyond the limits of
/// settings (JsonLimits). A blank text has no settings.
[[nodiscard]] std::optional<QVariantMap> settingsIn(const QByteArray &text);

/// The text of the settings, with sorted keys.
[[nodiscard]] QByteArray textOf(const QVariantMap &settings);
} // namespace JsonSettingsFormat
