#include "base/PropertyList.h"

#include "base/Integers.h"
#include "base/SinglePrecision.h"

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
    return cutToInteger(numberFrom(value).value_or(0.0));
}

bool PropertyList::boolFrom(const QVariant &value)
{
    return numberFrom(value).value_or(0.0) != 0.0;
}

float PropertyList::floatFrom(const QVariant &value)
{
    return toSinglePrecision(numberFrom(value).value_or(0.0));
}

QVariantMap PropertyList::dictionaryFrom(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}

QStringList PropertyList::stringArrayFrom(const QVariant &value)
{
    QStringList texts;
    if (value.typeId() != QMetaType::QVariantList)
        return texts;
    for (const QVariant &member : value.toList()) {
        if (const std::optional<QString> text = stringFrom(member))
            texts.append(*text);
    }
    return texts;
}

template<> bool PropertyList::valueFrom(const QVariant &value)
{
    return boolFrom(value);
}

template<> float PropertyList::valueFrom(const QVariant &value)
{
    return floatFrom(value);
}

template<> qint32 PropertyList::valueFrom(const QVariant &value)
{
    return integerFrom(value);
}

template<> QString PropertyList::valueFrom(const QVariant &value)
{
    return stringFrom(value).value_or(QString());
}

template<> QStringList PropertyList::valueFrom(const QVariant &value)
{
    return stringArrayFrom(value);
}

template<> QVariantMap PropertyList::valueFrom(const QVariant &value)
{
    return dictionaryFrom(value);
}

template<> std::optional<qint32> PropertyList::valueFrom(const QVariant &value)
{
    return numberFrom(value) ? std::optional(integerFrom(value)) : std::nullopt;
}

template<> std::optional<QString> PropertyList::valueFrom(const QVariant &value)
{
    return stringFrom(value);
}
