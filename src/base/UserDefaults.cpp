#include "base/UserDefaults.h"

#include "base/Service.h"
#include "base/SettingsPath.h"
#include "base/SettingsStore.h"
#include "base/User.h"

#include <QJsonValue>

UserDefaults::UserDefaults(const QString &path) : _settings(std::make_unique<SettingsStore>(path))
{}

UserDefaults::~UserDefaults() = default;

QString UserDefaults::standardPath()
{
    const QString folder = User::configFolder();
    return folder.isEmpty() ? SettingsPath::unusable()
                            : folder + QStringLiteral("/wuffer/wuffer.json");
}

UserDefaults &UserDefaults::standardUserDefaults()
{
    return Service<UserDefaults>::current();
}

std::optional<QString> UserDefaults::stringForKey(const QString &key) const
{
    return PropertyList::stringFrom(objectForKey(key));
}

int UserDefaults::integerForKey(const QString &key) const
{
    return PropertyList::integerFrom(objectForKey(key));
}

bool UserDefaults::boolForKey(const QString &key) const
{
    return PropertyList::boolFrom(objectForKey(key));
}

float UserDefaults::floatForKey(const QString &key) const
{
    return PropertyList::floatFrom(objectForKey(key));
}

QVariantMap UserDefaults::dictionaryForKey(const QString &key) const
{
    return PropertyList::dictionaryFrom(objectForKey(key));
}

QStringList UserDefaults::stringArrayForKey(const QString &key) const
{
    return PropertyList::stringArrayFrom(objectForKey(key));
}

void UserDefaults::setObject(const QVariant &value, const QString &key)
{
    // Converted, so that the value reads now as it will read from the file.
    _settings->setValue(key, QJsonValue::fromVariant(value).toVariant());
}

void UserDefaults::removeObjectForKey(const QString &key)
{
    _settings->remove(key);
}

void UserDefaults::synchronize()
{
    _settings->synchronize();
}

QVariant UserDefaults::objectForKey(const QString &key) const
{
    return _settings->value(key);
}
