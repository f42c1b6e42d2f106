#include "platform/StatusItem.h"

#include <QCoreApplication>
#include <QGuiApplication>

void StatusItem::setImage(const QIcon &image)
{
    if (image.cacheKey() == _image.cacheKey())
        return;
    _image = image;
    changed();
}

void StatusItem::setAttributedTitle(const StatusTitle &title)
{
    if (title == _title)
        return;
    _title = title;
    changed();
}

void StatusItem::setTitle(const QString &text)
{
    StatusTitle title = _title;
    title.text = text;
    setAttributedTitle(title);
}

QString StatusItem::titleWithProgram(const QString &text)
{
    const QString program = QGuiApplication::applicationDisplayName();
    return text.isEmpty() ? program : //: The name of the program and the time of a timer.
               QCoreApplication::translate("StatusItem", "%1: %2").arg(program, text.trimmed());
}

void StatusItem::setTarget(QObject *target, std::function<void()> action)
{
    _target = target;
    _action = std::move(action);
}

void StatusItem::setMenu(StatusMenu *menu)
{
    if (menu == _menu)
        return;
    _menu = menu;
    changed();
}

void StatusItem::sendAction() const
{
    if (_target && _action)
        _action();
}
