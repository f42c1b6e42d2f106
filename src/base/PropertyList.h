#pragma once

#include <QString>
#include <QVariant>

#include <optional>

/// How values that were stored by somebody, perhaps by hand, read as the type that is expected.
/// A value of another type reads as missing.
namespace PropertyList
{
/// The text; nothing when the value is none.
[[nodiscard]] std::optional<QString> stringFrom(const QVariant &value);

/// The number, true being 1 and false 0; nothing when the value is none.
[[nodiscard]] std::optional<double> numberFrom(const QVariant &value);

/// The number cut toward zero and limited to 32 bits; 0 when the value is none.
[[nodiscard]] qint32 integerFrom(const QVariant &value);

/// True when the value is a number other than 0, or a true.
[[nodiscard]] bool boolFrom(const QVariant &value);

/// The dictionary; empty when the value is none.
[[nodiscard]] QVariantMap dictionaryFrom(const QVariant &value);
} // namespace PropertyList
