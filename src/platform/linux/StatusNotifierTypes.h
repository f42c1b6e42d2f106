#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>

struct StatusIcon;

/// The compound types of the interface org.kde.StatusNotifierItem.
namespace StatusNotifier
{
/// A picture: 32 bits for each pixel, alpha first, in network byte order.
struct Pixmap
{
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using Pixmaps = QList<Pixmap>;

struct ToolTip
{
    QString iconName;
    Pixmaps pixmaps;
    QString title;
    QString text;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Pixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, Pixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const ToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, ToolTip &toolTip);

/// Makes the types known to the bus. As often as you like.
void registerTypes();

/// The icon in the sizes that panels have; none when it is null.
[[nodiscard]] Pixmaps pixmapsOf(const StatusIcon &icon);
} // namespace StatusNotifier

Q_DECLARE_METATYPE(StatusNotifier::Pixmap)
Q_DECLARE_METATYPE(StatusNotifier::ToolTip)
