#include "platform/UserDefaults.h"
#include "timer/TimerTexts.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

namespace
{
/// Empties the combo and fills it anew, keeping its selection where that is still listed.
void refill(WebbyComboBox &combo, QStringView builtInSound)
{
    const std::optional<QString> selected = combo.dataObjectOfSelectedItem();
    combo.removeAllItems();
    combo.addItemWithObjectValue(builtInSound.toString());
    combo.selectItemWithDataObjectValue(builtInSound.toString());
    if (selected && !selected->isEmpty())
        combo.selectItemWithDataObjectValue(*selected);
}
} // namespace

void Wuffer::loadGlobalSettings()
{
    const UserDefaults &defaults = UserDefaults::standardUserDefaults();
    _soundOff = defaults.boolForKey(QStringLiteral("soundOff"));
    _suppressCountdown = defaults.boolForKey(QStringLiteral("suppressCountdown"));
    _autoStartPresets = defaults.boolForKey(QStringLiteral("autoStartPresets"));
    _disableGrowl = defaults.boolForKey(QStringLiteral("growlDisabled"));
    _energySaverActive = defaults.boolForKey(QStringLiteral("energySaverMode"));

    const QString text = defaults.stringForKey(QStringLiteral("finishedText")).value_or(QString());
    _finishedText = text.isEmpty() ? QStringLiteral("Wuff!") : text;

    if (_soundOff) {
        for (Sound *sound : {_doneSound.get(), _beepSound.get()}) {
            if (sound)
                sound->stop();
        }
    }
    _ui->_soundOffImage->setImage(_soundOff ? QStringLiteral("sound_mute.png")
                                            : QStringLiteral("sound_high.png"));
    _ui->_soundOffImage->setAccessibleName(_soundOff ? tr("Sound is off") : tr("Sound is on"));
    handleFinishedComboChange();
    refreshSoundComboEnabledness();
    populateSoundCombos();
}

void Wuffer::populateSoundCombos()
{
    refill(*_ui->_alarmSoundCombo, kWuffSound);
    refill(*_ui->_countdownSoundCombo, kCrowSound);
}

void Wuffer::refreshSoundComboEnabledness()
{
    const bool audible = !_soundOff && !_stopwatch;
    _ui->_alarmSoundCombo->setEnabled(audible);
    _ui->_countdownSoundCombo->setEnabled(audible && !_suppressCountdown);
}
