#include "platform/JsonSettingsFormat.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace
{
std::optional<QJsonObject> objectFrom(QIODevice &device)
{
    const QByteArray text = device.readAll();
    if (text.trimmed().isEmpty())
        return QJsonObject();
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

QString freeNameBeside(const QString &path)
{
    const QString name = path + QStringLiteral(".unreadable");
    QString candidate = name;
    for (int number = 2; QFile::exists(candidate); ++number)
        candidate = name + QStringLiteral(".%1").arg(number);
    return candidate;
}

bool read(QIODevice &device, QSettings::SettingsMap &map)
{
    const std::optional<QJsonObject> object = objectFrom(device);
    if (object) {
        map = object->toVariantMap();
        return true;
    }
    // Done here, because the file is read again whenever somebody else has changed it.
    const auto *file = qobject_cast<const QFile *>(&device);
    return file && QFile::rename(file->fileName(), freeNameBeside(file->fileName()));
}

bool write(QIODevice &device, const QSettings::SettingsMap &map)
{
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
