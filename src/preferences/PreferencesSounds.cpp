#include "base/Desktop.h"
#include "base/OpenPanel.h"
#include "base/Service.h"
#include "base/Sound.h"
#include "base/UserDefaults.h"
#include "preferences/Preferences.h"
#include "preferences/SoundFileCheck.h"
#include "sounds/SoundCombos.h"
#include "sounds/SoundPreviews.h"
#include "ui_Preferences.h"

#include <QFileInfo>
#include <QSignalBlocker>

namespace
{
void store(const SoundHistory &history)
{
    UserDefaults::standardUserDefaults().setValue(history.paths(), Keys::kSoundHistory);
}

QString storedPath(const SettingsKey<QString> &key)
{
    return UserDefaults::standardUserDefaults().value(key);
}
} // namespace

/// What differs between the alarm and the countdown sound.
struct Preferences::Kind
{
    WebbyComboBox &combo;
    ElidedLabel &label;
    QLabel &missingWord;
    ElidedLabel &missingLabel;
    SoundEntry builtInSound;
    SettingsKey<QString> key;
};

Preferences::Kind Preferences::alarm() const
{
    return {*_ui->_alarmCombo,        *_ui->_alarmLabel, *_ui->_alarmMissingWord,
            *_ui->_alarmMissingLabel, SoundEntry::Wuff,  Keys::kAlarmPath};
}

Preferences::Kind Preferences::countdown() const
{
    return {*_ui->_countdownCombo,        *_ui->_countdownLabel, *_ui->_countdownMissingWord,
            *_ui->_countdownMissingLabel, SoundEntry::Crow,      Keys::kCountdownPath};
}

Preferences::Kind Preferences::kindAt(QPoint place) const
{
    QRect row;
    for (const QWidget *part : std::initializer_list<const QWidget *>{
             _ui->_countdownCombo, _ui->_countdownPlayButton, _ui->_countdownLabel,
             _ui->_countdownMissingLabel}) {
        if (!part->isHidden())
            row |= part->geometry();
    }
    return place.y() >= row.top() && place.y() <= row.bottom() ? countdown() : alarm();
}

bool Preferences::takesAt(QPoint place) const
{
    return kindAt(place).combo.isEnabled();
}

bool Preferences::soundFileIsValid(const QString &path) const
{
    return !path.isEmpty() && _check->openPatiently(path)->duration() != 0;
}

std::optional<QUrl> Preferences::getSoundFileURL()
{
    return Service<OpenPanel>::current().runModal(*_preferencesWindow, tr("Select a sound file"));
}

std::optional<QString> Preferences::addSoundPath()
{
    const std::optional<QUrl> file = getSoundFileURL();
    if (!file)
        return std::nullopt;
    QString path = file->toLocalFile();
    if (!addSound(path))
        Service<Desktop>::current().beep();
    return path;
}

bool Preferences::addSound(const QString &path) const
{
    if (!soundFileIsValid(path))
        return false;
    SoundHistory history = SoundCombos::storedHistory();
    history.add(path);
    store(history);
    return true;
}

void Preferences::takeDroppedSounds(QPoint place, const QStringList &paths)
{
    WebbyComboBox &combo = kindAt(place).combo;
    QStringList playable;
    // Add the last file first: each new one goes to the front, so the list keeps the order of the
    // drop.
    for (qsizetype index = paths.size() - 1; index >= 0; --index) {
        if (addSound(paths.at(index)))
            playable.prepend(paths.at(index));
    }
    if (playable.size() < paths.size())
        Service<Desktop>::current().beep();
    if (playable.isEmpty())
        return;
    _previews->stop();
    populateComboBoxes();
    selectAndReport(combo, playable.first());
}

void Preferences::showMissing(const Kind &kind, const Sound &sound)
{
    //: Stands before the name of the file of a sound.
    kind.missingWord.setText(sound.isMissing() ? tr("Missing:") : tr("Unplayable:"));
    kind.missingLabel.setText(QFileInfo(sound.name()).fileName());
    kind.missingLabel.setToolTip(SoundCombos::toolTip(sound.name()));
    setMissingVisible(kind, true);
}

void Preferences::setMissingVisible(const Kind &kind, bool visible)
{
    for (QLabel *label : std::initializer_list<QLabel *>{&kind.missingWord, &kind.missingLabel})
        label->setVisible(visible);
}

void Preferences::removeSound(const QString &path)
{
    SoundHistory history = SoundCombos::storedHistory();
    history.remove(path);
    store(history);
}

void Preferences::clearSoundHistory()
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    defaults.removeValue(Keys::kSoundHistory);
    defaults.removeValue(Keys::kAlarmPath);
    defaults.removeValue(Keys::kCountdownPath);
    populateComboBoxes();
}

void Preferences::refreshSoundTitles()
{
    for (const Kind &kind : {alarm(), countdown()}) {
        const QString path = storedPath(kind.key);
        kind.label.setText(path.isEmpty() ? SoundEntries::shownText(kind.builtInSound)
                                          : SoundHistory::displayTitle(path));
        kind.label.setToolTip(SoundCombos::toolTip(path));
    }
}

void Preferences::populateComboBoxes()
{
    const QSignalBlocker quietAlarm(_ui->_alarmCombo);
    const QSignalBlocker quietCountdown(_ui->_countdownCombo);
    for (const Kind &kind : {alarm(), countdown()})
        SoundCombos::fill(kind.combo, kind.builtInSound,
                          {SoundEntry::SelectAnother, SoundEntry::ClearCustom});
    for (const Kind &kind : {alarm(), countdown()})
        selectStoredSound(kind);
}

void Preferences::selectStoredSound(const Kind &kind)
{
    setMissingVisible(kind, false);
    const QString path = storedPath(kind.key);
    if (path.isEmpty()) {
        SoundCombos::select(kind.combo, kind.builtInSound);
        return;
    }
    kind.combo.selectItemWithDataObjectValue(path);
    // A file that has not answered yet stays selected until it turns out to be unplayable.
    const std::shared_ptr<const Sound> sound = _check->open(path);
    // If no module to open sounds is available, the file may still be a good one.
    if (sound->duration() == 0 && Service<SoundSystem>::current().canOpenFiles())
        giveUp(kind, *sound);
}

void Preferences::giveUp(const Kind &kind, const Sound &sound)
{
    showMissing(kind, sound);
    // The combo lists the file until it is filled again, and the settings keep it as the choice,
    // because the file may come back.
    removeSound(sound.name());
    showSoundTab();
    Service<Desktop>::current().beep();
    SoundCombos::select(kind.combo, kind.builtInSound);
}

void Preferences::giveUpLate(const Sound &sound)
{
    bool gaveUp = false;
    for (const Kind &kind : {alarm(), countdown()}) {
        // The user may have chosen another sound meanwhile, which may not be stored yet. A file
        // that is not in the library is not selected.
        const QString path = sound.name();
        if (storedPath(kind.key) != path ||
            kind.combo.dataObjectOfSelectedItem().value_or(path) != path)
            continue;
        const QSignalBlocker quiet(kind.combo);
        giveUp(kind, sound);
        gaveUp = true;
    }
    _previews->followChoices();
    // Timers may have been opened, or have filled their combos, before the file answered.
    if (gaveUp)
        sendChangedNotification();
}

void Preferences::comboBoxSelectionDidChange(WebbyComboBox *combo)
{
    if (combo != _ui->_alarmCombo && combo != _ui->_countdownCombo)
        return;
    _previews->stop();
    const Kind kind = combo == _ui->_alarmCombo ? alarm() : countdown();
    const QString before = storedPath(kind.key);
    if (const std::optional<SoundEntry> entry = SoundCombos::selectedEntry(*combo))
        carryOut(*entry, kind);
    else
        storeFile(kind, combo->dataObjectOfSelectedItem().value_or(QString()));
    if (storedPath(kind.key) != before)
        setMissingVisible(kind, false);
    sendChangedNotification();
    refreshSoundTitles();
}

void Preferences::carryOut(SoundEntry entry, const Kind &kind)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    switch (entry) {
    case SoundEntry::Wuff:
        return defaults.removeValue(Keys::kAlarmPath);
    case SoundEntry::Crow:
        return defaults.removeValue(Keys::kCountdownPath);
    case SoundEntry::SelectAnother:
        return selectAnotherSound(kind);
    case SoundEntry::ClearCustom:
        return clearSoundHistory();
    case SoundEntry::Manage:
        // Only the combos of timers have this entry.
        return;
    }
}

void Preferences::storeFile(const Kind &kind, const QString &path) const
{
    // While the file is opened, the user may select another entry, which then counts.
    if (SoundCombos::storedHistory().contains(path) && soundFileIsValid(path) &&
        kind.combo.dataObjectOfSelectedItem() == path)
        UserDefaults::standardUserDefaults().setValue(path, kind.key);
}

void Preferences::selectAnotherSound(const Kind &kind)
{
    if (const std::optional<QString> path = addSoundPath()) {
        populateComboBoxes();
        selectAndReport(kind.combo, *path);
    } else if (!_programEnds()) {
        // When the program ends, the panel closes too, but the user has not chosen a sound.
        selectAndReport(kind.combo, SoundEntries::row(kind.builtInSound).stored.toString());
    }
}

void Preferences::selectAndReport(WebbyComboBox &combo, const QString &dataObject)
{
    if (!combo.containsDataObject(dataObject))
        return;
    combo.selectItemWithDataObjectValue(dataObject);
    comboBoxSelectionDidChange(&combo);
}
