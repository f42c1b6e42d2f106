#include "base/PropertyList.h"

#include <algorithm>
#include <cmath>
#include <limits>

std::optional<QString> PropertyList::stringFrom(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

std::optional<double> PropertyList::numberFrom(const QVariant &value)
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

qint32 PropertyList::integerFrom(const QVariant &value)
{
    using Limits = std::numeric_limits<qint32>;
    const double number = numberFrom(value).value_or(0.0);
    if (std::isnan(number))
        return 0;
    return static_cast<qint32>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

bool PropertyList::boolFrom(const QVariant &value)
{
    return numberFrom(value).value_or(0.0) != 0.0;
}

QVariantMap PropertyList::dictionaryFrom(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}
