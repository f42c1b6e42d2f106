#include "app/LinkMenu.h"

#include "app/WufferApplication.h"
#include "rules/MenuText.h"
#include "rules/NameText.h"
#include "timer/Wuffer.h"

#include <QActionGroup>

LinkMenu::LinkMenu() : QMenu(tr("When F&inished, Start")), _choice(new QActionGroup(this))
{
    connect(this, &QMenu::aboutToShow, this, &LinkMenu::populate);
}

LinkMenu::LinkMenu(Wuffer &timer, QWidget &parent) :
    QMenu(&parent), _choice(new QActionGroup(this)), _timer(&timer)
{
    connect(this, &QMenu::aboutToShow, this, &LinkMenu::populate);
}

void LinkMenu::populate()
{
    clear();
    Wuffer *timer = _timer ? _timer.data() : WufferApplication::keyWuffer();
    if (!timer)
        return;
    addItem(tr("&None"), *timer, nullptr);
    addSeparator();
    const std::vector<Wuffer *> timers = WufferApplication::getWuffers();
    for (Wuffer *other : timers) {
        if (other != timer)
            addItem(menuText(NameText::isolatedIn(other->description(), other->title())), *timer,
                    other);
    }
    if (timers.size() < 2)
        addAction(tr("No &Other Timer Is Open"))->setEnabled(false);
}

void LinkMenu::addItem(const QString &text, Wuffer &timer, Wuffer *target)
{
    QAction *item = addAction(text);
    item->setCheckable(true);
    _choice->addAction(item);
    const bool linked = timer.getTargetWuffer() == target;
    item->setChecked(linked);
    if (linked)
        return;
    // Either timer may close while the menu is open.
    const QPointer<Wuffer> to(target);
    const bool none = target == nullptr;
    connect(item, &QAction::triggered, &timer, [&timer, to, none] {
        if (to || none)
            timer.setTargetWuffer(to);
    });
}
