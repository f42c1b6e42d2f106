#include "app/TimerList.h"

#include "app/WufferApplication.h"
#include "rules/MenuText.h"
#include "rules/NameText.h"
#include "rules/TimerTexts.h"
#include "timer/Wuffer.h"

#include <QActionGroup>
#include <QMenu>

namespace
{
/// The timer's name with what it shows while it runs, else with the time that it is set to.
QString lineFor(const Wuffer &timer)
{
    if (!timer.isRunning())
        return NameText::isolatedIn(timer.description(), timer.title());
    return TimerTexts::nameAndTime(timer.title(), timer.statusString());
}
} // namespace

TimerList::TimerList(QMenu &menu) : QObject(&menu), _menu(menu), _active(new QActionGroup(this))
{
    connect(&menu, &QMenu::aboutToShow, this, &TimerList::populate);
}

TimerList::~TimerList() = default;

void TimerList::populate()
{
    _items.clear();
    for (Wuffer *timer : WufferApplication::getWuffers())
        addItem(*timer);
}

void TimerList::addItem(Wuffer &timer)
{
    QAction *item = _items.emplace_back(std::make_unique<QAction>(menuText(lineFor(timer)))).get();
    item->setCheckable(true);
    _active->addAction(item);
    item->setChecked(&timer == WufferApplication::keyWuffer());
    _menu.addAction(item);
    connect(item, &QAction::triggered, &timer, &Wuffer::showWufferWindow);
    // The timer may close while the menu is open.
    connect(&timer, &Wuffer::closed, item, [item] { item->setEnabled(false); });
}
