#include "base/UserDefaults.h"
#include "rules/NameText.h"
#include "rules/Preset.h"
#include "rules/TimerSettings.h"
#include "rules/TimerTexts.h"
#include "timer/TimeEntry.h"
#include "timer/TimerHost.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

namespace
{
/// Whether the settings under this key are for the next launch. All other keys are of presets.
bool isForNextLaunch(const QString &key)
{
    return key == Keys::kDefaultWufferSettings.name;
}

/// Limits the search for a free place, which would not end if there were a window at every place.
/// Far more than the places of a cascade on any screen.
constexpr int kMostMoves = 202;

void select(DataComboBox &combo, const std::optional<QString> &path)
{
    if (path)
        combo.selectItemWithDataObjectValue(*path);
}
} // namespace

TimerSettings Wuffer::settings() const
{
    TimerSettings settings;
    settings.title = _ui->_titleField->text();
    settings.hours = hours();
    settings.minutes = minutes();
    settings.seconds = seconds();
    settings.keepWuffing = _ui->_keepWuffingBox->isChecked();
    settings.fullScreen = _ui->_fullScreenBox->isChecked();
    const FinishActions::Row &action = finishAction();
    if (action.isStored)
        settings.finishOption = action.stored.toString();
    if (action.picker == FinishActions::Picker::Presets)
        settings.presetSelection = _ui->_finishedPicker->currentIndex();
    return settings;
}

void Wuffer::storeSettingsInDefaultsWithKey(const QString &key)
{
    _timeEntry->spreadFractions();
    TimerSettings kept = settings();
    if (!isForNextLaunch(key)) {
        kept.individualAlarmPath = _ui->_alarmSoundCombo->dataObjectOfSelectedItem();
        kept.individualCountdownPath = _ui->_countdownSoundCombo->dataObjectOfSelectedItem();
    }
    UserDefaults::standardUserDefaults().setObject(kept.record(), key);
    _window->saveFrameUsingName(key);
}

void Wuffer::saveSettingsToDefaultKey()
{
    storeSettingsInDefaultsWithKey(Keys::kDefaultWufferSettings.text());
}

void Wuffer::loadSettingsFromDefaultsWithKey(const QString &key, bool moveWindow)
{
    const QVariantMap record = UserDefaults::standardUserDefaults().dictionaryForKey(key);
    if (record.isEmpty()) {
        handleFinishedComboChange();
    } else {
        const TimerSettings stored = TimerSettings::fromRecord(record);
        takeOver(stored);
        if (!isForNextLaunch(key))
            showAsPreset(stored, key);
        if (moveWindow)
            restorePlace(key);
    }
    comeForward();
}

void Wuffer::takeOver(const TimerSettings &settings)
{
    _ui->_titleField->setText(settings.title);
    if (!settings.title.isEmpty())
        _window->setWindowTitle(NameText::asWindowTitle(settings.title));
    _ui->_hoursField->setText(QString::number(settings.hours));
    _ui->_minutesField->setText(QString::number(settings.minutes));
    _ui->_secondsField->setText(QString::number(settings.seconds));
    _ui->_keepWuffingBox->setChecked(settings.keepWuffing);
    _ui->_fullScreenBox->setChecked(settings.fullScreen);
    selectFinishAction(FinishActions::fromStored(settings.finishOption.value_or(QString())));
    handleFinishedComboChange();
    if (finishAction().picker == FinishActions::Picker::Presets)
        _ui->_finishedPicker->setCurrentIndex(settings.presetSelection.value_or(0));
    _timeEntry->makeReady();
}

void Wuffer::showAsPreset(const TimerSettings &settings, const QString &key)
{
    showPresetMark(_ui->_titleField->text(), Preset::openedMark(key));
    select(*_ui->_alarmSoundCombo, settings.individualAlarmPath);
    select(*_ui->_countdownSoundCombo, settings.individualCountdownPath);
}

void Wuffer::restorePlace(const QString &key)
{
    _window->setFrameUsingName(key);
    for (int move = 0; move < kMostMoves; ++move) {
        const WufferWindow *other = _host.windowSharingOrigin(*_window);
        if (!other)
            return;
        const QPoint next = _window->cascadeTopLeftFromPoint(other->pos());
        _window->cascadeTopLeftFromPoint(next);
    }
}
