#include "base/NotificationCenter.h"
#include "base/UserDefaults.h"
#include "controls/ToolTip.h"
#include "rules/PreferenceTexts.h"
#include "rules/TimerTexts.h"
#include "sounds/SoundCombos.h"
#include "sounds/SoundPreviews.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

#include <QSignalBlocker>

namespace
{
/// Fills the combo and restores its selection. If that is not listed any more or there was none,
/// selects the sound of the preferences, or else the built-in one.
void refill(WebbyComboBox &combo, SoundEntry builtInSound, const QString &globalPath)
{
    const QSignalBlocker quiet(combo);
    const std::optional<QString> selected = combo.dataObjectOfSelectedItem();
    SoundCombos::fill(combo, builtInSound, {SoundEntry::Manage});
    SoundCombos::select(combo, builtInSound);
    if (!globalPath.isEmpty())
        combo.selectItemWithDataObjectValue(globalPath);
    if (selected && !selected->isEmpty())
        combo.selectItemWithDataObjectValue(*selected);
}
} // namespace

void Wuffer::loadGlobalSettings()
{
    const UserDefaults &defaults = UserDefaults::standardUserDefaults();
    _soundOff = defaults.value(Keys::kSoundOff);
    _suppressCountdown = defaults.value(Keys::kSuppressCountdown);
    _autoStartPresets = defaults.value(Keys::kAutoStartPresets);
    _disableGrowl = defaults.value(Keys::kGrowlDisabled);
    _energySaverActive = defaults.value(Keys::kEnergySaverMode);
    // The timer may be skipping ticks that the new settings need.
    _checkTimer.skipTicks(0);

    const QString text = defaults.value(Keys::kFinishedText);
    _finishedText = text.isEmpty() ? kFinishedTextDefault.toString() : text;

    if (_soundOff) {
        for (Sound *sound : {_doneSound.get(), _beepSound.get()}) {
            if (sound)
                sound->stop();
        }
    }
    ClickableImageView &speaker = *_ui->_soundOffImage;
    speaker.setImage(_soundOff ? QStringLiteral("sound_mute.png")
                               : QStringLiteral("sound_high.png"));
    const QString press = _soundOff ? tr("Let all timers be heard again") : tr("Mute all timers");
    ToolTip::set(speaker, press);
    speaker.setAccessibleName(press);
    speaker.setAccessibleDescription(_soundOff ? tr("Sound is off") : tr("Sound is on"));
    speaker.setChecked(_soundOff);
    handleFinishedComboChange();
    refreshSoundComboEnabledness();
    populateSoundCombos();
}

void Wuffer::populateSoundCombos()
{
    const UserDefaults &defaults = UserDefaults::standardUserDefaults();
    refill(*_ui->_alarmSoundCombo, SoundEntry::Wuff, defaults.value(Keys::kAlarmPath));
    refill(*_ui->_countdownSoundCombo, SoundEntry::Crow, defaults.value(Keys::kCountdownPath));
    _previews->followChoices();
}

void Wuffer::handleManageSounds(WebbyComboBox &combo)
{
    if (SoundCombos::selectedEntry(combo) != SoundEntry::Manage)
        return;
    combo.setCurrentIndex(0);
    NotificationCenter::defaultCenter().postNotificationName(Notices::kManageSounds);
}

void Wuffer::refreshSoundComboEnabledness()
{
    const bool audible = !_soundOff && !_run.isStopwatch();
    _ui->_alarmSoundCombo->setEnabled(audible);
    _ui->_countdownSoundCombo->setEnabled(audible && !_suppressCountdown);
    _previews->setEnabled(audible, audible && !_suppressCountdown);
}
