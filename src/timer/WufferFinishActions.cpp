#include "base/Log.h"
#include "controls/ToolTip.h"
#include "rules/KeepWuffing.h"
#include "rules/NameText.h"
#include "rules/Preset.h"
#include "rules/TimerTexts.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

void Wuffer::populateFinishedCombo()
{
    for (const FinishActions::Row &row : FinishActions::rows())
        _ui->_finishedCombo->addItem(FinishActions::shownText(row), int(row.action));
    selectFinishAction(FinishAction::Nothing);
}

const FinishActions::Row &Wuffer::finishAction() const
{
    // Without a selection the data is invalid and converts to 0, which is None.
    return FinishActions::row(FinishAction(_ui->_finishedCombo->currentData().toInt()));
}

void Wuffer::selectFinishAction(FinishAction action)
{
    // The combo has no entry for None: findData() returns -1, which clears the selection.
    _ui->_finishedCombo->setCurrentIndex(_ui->_finishedCombo->findData(int(action)));
}

void Wuffer::handleFinishedComboChange()
{
    const FinishActions::Picker picker = finishAction().picker;
    const bool linkWanted = picker == FinishActions::Picker::Target;
    fillFinishedPicker(picker);
    _ui->_linkButton->setVisible(linkWanted);
    _ui->_linkButton->setEnabled(!_run.isStopwatch());

    if (_ui->_finishedPicker->count() > 0 && _ui->_finishedPicker->currentIndex() < 0)
        _ui->_finishedPicker->setCurrentIndex(0);
    if (_targetWuffer && !linkWanted)
        removeTargetWuffer();

    refreshKeepWuffingBox();
    Q_EMIT stateChanged();
}

void Wuffer::fillFinishedPicker(FinishActions::Picker picker)
{
    switch (picker) {
    case FinishActions::Picker::None:
        return _ui->_finishedPicker->hide();
    case FinishActions::Picker::Presets:
        return populateFinishedPickerComboWithPresets();
    case FinishActions::Picker::Target:
        return populateFinishedPickerComboWithChosenTargetWuffer();
    }
}

void Wuffer::refreshKeepWuffingBox()
{
    const bool mayKeepWuffing = shouldKeepWuffing() && !_soundOff;
    _ui->_keepWuffingBox->setEnabled(mayKeepWuffing);
    if (!mayKeepWuffing)
        _ui->_keepWuffingBox->setChecked(false);
    ToolTip::set(
        *_ui->_keepWuffingBox,
        KeepWuffing::hint(_run.isStopwatch(), !finishAction().allowsKeepWuffing, _soundOff));
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
    //: In place of the name of the timer to start: how to choose one.
    const QString howToChoose = tr("Control-Drag a Wuffer");
    picker.addItem(_targetWuffer ? NameText::inOneLine(NameText::isolatedIn(
                                       _targetWuffer->description(), _targetWuffer->title()))
                                 : howToChoose);
    picker.setCurrentIndex(0);
    // The picker only shows the link; the user makes it by dragging or in the menu.
    picker.setEnabled(false);
    picker.show();
    _ui->_linkButton->show();
    // The picker is too narrow for most names, and its disabled text cannot get the focus.
    ToolTip::set(picker,
                 _targetWuffer
                     ? tr("When finished, this timer starts “%1”").arg(picker.currentText())
                     : tr("Hold Control and drag the window of another timer onto this one: it "
                          "starts when this one has finished"));
    _ui->_linkButton->setAccessibleDescription(_targetWuffer ? picker.accessibleDescription()
                                                             : QString());
}

void Wuffer::handleFinishedBehaviour()
{
    const FinishActions::Runs runs = finishAction().runs;
    if (runs == FinishActions::Runs::ThisTimer)
        _run.countRepeat();
    else
        _run.resetRepeatCount();
    switch (runs) {
    case FinishActions::Runs::Nothing:
        return;
    case FinishActions::Runs::ThisTimer:
        return toggleRun();
    case FinishActions::Runs::ChosenPreset:
        return startChosenPreset();
    case FinishActions::Runs::TargetTimer:
        return startTargetWuffer();
    }
}

void Wuffer::startChosenPreset()
{
    // The last entry, preset 0, gives number 10. Nothing is stored under its key, so the timer runs
    // again unchanged.
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
    // An observer of the start may have closed the other timer.
    if (!target._closed)
        target.comeForward();
}

void Wuffer::getFinishingHelp()
{
    Q_EMIT helpRequested(QStringLiteral("finish-actions"));
}
