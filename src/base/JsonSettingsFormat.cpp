#include "base/JsonSettingsFormat.h"

#include "base/JsonLimits.h"

#include <QJsonDocument>
#include <QJsonObject>

std::optional<QVariantMap> JsonSettingsFormat::settingsIn(const QByteArray &text)
{
    if (text.trimmed().isEmpty())
        return QVariantMap();
    if (!JsonLimits::areKept(text))
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return std::nullopt;
    return document.object().toVariantMap();
}

QByteArray JsonSettingsFormat::textOf(const QVariantMap &settings)
{
    return QJsonDocument(QJsonObject::fromVariantMap(settings)).toJson();
}
