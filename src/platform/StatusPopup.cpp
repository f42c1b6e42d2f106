#include "platform/StatusPopup.h"

#include "base/Mnemonics.h"
#include "platform/StatusMenu.h"

void StatusPopup::open(StatusMenu &menu, const QPoint &place)
{
    if (isVisible())
        return;
    fill(menu);
    connect(&menu, &StatusMenu::textsChanged, this, [this, &menu] { updateTexts(menu); });
    connect(
        this, &QMenu::aboutToHide, &menu, [this, &menu] { menu.disconnect(this); },
        Qt::SingleShotConnection);
    popup(place);
}

void StatusPopup::fill(StatusMenu &menu)
{
    clear();
    for (const StatusMenu::Line &line : menu.lines()) {
        QAction *action = addAction(Mnemonics::escaped(line.text));
        action->setData(line.id);
        connect(action, &QAction::triggered, &menu, [&menu, id = line.id] { menu.choose(id); });
    }
}

void StatusPopup::updateTexts(StatusMenu &menu)
{
    const std::vector<StatusMenu::Line> lines = menu.lines();
    QHash<int, QString> texts;
    for (const StatusMenu::Line &line : lines)
        texts.insert(line.id, Mnemonics::escaped(line.text));
    for (QAction *action : actions()) {
        const auto text = texts.constFind(action->data().toInt());
        if (text != texts.cend() && action->text() != *text)
            action->setText(*text);
    }
}
