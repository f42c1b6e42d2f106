#pragma once

#include "base/Keys.h"

#include <QStringList>
#include <QVariant>

#include <optional>
#include <type_traits>

/// Reads stored values, which a user may have edited by hand, as the expected type. A value of
/// another type reads as missing.
namespace PropertyList
{
/// The text; nothing if the value is not a text.
[[nodiscard]] std::optional<QString> stringFrom(const QVariant &value);

/// The number, with true as 1 and false as 0; nothing if the value is neither.
[[nodiscard]] std::optional<double> numberFrom(const QVariant &value);

/// The number truncated toward zero and limited to 32 bits; 0 if the value is not a number.
[[nodiscard]] qint32 integerFrom(const QVariant &value);

/// True if the value is true or a number other than 0.
[[nodiscard]] bool boolFrom(const QVariant &value);

/// The number rounded to single precision and limited to it; 0 if the value is not a number.
[[nodiscard]] float floatFrom(const QVariant &value);

/// The dictionary; empty if the value is not a dictionary.
[[nodiscard]] QVariantMap dictionaryFrom(const QVariant &value);

/// The list without the members that are not texts; empty when the value is none.
[[nodiscard]] QStringList stringArrayFrom(const QVariant &value);

/// The value as the type of a SettingsKey.
template<class Value> [[nodiscard]] Value valueFrom(const QVariant &value);

/// What stands in the record under the key.
template<class Value>
[[nodiscard]] Value valueIn(const QVariantMap &record, const SettingsKey<Value> &key)
{
    return valueFrom<Value>(record.value(key.text()));
}

/// The value as it is stored: a truth as 1 or 0, a number of single precision as one of double.
template<class Value> [[nodiscard]] QVariant stored(const Value &value)
{
    if constexpr (std::is_same_v<Value, bool>)
        return int(value);
    else if constexpr (std::is_same_v<Value, float>)
        return static_cast<double>(value);
    else
        return value;
}
} // namespace PropertyList

template<> bool PropertyList::valueFrom(const QVariant &value);
template<> float PropertyList::valueFrom(const QVariant &value);
template<> qint32 PropertyList::valueFrom(const QVariant &value);
template<> QString PropertyList::valueFrom(const QVariant &value);
template<> QStringList PropertyList::valueFrom(const QVariant &value);
template<> QVariantMap PropertyList::valueFrom(const QVariant &value);
template<> std::optional<qint32> PropertyList::valueFrom(const QVariant &value);
template<> std::optional<QString> PropertyList::valueFrom(const QVariant &value);
