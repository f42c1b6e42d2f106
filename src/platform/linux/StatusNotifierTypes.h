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
/// A picture with 32 bits per pixel: ARGB in network byte order.
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

/// Registers the types with Qt D-Bus. May be called more than once.
void registerTypes();

/// The icon in the sizes that panels use; empty when it is null.
[[nodiscard]] Pixmaps pixmapsOf(const StatusIcon &icon);
} // namespace StatusNotifier

Q_DECLARE_METATYPE(StatusNotifier::Pixmap)
Q_DECLARE_METATYPE(StatusNotifier::ToolTip)
