#include "base/Log.h"
#include "controls/ToolTip.h"
#include "rules/KeepWuffing.h"
#include "rules/NameText.h"
#include "rules/Preset.h"
#include "rules/TimerTexts.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

#include <array>

namespace
{
/// What can follow the end of a countdown, in the order of the list.
constexpr std::array kFinishOptions{kWufferFinishedNothing, kWufferFinishedRestart,
                                    kWufferFinishedPreset, kWufferFinishedWuffer};
} // namespace

void Wuffer::populateFinishedCombo()
{
    for (const QStringView option : kFinishOptions)
        _ui->_finishedCombo->addItem(option.toString());
    selectFinishOption(kWufferFinishedNothing);
}

void Wuffer::selectFinishOption(QStringView option)
{
    // An unknown text is not found, and leaves nothing selected.
    _ui->_finishedCombo->setCurrentIndex(_ui->_finishedCombo->findText(
        option.toString(), Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void Wuffer::handleFinishedComboChange()
{
    const QString option = _ui->_finishedCombo->currentText();
    const bool linkWanted = option == kWufferFinishedWuffer;
    if (option == kWufferFinishedPreset)
        populateFinishedPickerComboWithPresets();
    else if (linkWanted)
        populateFinishedPickerComboWithChosenTargetWuffer();
    else
        _ui->_finishedPicker->hide();
    _ui->_linkButton->setVisible(linkWanted);
    _ui->_linkButton->setEnabled(!_stopwatch);

    if (_ui->_finishedPicker->count() > 0 && _ui->_finishedPicker->currentIndex() < 0)
        _ui->_finishedPicker->setCurrentIndex(0);
    if (_targetWuffer && !linkWanted)
        removeTargetWuffer();

    refreshKeepWuffingBox();
    Q_EMIT stateChanged();
}

void Wuffer::refreshKeepWuffingBox()
{
    const bool mayKeepWuffing = shouldKeepWuffing() && !_soundOff;
    _ui->_keepWuffingBox->setEnabled(mayKeepWuffing);
    if (!mayKeepWuffing)
        _ui->_keepWuffingBox->setChecked(false);
    const bool somethingFollows = _ui->_finishedCombo->currentText() != kWufferFinishedNothing;
    ToolTip::set(*_ui->_keepWuffingBox, KeepWuffing::hint(_stopwatch, somethingFollows, _soundOff));
}

void Wuffer::populateFinishedPickerComboWithPresets()
{
    PopUpComboBox &picker = *_ui->_finishedPicker;
    const int selected = picker.currentIndex();
    picker.clear();
    for (const int number : Preset::kNumbers)
        picker.addItem(NameText::inOneLine(stringForPreset(number)));
    if (selected >= 0)
        picker.setCurrentIndex(selected);
    picker.setEnabled(true);
    picker.show();
    ToolTip::set(picker, tr("The preset that this timer turns into and runs when it has finished"));
}

void Wuffer::populateFinishedPickerComboWithChosenTargetWuffer()
{
    PopUpComboBox &picker = *_ui->_finishedPicker;
    picker.clear();
    picker.addItem(_targetWuffer ? NameText::inOneLine(_targetWuffer->description())
                                 : QStringLiteral("Control-Drag a Wuffer"));
    picker.setCurrentIndex(0);
    // It only shows the link, which is made elsewhere.
    picker.setEnabled(false);
    picker.show();
    _ui->_linkButton->show();
    // The box is too narrow for most names.
    ToolTip::set(picker,
                 _targetWuffer
                     ? tr("When finished, this timer starts “%1”").arg(picker.currentText())
                     : tr("Hold Control and drag the window of another timer onto this one: it "
                          "starts when this one has finished"));
}

void Wuffer::handleFinishedBehaviour()
{
    const QString option = _ui->_finishedCombo->currentText();
    if (option == kWufferFinishedRestart) {
        ++_repeatCount;
        toggleRun();
        return;
    }
    _repeatCount = 1;
    if (option == kWufferFinishedPreset)
        startChosenPreset();
    else if (option == kWufferFinishedWuffer)
        startTargetWuffer();
}

void Wuffer::startChosenPreset()
{
    // The last in the list, preset 0, becomes number 10. Under that key there is nothing, so the
    // timer runs again as it is.
    const auto number = static_cast<quint32>(_ui->_finishedPicker->currentIndex() + 1);
    loadSettingsFromDefaultsWithKey(keyForPreset(number), false);
    toggleRun();
}

void Wuffer::startTargetWuffer()
{
    if (!_targetWuffer || _targetWuffer->isRunning()) {
        qCWarning(wufferLog, "Couldn't start the targeted wuffer!");
        return;
    }
    Wuffer &target = *_targetWuffer;
    target.toggleRun();
    // Whoever was told of the start may have closed it.
    if (!target._closed)
        target.comeForward();
}

void Wuffer::getFinishingHelp()
{
    Q_EMIT helpRequested(QStringLiteral("finish-actions"));
}
