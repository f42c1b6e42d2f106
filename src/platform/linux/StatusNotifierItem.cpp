#include "platform/linux/StatusNotifierItem.h"

#include "platform/linux/ActivationToken.h"

#include <QGuiApplication>

StatusNotifierItem::StatusNotifierItem(QString menuPath, Handler activate, Handler showMenu) :
    _menuPath(std::move(menuPath)), _activate(std::move(activate)), _showMenu(std::move(showMenu))
{
    StatusNotifier::registerTypes();
}

void StatusNotifierItem::show(const Content &content)
{
    const Content before = std::exchange(_content, content);
    if (_content.icon != before.icon) {
        _pixmaps = StatusNotifier::pixmapsOf(_content.icon);
        Q_EMIT NewIcon();
    }
    if (_content.label != before.label)
        Q_EMIT XAyatanaNewLabel(label(), noName());
    if (_content.toolTip != before.toolTip)
        Q_EMIT NewToolTip();
    if (_content.hasMenu != before.hasMenu)
        Q_EMIT NewMenu();
    // Last, so that a panel knows the content before it shows the item.
    if (_content.isEmpty() != before.isEmpty())
        Q_EMIT NewStatus(status());
}

QString StatusNotifierItem::id()
{
    return QGuiApplication::applicationName();
}

QString StatusNotifierItem::title()
{
    return QGuiApplication::applicationDisplayName();
}

QString StatusNotifierItem::status() const
{
    return _content.isEmpty() ? QStringLiteral("Passive") : QStringLiteral("Active");
}

StatusNotifier::ToolTip StatusNotifierItem::toolTip() const
{
    return {{}, {}, _content.toolTip, {}};
}

QDBusObjectPath StatusNotifierItem::menu() const
{
    return QDBusObjectPath(_content.hasMenu ? _menuPath : kNoMenuPath);
}

void StatusNotifierItem::ProvideXdgActivationToken(const QString &token)
{
    useActivationToken(token);
}
