#include "platform/linux/DBusMenuTypes.h"

#include <QDBusMetaType>

namespace DBusMenuTypes
{
QDBusArgument &operator<<(QDBusArgument &argument, const Item &item)
{
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Item &item)
{
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Removal &removal)
{
    argument.beginStructure();
    argument << removal.id << removal.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Removal &removal)
{
    argument.beginStructure();
    argument >> removal.id >> removal.names;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Layout &layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(qMetaTypeId<QDBusVariant>());
    for (const Layout &child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Layout &layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    layout.children.clear();
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<Layout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Event &event)
{
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Event &event)
{
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

void registerAll()
{
    qDBusRegisterMetaType<Item>();
    qDBusRegisterMetaType<Items>();
    qDBusRegisterMetaType<Removal>();
    qDBusRegisterMetaType<Removals>();
    qDBusRegisterMetaType<Layout>();
    qDBusRegisterMetaType<Event>();
    qDBusRegisterMetaType<Events>();
    // By these names the types stand in the signals and slots.
    qRegisterMetaType<Items>("DBusMenuTypes::Items");
    qRegisterMetaType<Removals>("DBusMenuTypes::Removals");
    qRegisterMetaType<Events>("DBusMenuTypes::Events");
}
} // namespace DBusMenuTypes
