#include "app/WufferApplication.h"
#include "platform/Desktop.h"
#include "platform/OpenPanel.h"
#include "platform/Service.h"
#include "platform/Sound.h"
#include "platform/UserDefaults.h"
#include "platform/WindowOrder.h"
#include "preferences/PreferenceTexts.h"
#include "preferences/Preferences.h"
#include "preferences/SoundCombos.h"
#include "timer/SoundPreviews.h"
#include "timer/TimerTexts.h"
#include "ui_Preferences.h"

#include <QSignalBlocker>

namespace
{
void store(const SoundHistory &history)
{
    UserDefaults::standardUserDefaults().setObject(history.paths(), QStringLiteral("soundHistory"));
}

QString storedPath(const QString &key)
{
    return UserDefaults::standardUserDefaults().stringForKey(key).value_or(QString());
}
} // namespace

/// What differs between the alarm and the countdown sound.
struct Preferences::Kind
{
    WebbyComboBox &combo;
    ElidedLabel &label;
    QStringView builtInSound;
    QString key;
};

Preferences::Kind Preferences::alarm() const
{
    return {*_ui->_alarmCombo, *_ui->_alarmLabel, kWuffSound, QStringLiteral("alarmPath")};
}

Preferences::Kind Preferences::countdown() const
{
    return {*_ui->_countdownCombo, *_ui->_countdownLabel, kCrowSound,
            QStringLiteral("countdownPath")};
}

bool Preferences::soundFileIsValid(const QString &path) const
{
    if (path.isEmpty())
        return false;
    const auto sound = Service<SoundSystem>::current().soundWithContentsOfFile(path);
    return sound && sound->duration() != 0;
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
    if (soundFileIsValid(path)) {
        SoundHistory history = SoundCombos::storedHistory();
        history.add(path);
        store(history);
    } else {
        Service<Desktop>::current().beep();
    }
    return path;
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
    for (const char *key : {"soundHistory", "alarmPath", "countdownPath"})
        defaults.removeObjectForKey(QString::fromLatin1(key));
    populateComboBoxes();
}

void Preferences::refreshSoundTitles()
{
    for (const Kind &kind : {alarm(), countdown()}) {
        const QString path = storedPath(kind.key);
        kind.label.setText(path.isEmpty() ? kind.builtInSound.toString()
                                          : SoundHistory::displayTitle(path));
        kind.label.setToolTip(SoundCombos::toolTip(path));
    }
}

void Preferences::populateComboBoxes()
{
    const QSignalBlocker quietAlarm(_ui->_alarmCombo);
    const QSignalBlocker quietCountdown(_ui->_countdownCombo);
    for (const Kind &kind : {alarm(), countdown()})
        SoundCombos::fill(kind.combo, kind.builtInSound, {kSelectAnotherSound, kClearCustomSounds});
    for (const Kind &kind : {alarm(), countdown()})
        selectStoredSound(kind);
}

void Preferences::selectStoredSound(const Kind &kind)
{
    const QString path = storedPath(kind.key);
    if (soundFileIsValid(path)) {
        kind.combo.selectItemWithDataObjectValue(path);
        return;
    }
    if (!path.isEmpty()) {
        // It stays in the list until that is filled again, and remains the choice in the settings:
        // the file may come back.
        removeSound(path);
        bringToFront(*_preferencesWindow);
        Service<Desktop>::current().beep();
    }
    kind.combo.selectItemWithDataObjectValue(kind.builtInSound.toString());
}

void Preferences::comboBoxSelectionDidChange(WebbyComboBox *combo)
{
    if (combo != _ui->_alarmCombo && combo != _ui->_countdownCombo)
        return;
    _previews->stop();
    const Kind kind = combo == _ui->_alarmCombo ? alarm() : countdown();
    // Not by the text that is shown: a file may be called like anything.
    const QString selected = combo->dataObjectOfSelectedItem().value_or(QString());
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    if (selected == kSelectAnotherSound)
        selectAnotherSound(kind);
    else if (selected == kClearCustomSounds)
        clearSoundHistory();
    else if (selected == kCrowSound)
        defaults.removeObjectForKey(QStringLiteral("countdownPath"));
    else if (selected == kWuffSound)
        defaults.removeObjectForKey(QStringLiteral("alarmPath"));
    else if (SoundCombos::storedHistory().contains(selected) && soundFileIsValid(selected))
        defaults.setObject(selected, kind.key);
    sendChangedNotification();
    refreshSoundTitles();
}

void Preferences::selectAnotherSound(const Kind &kind)
{
    if (const std::optional<QString> path = addSoundPath()) {
        populateComboBoxes();
        selectAndReport(kind.combo, *path);
    } else if (!WufferApplication::isQuitting()) {
        // The end of the program closes the panel, too, and is no choice of a sound.
        selectAndReport(kind.combo, kind.builtInSound.toString());
    }
}

void Preferences::selectAndReport(WebbyComboBox &combo, const QString &dataObject)
{
    if (!combo.containsDataObject(dataObject))
        return;
    combo.selectItemWithDataObjectValue(dataObject);
    comboBoxSelectionDidChange(&combo);
}
