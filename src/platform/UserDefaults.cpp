#include "platform/UserDefaults.h"

#include "platform/JsonSettingsFormat.h"
#include "platform/Service.h"

#include <QJsonValue>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
std::optional<double> numberFrom(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}
} // namespace

UserDefaults::UserDefaults(const QString &path)
{
#ifdef Q_OS_MACOS
    const QSettings::Format format = QSettings::NativeFormat;
#else
    const QSettings::Format format = JsonSettingsFormat::format();
#endif
    _settings = std::make_unique<QSettings>(path, format);
}

QString UserDefaults::standardPath()
{
#ifdef Q_OS_MACOS
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/wuffer.plist");
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/wuffer/wuffer.json");
#endif
}

UserDefaults &UserDefaults::standardUserDefaults()
{
    return Service<UserDefaults>::current();
}

std::optional<QString> UserDefaults::stringForKey(const QString &key) const
{
    const QVariant value = _settings->value(key);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

int UserDefaults::integerForKey(const QString &key) const
{
    using Limits = std::numeric_limits<int>;
    const double number = numberFrom(_settings->value(key)).value_or(0.0);
    if (std::isnan(number))
        return 0;
    return static_cast<int>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

bool UserDefaults::boolForKey(const QString &key) const
{
    return numberFrom(_settings->value(key)).value_or(0.0) != 0.0;
}

float UserDefaults::floatForKey(const QString &key) const
{
    constexpr double largest = std::numeric_limits<float>::max();
    const double number = numberFrom(_settings->value(key)).value_or(0.0);
    return static_cast<float>(std::clamp(number, -largest, largest));
}

QVariantMap UserDefaults::dictionaryForKey(const QString &key) const
{
    const QVariant value = _settings->value(key);
    return value.typeId() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}

QStringList UserDefaults::stringArrayForKey(const QString &key) const
{
    const QVariant value = _settings->value(key);
    QStringList texts;
    if (value.typeId() != QMetaType::QVariantList)
        return texts;
    for (const QVariant &member : value.toList()) {
        if (member.typeId() == QMetaType::QString)
            texts.append(member.toString());
    }
    return texts;
}

void UserDefaults::setObject(const QVariant &value, const QString &key)
{
    // So that it reads now as it will read from the file.
    _settings->setValue(key, QJsonValue::fromVariant(value).toVariant());
}

void UserDefaults::removeObjectForKey(const QString &key)
{
    _settings->remove(key);
}

void UserDefaults::synchronize()
{
    _settings->sync();
}
