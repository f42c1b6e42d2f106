#include "controls/ToolTip.h"
#include "rules/Chain.h"
#include "rules/NameText.h"
#include "rules/TimerTexts.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace
{
/// Puts the focus back where the user has chosen a link. Meanwhile the button was hidden, and it
/// stays so if the user has chosen no link.
void returnFocusToLink(const Ui::Wuffer &controls)
{
    QWidget *link = controls._linkButton;
    QWidget *choice = controls._finishedCombo;
    (link->isHidden() ? choice : link)->setFocus();
}
} // namespace

bool Wuffer::isChained() const
{
    return _targetWuffer != nullptr || _reverseTargetWuffer != nullptr;
}

std::vector<Wuffer *> Wuffer::chainedWuffers()
{
    return Chain::membersThrough(*this, std::mem_fn(&Wuffer::getTargetingWuffer),
                                 std::mem_fn(&Wuffer::getTargetWuffer));
}

QString Wuffer::chainString()
{
    if (!isChained())
        return {};
    const std::vector<Wuffer *> chain = chainedWuffers();
    const auto index = std::ranges::find(chain, this) - chain.begin();
    return Chain::text(static_cast<quint32>(index) + 1, static_cast<quint32>(chain.size()));
}

void Wuffer::setTargetWuffer(Wuffer *timer)
{
    // A closed timer is about to be destroyed and takes part in no link.
    if (timer == this || _closed || (timer && timer->_closed))
        return;
    const bool focused = _ui->_linkButton->hasFocus();
    removeTargetWuffer();
    // If the link would close a circle, this timer becomes the head.
    if (std::ranges::count(chainedWuffers(), timer) > 0)
        removeTargetingWuffer();
    _targetWuffer = timer;
    if (timer) {
        timer->setTargeted(*this);
        selectFinishAction(FinishAction::Wuffer);
        populateFinishedPickerComboWithChosenTargetWuffer();
        // A repeating alarm would hold up the chain.
        refreshKeepWuffingBox();
    }
    refreshChainStatusForAllChainedWuffers();
    if (focused)
        returnFocusToLink(*_ui);
    Q_EMIT stateChanged();
}

void Wuffer::setTargeted(Wuffer &timer)
{
    removeTargetingWuffer();
    if (std::ranges::count(chainedWuffers(), &timer) > 0)
        removeTargetWuffer();
    _reverseTargetWuffer = &timer;
    refreshChainStatusForAllChainedWuffers();
}

// The next two operations clear their own end of the link before they call the other timer, so that
// they do not call each other endlessly.

void Wuffer::removeTargetWuffer()
{
    if (const QPointer<Wuffer> old = std::exchange(_targetWuffer, nullptr))
        old->removeTargetingWuffer();
    if (finishAction().action == FinishAction::Wuffer) {
        selectFinishAction(FinishAction::Nothing);
        handleFinishedComboChange();
    }
    refreshChainStatusForAllChainedWuffers();
}

void Wuffer::removeTargetingWuffer()
{
    _ui->_goButton->setEnabled(true);
    if (const QPointer<Wuffer> old = std::exchange(_reverseTargetWuffer, nullptr))
        old->removeTargetWuffer();
    refreshChainStatusForAllChainedWuffers();
}

void Wuffer::showLinks()
{
    const auto name = [](const Wuffer *timer) {
        return timer ? NameText::inOneLine(timer->title()) : QString();
    };
    const QString links = Chain::links(name(_reverseTargetWuffer), name(_targetWuffer));
    for (QWidget *widget : std::initializer_list<QWidget *>{_ui->_elapsedLabel, _ui->_goButton})
        ToolTip::set(*widget, links);
}

void Wuffer::refreshChainStatus()
{
    showLinks();
    if (_run.isStarted())
        return;
    if (!isChained()) {
        setDefaultDisplayValues();
        _ui->_goButton->setText(TimerTexts::start());
        return;
    }
    _ui->_elapsedLabel->setText(chainString());
    setElapsedColor(TextColor::Red);
    const bool isHead = _reverseTargetWuffer == nullptr;
    _ui->_goButton->setEnabled(isHead);
    _ui->_goButton->setText(isHead ? TimerTexts::startChain() : TimerTexts::chained());
}

void Wuffer::refreshChainStatusForAllChainedWuffers()
{
    for (Wuffer *timer : chainedWuffers())
        timer->refreshChainStatus();
}
