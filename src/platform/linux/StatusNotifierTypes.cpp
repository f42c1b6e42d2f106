#include "platform/linux/StatusNotifierTypes.h"

#include "platform/StatusIcon.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace StatusNotifier
{
QDBusArgument &operator<<(QDBusArgument &argument, const Pixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Pixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const ToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pixmaps << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, ToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pixmaps >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

void registerTypes()
{
    qDBusRegisterMetaType<Pixmap>();
    qDBusRegisterMetaType<Pixmaps>();
    qDBusRegisterMetaType<ToolTip>();
}

static Pixmap pixmapOf(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    Pixmap pixmap{image.width(), image.height(), QByteArray(image.sizeInBytes(), '\0')};
    qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, pixmap.pixels.data());
    return pixmap;
}

Pixmaps pixmapsOf(const StatusIcon &icon)
{
    Pixmaps pixmaps;
    if (icon.isNull())
        return pixmaps;
    for (const int size : {16, 22, 24, 32, 44, 48})
        pixmaps.append(pixmapOf(icon.painted(size)));
    return pixmaps;
}
} // namespace StatusNotifier
