#pragma once

#include "base/Keys.h"
#include "base/PropertyList.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>
#include <type_traits>

class SettingsStore;

/// The settings of this user: texts, numbers, lists and dictionaries, each under a key.
///
/// They are in one JSON file, which is written atomically within a second of a change, and which
/// only its owner may read. A value of another type than the requested one reads as missing, and
/// unknown keys are kept. A file that cannot be read or parsed is renamed, never overwritten; if no
/// file can be written the settings last as long as the program. Main thread.
class UserDefaults final
{
public:
    /// The settings kept in the file at this path. The file need not exist.
    explicit UserDefaults(const QString &path);
    ~UserDefaults();
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// The path of this user's settings file; of no file if the user has no folder for settings.
    [[nodiscard]] static QString standardPath();

    /// The settings that are installed as Service<UserDefaults>.
    [[nodiscard]] static UserDefaults &standardUserDefaults();

    /// What stands under the key, as its type.
    template<class Value> [[nodiscard]] Value value(const SettingsKey<Value> &key) const
    {
        return PropertyList::valueFrom<Value>(objectForKey(key.text()));
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

    /// The number under the key, truncated toward zero and limited to 32 bits; 0 when there is
    /// none.
    [[nodiscard]] int integerForKey(const QString &key) const;

    /// True if the value under the key is true or a number other than 0.
    [[nodiscard]] bool boolForKey(const QString &key) const;

    /// The number under the key, rounded to single precision; 0 when there is none.
    [[nodiscard]] float floatForKey(const QString &key) const;

    /// The dictionary under the key; empty when there is none.
    [[nodiscard]] QVariantMap dictionaryForKey(const QString &key) const;

    /// The list under the key without the members that are not texts; empty when there is none.
    [[nodiscard]] QStringList stringArrayForKey(const QString &key) const;

    /// Sets the value under the key. It must be one that JSON can hold.
    void setObject(const QVariant &value, const QString &key);

    void removeObjectForKey(const QString &key);

    /// Writes all changes to disk now, or soon if another process is just writing its own.
    void synchronize();

private:
    [[nodiscard]] QVariant objectForKey(const QString &key) const;

    const std::unique_ptr<SettingsStore> _settings;
};
