#include "app/KeepOnTopItem.h"

#include "app/WufferApplication.h"
#include "platform/WindowLevel.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QMenu>

KeepOnTopItem::KeepOnTopItem(QMenu &menu, QAction *before) :
    QObject(&menu), _item(new QAction(tr("Keep on &Top"), this))
{
    _item->setCheckable(true);
    menu.insertAction(before, _item);
    connect(&menu, &QMenu::aboutToShow, this, &KeepOnTopItem::refresh);
    connect(_item, &QAction::triggered, this, [](bool onTop) {
        if (const Wuffer *timer = WufferApplication::keyWuffer())
            WindowLevel::keepOnTop(*timer->window(), onTop);
    });
    refresh();
}

void KeepOnTopItem::refresh()
{
    const Wuffer *timer = WufferApplication::keyWuffer();
    const bool possible = timer && WindowLevel::canKeepOnTop();
    _item->setEnabled(possible);
    _item->setChecked(possible && WindowLevel::isKeptOnTop(*timer->window()));
}
