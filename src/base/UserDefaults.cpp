#include "base/UserDefaults.h"

#include "base/JsonSettingsFormat.h"
#include "base/PropertyList.h"
#include "base/Service.h"
#include "base/SettingsPath.h"

#include <QFileInfo>
#include <QJsonValue>
#include <QStandardPaths>

#include <algorithm>
#include <limits>

UserDefaults::UserDefaults(const QString &path) :
    _settings(
        std::make_unique<QSettings>(SettingsPath::cleared(path), JsonSettingsFormat::format()))
{}

QString UserDefaults::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/wuffer/wuffer.json");
}

UserDefaults &UserDefaults::standardUserDefaults()
{
    return Service<UserDefaults>::current();
}

std::optional<QString> UserDefaults::stringForKey(const QString &key) const
{
    return PropertyList::stringFrom(_settings->value(key));
}

int UserDefaults::integerForKey(const QString &key) const
{
    return PropertyList::integerFrom(_settings->value(key));
}

bool UserDefaults::boolForKey(const QString &key) const
{
    return PropertyList::boolFrom(_settings->value(key));
}

float UserDefaults::floatForKey(const QString &key) const
{
    constexpr double largest = std::numeric_limits<float>::max();
    const double number = PropertyList::numberFrom(_settings->value(key)).value_or(0.0);
    return static_cast<float>(std::clamp(number, -largest, largest));
}

QVariantMap UserDefaults::dictionaryForKey(const QString &key) const
{
    return PropertyList::dictionaryFrom(_settings->value(key));
}

QStringList UserDefaults::stringArrayForKey(const QString &key) const
{
    const QVariant value = _settings->value(key);
    QStringList texts;
    if (value.typeId() != QMetaType::QVariantList)
        return texts;
    for (const QVariant &member : value.toList()) {
        if (const std::optional<QString> text = PropertyList::stringFrom(member))
            texts.append(*text);
    }
    return texts;
}

void UserDefaults::setObject(const QVariant &value, const QString &key)
{
    // Left to itself, QSettings lets everybody look into a folder that it makes.
    SettingsPath::makePrivateFolder(QFileInfo(_settings->fileName()).path());
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
