#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QStringList>
#include <QVariantMap>

/// The compound types of the interface com.canonical.dbusmenu.
namespace DBusMenuTypes
{
/// An item with its properties.
struct Item
{
    int id = 0;
    QVariantMap properties;
};
using Items = QList<Item>;

/// An item with the names of its properties that are gone.
struct Removal
{
    int id = 0;
    QStringList names;
};
using Removals = QList<Removal>;

/// An item with its children.
struct Layout
{
    int id = 0;
    QVariantMap properties;
    QList<Layout> children;
};

/// An event of an item, such as "clicked".
struct Event
{
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};
using Events = QList<Event>;

QDBusArgument &operator<<(QDBusArgument &argument, const Item &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, Item &item);
QDBusArgument &operator<<(QDBusArgument &argument, const Removal &removal);
const QDBusArgument &operator>>(const QDBusArgument &argument, Removal &removal);
QDBusArgument &operator<<(QDBusArgument &argument, const Layout &layout);
const QDBusArgument &operator>>(const QDBusArgument &argument, Layout &layout);
QDBusArgument &operator<<(QDBusArgument &argument, const Event &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, Event &event);

/// Registers the types with Qt D-Bus. May be called more than once.
void registerAll();
} // namespace DBusMenuTypes

Q_DECLARE_METATYPE(DBusMenuTypes::Item)
Q_DECLARE_METATYPE(DBusMenuTypes::Removal)
Q_DECLARE_METATYPE(DBusMenuTypes::Layout)
Q_DECLARE_METATYPE(DBusMenuTypes::Event)
