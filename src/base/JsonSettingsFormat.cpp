#include "base/JsonSettingsFormat.h"

#include "base/SettingsPath.h"

#include <QFileDevice>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace
{
std::optional<QJsonObject> objectFrom(const std::optional<QByteArray> &text)
{
    if (!text)
        return std::nullopt;
    if (text->trimmed().isEmpty())
        return QJsonObject();
    const QJsonDocument document = QJsonDocument::fromJson(*text);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

bool read(QIODevice &device, QSettings::SettingsMap &map)
{
    const std::optional<QJsonObject> object = objectFrom(SettingsPath::textOf(device));
    if (object) {
        map = object->toVariantMap();
        return true;
    }
    // Done at every read, because QSettings rereads the file when another program has changed it.
    const auto *file = qobject_cast<const QFileDevice *>(&device);
    return file != nullptr && SettingsPath::setAside(file->fileName());
}

/// Whether the file can be replaced without losing data. Sets aside a file that is no settings.
bool mayReplace(const QString &path)
{
    return SettingsPath::isFree(path) || objectFrom(SettingsPath::textAt(path)) ||
           SettingsPath::setAside(path);
}

bool write(QIODevice &device, const QSettings::SettingsMap &map)
{
    auto *file = qobject_cast<QFileDevice *>(&device);
    if (file == nullptr || !mayReplace(file->fileName()))
        return false;
    // The names of timers and the paths of sounds are private.
    file->setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(map)).toJson();
    return device.write(text) == text.size();
}
} // namespace

QSettings::Format JsonSettingsFormat::format()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("json"), read, write, Qt::CaseSensitive);
    return format;
}
