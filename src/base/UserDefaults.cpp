#include "base/UserDefaults.h"

#include "base/JsonSettingsFormat.h"
#include "base/Service.h"
#include "base/SettingsPath.h"

#include <QFileInfo>
#include <QJsonValue>
#include <QStandardPaths>

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
    return PropertyList::floatFrom(_settings->value(key));
}

QVariantMap UserDefaults::dictionaryForKey(const QString &key) const
{
    return PropertyList::dictionaryFrom(_settings->value(key));
}

QStringList UserDefaults::stringArrayForKey(const QString &key) const
{
    return PropertyList::stringArrayFrom(_settings->value(key));
}

void UserDefaults::setObject(const QVariant &value, const QString &key)
{
    // A folder that QSettings makes can be read by every user.
    SettingsPath::makePrivateFolder(QFileInfo(_settings->fileName()).path());
    // Converted, so that the value reads now as it will read from the file.
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
