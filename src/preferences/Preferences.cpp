#include "preferences/Preferences.h"

#include "base/NotificationCenter.h"
#include "base/UserDefaults.h"
#include "controls/PickFromList.h"
#include "platform/WindowOrder.h"
#include "preferences/SoundDrop.h"
#include "preferences/SoundFileCheck.h"
#include "rules/LaunchChoices.h"
#include "rules/PreferenceTexts.h"
#include "sounds/SoundPreviews.h"
#include "ui_Preferences.h"

#include <QAction>
#include <QEvent>

namespace
{
void load(QCheckBox &box, const SettingsKey<bool> &key)
{
    // As a whole number, so that a half is no 1.
    box.setChecked(UserDefaults::standardUserDefaults().integerForKey(key.text()) != 0);
}

void save(const QCheckBox &box, const SettingsKey<bool> &key)
{
    UserDefaults::standardUserDefaults().setValue(box.isChecked(), key);
}
} // namespace

Preferences::Preferences(QMainWindow &window, QAction &muteMenu,
                         std::function<bool()> programEnds) :
    _window(&window),
    _ui(std::make_unique<Ui::Preferences>()), _preferencesWindow(&window), _muteMenu(muteMenu),
    _programEnds(std::move(programEnds))
{
    _ui->setupUi(&window);
    _previews = std::make_unique<SoundPreviews>(
        SoundPreviews::Place{*_ui->_alarmPlayButton, *_ui->_alarmCombo},
        SoundPreviews::Place{*_ui->_countdownPlayButton, *_ui->_countdownCombo});
    _check = std::make_unique<SoundFileCheck>(*_ui->soundTab,
                                              [this](const Sound &sound) { giveUpLate(sound); });
    connectControls();
    awakeFromNib();
    fitHints();
}

Preferences::~Preferences() = default;

void Preferences::fitHints()
{
    // A wrapped text does not ask for the height that it needs at the least width of its page.
    const int page =
        std::max(_ui->generalTab->sizeHint().width(), _ui->soundTab->sizeHint().width());
    const QMargins margins = _ui->_soundLayout->contentsMargins();
    const int width = page - margins.left() - margins.right();
    for (QLabel *hint : std::initializer_list<QLabel *>{_ui->_statusItemHint, _ui->_energySaverHint,
                                                        _ui->_soundHint})
        hint->setMinimumHeight(hint->heightForWidth(width));
}

void Preferences::awakeFromNib()
{
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(*this, Notices::kManageSounds, [this](QObject *) { showSoundTab(); });
    for (const LaunchChoices::Row &row : LaunchChoices::rows())
        _ui->_launchCombobox->addDataObject(row.stored.toString(), LaunchChoices::shownText(row));
    center.addObserver(*this, Notices::kClickableImageViewClicked,
                       [this](QObject *) { toggleMute(); });
    loadPreferences();
}

void Preferences::connectControls()
{
    _preferencesWindow->installEventFilter(this);
    for (const QCheckBox *box : {_ui->_energySaverCheckbox, _ui->_autoStartPresetsCheckbox,
                                 _ui->_disableGrowlCheckbox, _ui->_disableMenuBarCheckbox})
        connect(box, &QCheckBox::clicked, this, &Preferences::savePreferences);
    // Both boxes also enable or disable the controls of sounds.
    for (const QCheckBox *box : {_ui->_turnOffSoundCheckbox, _ui->_suppressCountdownCheckbox})
        connect(box, &QCheckBox::clicked, this, &Preferences::turnOffSound);
    new PickFromList(*_ui->_launchCombobox);
    connect(_ui->_launchCombobox, &QComboBox::activated, this, &Preferences::savePreferences);
    auto *drop = new SoundDrop(*_ui->soundTab, [this](QPoint place) { return takesAt(place); });
    // Queued, because the program from which the files come waits until the drop is handled.
    connect(drop, &SoundDrop::dropped, this, &Preferences::takeDroppedSounds, Qt::QueuedConnection);
    connect(_ui->_finishedText, &QLineEdit::textEdited, this,
            [this] { controlTextDidChange(*_ui->_finishedText); });
    for (WebbyComboBox *combo : {_ui->_alarmCombo, _ui->_countdownCombo}) {
        new PickFromList(*combo);
        connect(combo, &QComboBox::activated, this,
                [this, combo] { comboBoxSelectionDidChange(combo); });
    }
}

void Preferences::loadPreferences()
{
    populateComboBoxes();
    refreshSoundTitles();
    load(*_ui->_energySaverCheckbox, Keys::kEnergySaverMode);
    load(*_ui->_suppressCountdownCheckbox, Keys::kSuppressCountdown);
    load(*_ui->_autoStartPresetsCheckbox, Keys::kAutoStartPresets);
    load(*_ui->_turnOffSoundCheckbox, Keys::kSoundOff);
    load(*_ui->_disableGrowlCheckbox, Keys::kGrowlDisabled);
    load(*_ui->_disableMenuBarCheckbox, Keys::kNoStatusBar);

    const UserDefaults &defaults = UserDefaults::standardUserDefaults();
    const LaunchChoices::Row &launch =
        LaunchChoices::fromStored(defaults.value(Keys::kLaunchBehavior));
    _ui->_launchCombobox->selectItemWithDataObjectValue(launch.stored.toString());

    const QString text = defaults.value(Keys::kFinishedText);
    _ui->_finishedText->setText(text.isEmpty() ? kFinishedTextDefault.toString() : text);
    turnOffSound();
}

void Preferences::savePreferences()
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    save(*_ui->_energySaverCheckbox, Keys::kEnergySaverMode);
    save(*_ui->_suppressCountdownCheckbox, Keys::kSuppressCountdown);
    defaults.setValue(_ui->_finishedText->text(), Keys::kFinishedText);
    save(*_ui->_turnOffSoundCheckbox, Keys::kSoundOff);
    save(*_ui->_autoStartPresetsCheckbox, Keys::kAutoStartPresets);
    save(*_ui->_disableGrowlCheckbox, Keys::kGrowlDisabled);
    save(*_ui->_disableMenuBarCheckbox, Keys::kNoStatusBar);
    defaults.setValue(_ui->_launchCombobox->dataObjectOfSelectedItem().value_or(QString()),
                      Keys::kLaunchBehavior);
    sendChangedNotification();
}

void Preferences::sendChangedNotification()
{
    NotificationCenter::defaultCenter().postNotificationName(Notices::kPrefsChanged, this);
}

void Preferences::turnOffSound()
{
    const bool soundOn = !_ui->_turnOffSoundCheckbox->isChecked();
    const bool countdownOn = soundOn && !_ui->_suppressCountdownCheckbox->isChecked();
    _ui->_suppressCountdownCheckbox->setEnabled(soundOn);
    _ui->_alarmCombo->setEnabled(soundOn);
    _ui->_countdownCombo->setEnabled(countdownOn);
    _previews->setEnabled(soundOn, countdownOn);
    _muteMenu.setText(soundOn ? tr("Mute All") : tr("Unmute All"));
    savePreferences();
}

void Preferences::toggleMute()
{
    _ui->_turnOffSoundCheckbox->toggle();
    turnOffSound();
}

void Preferences::showSoundTab()
{
    bringToFront(*_window);
    _ui->_tabView->setCurrentWidget(_ui->soundTab);
}

void Preferences::controlTextDidChange(const QLineEdit &field)
{
    if (&field == _ui->_finishedText)
        savePreferences();
}

void Preferences::windowWillClose(const QWidget &window)
{
    if (&window == _preferencesWindow)
        savePreferences();
}

bool Preferences::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == _preferencesWindow) {
        if (event->type() == QEvent::Close)
            windowWillClose(*_preferencesWindow);
        else if (event->type() == QEvent::Hide)
            _previews->stop();
    }
    return QObject::eventFilter(watched, event);
}
