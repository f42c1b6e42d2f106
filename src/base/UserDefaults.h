#pragma once

#include "base/Keys.h"
#include "base/PropertyList.h"

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>
#include <type_traits>

/// The settings of this user: texts, numbers, lists and dictionaries, each under a key.
///
/// They live in one readable JSON file, written as a whole or not at all, within a
/// second of a change. A value of another type than the one asked for reads as missing, and keys
/// that nobody asks for are kept. What cannot be read or understood is set aside beside the new
/// file, never overwritten; where nothing can be written the settings last as long as the program.
/// Only its owner may read the file. Main thread.
class UserDefaults final
{
public:
    /// The settings kept in the file at this path. The file need not exist.
    explicit UserDefaults(const QString &path);

    /// The path of this user's settings file.
    [[nodiscard]] static QString standardPath();

    /// The settings in force: those installed as Service<UserDefaults>.
    [[nodiscard]] static UserDefaults &standardUserDefaults();

    /// What stands under the key, as its type.
    template<class Value> [[nodiscard]] Value value(const SettingsKey<Value> &key) const
    {
        return PropertyList::valueFrom<Value>(_settings->value(key.text()));
    }

    /// Replaces whatever stood under the key.
    template<class Value>
    void setValue(const std::type_identity_t<Value> &value, const SettingsKey<Value> &key)
    {
        setObject(PropertyList::stored(value), key.text());
    }

    template<class Value> void removeValue(const SettingsKey<Value> &key)
    {
        removeObjectForKey(key.text());
    }

    // The same for keys that are known when the program runs only.

    /// The text under the key; nothing when there is none.
    [[nodiscard]] std::optional<QString> stringForKey(const QString &key) const;

    /// The number under the key, cut toward zero and limited to 32 bits; 0 when there is none.
    [[nodiscard]] int integerForKey(const QString &key) const;

    /// True when a number other than 0, or a true, stands under the key.
    [[nodiscard]] bool boolForKey(const QString &key) const;

    /// The number under the key, rounded to single precision; 0 when there is none.
    [[nodiscard]] float floatForKey(const QString &key) const;

    /// The dictionary under the key; empty when there is none.
    [[nodiscard]] QVariantMap dictionaryForKey(const QString &key) const;

    /// The list under the key without the members that are not texts; empty when there is none.
    [[nodiscard]] QStringList stringArrayForKey(const QString &key) const;

    /// Replaces whatever stood under the key. Takes what JSON can hold.
    void setObject(const QVariant &value, const QString &key);

    void removeObjectForKey(const QString &key);

    /// Writes what has changed to disk now.
    void synchronize();

private:
    std::unique_ptr<QSettings> _settings;
};
