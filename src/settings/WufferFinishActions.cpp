#include "timer/TimerTexts.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

#include <QWhatsThis>

void Wuffer::populateFinishedCombo()
{
    _ui->_finishedCombo->addItem(kWufferFinishedNothing.toString());
    _ui->_finishedCombo->addItem(kWufferFinishedRestart.toString());
    _ui->_finishedCombo->setCurrentIndex(0);
}

void Wuffer::handleFinishedComboChange()
{
    _ui->_finishedPicker->hide();
    const bool mayKeepWuffing = shouldKeepWuffing() && !_soundOff;
    _ui->_keepWuffingBox->setEnabled(mayKeepWuffing);
    if (!mayKeepWuffing)
        _ui->_keepWuffingBox->setChecked(false);
    Q_EMIT stateChanged();
}

void Wuffer::handleFinishedBehaviour()
{
    if (_ui->_finishedCombo->currentText() == kWufferFinishedRestart) {
        ++_repeatCount;
        goPressed();
    } else {
        _repeatCount = 1;
    }
}

bool Wuffer::isChained() const
{
    return false;
}

void Wuffer::refreshChainStatusForAllChainedWuffers() {}

void Wuffer::getFinishingHelp()
{
    const QWidget *about = _ui->_finishedCombo;
    QWhatsThis::showText(about->mapToGlobal(about->rect().bottomLeft()), about->whatsThis());
}
