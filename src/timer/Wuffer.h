#pragma once

#include "base/ClockTimer.h"
#include "base/Sound.h"
#include "rules/AlarmNotification.h"
#include "rules/DisplayRest.h"
#include "rules/FinishActions.h"
#include "rules/TimerRun.h"
#include "timer/TimerColors.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

class QAbstractButton;
class QAction;
class QComboBox;
class QLineEdit;
class SoundPreviews;
class TargetTimeSheet;
class TimeEntry;
class TimerHost;
struct TimerSettings;
class WebbyComboBox;
class WufferWindow;

namespace Ui
{
class Wuffer;
}

/// One timer: the controller of its window and of everything that runs in it.
///
/// It counts down from the time typed into it or to a date picked in a sheet, or counts up as a
/// stopwatch; at the end it rings ("wuffs") and runs its finish action. Time is measured between
/// dates, never by counting ticks. The application owns it until its window closes.
class Wuffer final : public QObject
{
    Q_OBJECT

public:
    /// Makes the timer with its window, idle, unnamed and not yet shown.
    explicit Wuffer(TimerHost &host);
    ~Wuffer() override;

    // What the rest of the program asks a timer: Wuffer.cpp.

    [[nodiscard]] WufferWindow *window() const { return _window.get(); }
    /// Started and not closed; a timer in its alarm phase counts as running.
    [[nodiscard]] bool isRunning() const { return _run.isStarted() && !_closed; }
    /// The current or last run, and when it ends.
    [[nodiscard]] const TimerRun &run() const { return _run; }
    [[nodiscard]] std::optional<Date> targetDate() const { return _run.targetDate(); }
    /// The name typed by the user, or "Wuffer".
    [[nodiscard]] QString title() const;
    /// The name with the duration set: "Tea - 0h 5m 0s".
    [[nodiscard]] QString description() const;
    /// The text of the big display, computed if the display rests out of sight.
    [[nodiscard]] QString statusString() const;
    /// The colour of the text of the big display.
    [[nodiscard]] QColor currentTextColor() const;
    /// The button that starts and stops the timer, for the menu item that does the same.
    [[nodiscard]] QAbstractButton &goButton() const;

    // The run cycle: WufferRunCycle.cpp, WufferAlarmPhase.cpp.

    /// The user's press of Start, Stop or Reset: starts or stops the timer. Never ignored.
    void goPressed();
    /// Returns to the state before the last start.
    void resetWuffer();
    /// Enters or leaves stopwatch mode; ignored while started.
    void stopwatch();
    /// Whether the alarm may repeat until the user stops it: only if nothing else is to run.
    [[nodiscard]] bool shouldKeepWuffing() const;
    /// Toggles the keep-wuffing box.
    void toggleKeepWuffing();

    // The fields: WufferFields.cpp.

    /// The duration in the three fields in whole seconds. Bad text counts as 0.
    [[nodiscard]] double timeLeftFromFields() const;
    /// Writes this many seconds into the three fields.
    void setFieldsWithTimeLeft(double timeLeft);
    /// Focuses the name field and selects the name, so that typing replaces it.
    void rename();

    // The target date: WufferTargetTime.cpp.

    /// Shows the sheet in which the user picks a date; ignored while started.
    void targetTime();
    /// Starts a countdown to the date picked in the sheet.
    void startWithTargetTime();
    /// Hides the sheet.
    void endTargetTimeSheet();

    // The display: WufferDisplay.cpp.

    /// Shows these times, in seconds; a remaining time of zero or less restores the idle display.
    void refreshDisplay(double remaining, double timeElapsed);
    /// Sets the text of the big display, and its font size. No other code sets that text.
    void setResultLabelText(const QString &text);
    /// Colours the texts of the display; the elapsed line only if elapsedToo is true.
    void setColorForDisplayText(TextColor color, bool elapsedToo);
    /// Shows the idle display.
    void setDefaultDisplayValues();
    /// The exposure of a window has changed: refreshes a rested display that is now visible.
    void windowExposed();
    /// A window has been hidden: an activation of this one is then not an answer by the user.
    void windowHidden();

    // Sounds and notifications: WufferSounds.cpp.

    /// The sound for a choice: a built-in name or the path of a file. Null if there is none.
    [[nodiscard]] std::unique_ptr<Sound> createSoundWithPath(const QString &path) const;
    /// Starts the alarm sound.
    void playDone();
    /// Plays one countdown beep.
    void playBeep();
    /// Starts and stops both sounds at volume 0, which prepares them for playing.
    void prepareSounds();
    /// Shows the desktop notification of the alarm.
    void showGrowlNotification();

    // Full screen and windows: WufferPresentation.cpp.

    /// Fills the screen of the focused window with the display, without pointer, or undoes that.
    void setFullScreenMode(bool fullScreen);
    /// Sets the font sizes of the display for full screen or for the window.
    void setFullScreenFontSizes(bool fullScreen);
    /// Enters full-screen mode, or leaves it.
    void startStopFullScreen();
    /// Leave full-screen mode and return whether the timer was in it. giveUpFullScreen() is for
    /// alarms: the window activation that follows is not an answer by the user.
    bool setWindowed();
    bool giveUpFullScreen();
    /// Opens or closes the drawer and retitles its button.
    void showHideAdvanced();
    /// Brings the timer's window and the program to the front, at the user's request.
    void showWufferWindow();

    /// An operation that a menu item runs on a timer.
    using Operation = void (Wuffer::*)();
    /// Whether the menu item with this operation is enabled. Also updates its title.
    [[nodiscard]] bool validateMenuItem(QAction &item, Operation action) const;

    // Settings: WufferSettings.cpp.

    /// Stores the settings of this timer and the place of its window under the key.
    void storeSettingsInDefaultsWithKey(const QString &key);
    /// Stores them for the next launch.
    void saveSettingsToDefaultKey();
    /// Loads the settings stored under the key and shows the window. With moveWindow, it moves to
    /// its stored place first, but never exactly onto another timer.
    void loadSettingsFromDefaultsWithKey(const QString &key, bool moveWindow);

    // Presets: WufferPresets.cpp.

    /// The key of a preset in the settings: "Preset 3". Any number is allowed.
    [[nodiscard]] static QString keyForPreset(quint32 number);
    /// The text for a preset in lists: "Tea - 0h 5m 0s". Stores a preset that was never saved.
    [[nodiscard]] static QString stringForPreset(qint32 number);
    /// Saves this timer into the preset of that number; ignored while started or a stopwatch.
    void setPreset(qint32 number);
    /// Mark the timer as holding an unchanged preset, and remove the mark after an edit.
    void setPresetColor();
    void removePresetColor();

    // Finish actions: WufferFinishActions.cpp.

    /// Fills the finish combo with the finish actions, and selects "Do Nothing".
    void populateFinishedCombo();
    /// Adapts the picker and the keep-wuffing box to the selected finish action.
    void handleFinishedComboChange();
    /// Lists the presets in the picker and keeps the selected index.
    void populateFinishedPickerComboWithPresets();
    /// Shows in the picker which timer this one starts, or how to choose one.
    void populateFinishedPickerComboWithChosenTargetWuffer();
    /// Runs the finish action.
    void handleFinishedBehaviour();
    /// Explains the finish actions.
    void getFinishingHelp();

    // Chains: WufferChain.cpp. Both timers of a link know it, and links never form a circle.

    /// The timer that this one starts when finished, and the timer that starts this one; or null.
    [[nodiscard]] Wuffer *getTargetWuffer() const { return _targetWuffer; }
    [[nodiscard]] Wuffer *getTargetingWuffer() const { return _reverseTargetWuffer; }
    /// Whether this timer starts another or is started by one.
    [[nodiscard]] bool isChained() const;
    /// The whole chain of this timer, in the order in which its members run.
    [[nodiscard]] std::vector<Wuffer *> chainedWuffers();
    /// "Wuffer Chain - 2 of 3"; empty when the timer is not chained.
    [[nodiscard]] QString chainString();
    /// Makes this timer start the other one when finished, or none for null. Cuts links that
    /// conflict. Ignored for this timer itself and for closed timers.
    void setTargetWuffer(Wuffer *timer);
    /// Sets the timer that starts this one. Only setTargetWuffer() calls it.
    void setTargeted(Wuffer &timer);
    /// Cut the link to the timer that this one starts, and the link from the one that starts it.
    void removeTargetWuffer();
    void removeTargetingWuffer();
    /// Shows the links and, unless started, the place of this timer in its chain.
    void refreshChainStatus();
    void refreshChainStatusForAllChainedWuffers();

    // Global settings: WufferGlobalSettings.cpp.

    /// Loads the settings that all timers share.
    void loadGlobalSettings();
    /// Fills the sound combos and keeps their selections.
    void populateSoundCombos();
    /// Enables each sound combo only if its sound can be heard.
    void refreshSoundComboEnabledness();

Q_SIGNALS:
    /// The titles or the enabled state of menu items for this timer may have changed.
    void stateChanged();
    /// The window is closing; the timer must not be used any more. Precedes kStatusChanged.
    void closed();
    /// The user wants to read this page of the help.
    void helpRequested(const QString &page);
    /// The user wants to choose, in a menu below this button, which timer this one starts.
    void targetsRequested(QWidget *button);

private:
    void fitControls();
    void awakeFromNib();
    void connectControls();
    void connectDrawer();
    void toggleRun();
    void startRun();
    void stopRun();
    void timerLoop();
    void timerDone();
    void wuffLoop();
    void beepIfDue(double remaining);
    void skipIdleTicks();
    void setRunningControls(bool running, const QString &goTitle);
    void postStatusChanged();
    void windowWillClose();
    /// The contents of the number fields as whole numbers.
    [[nodiscard]] qint32 hours() const;
    [[nodiscard]] qint32 minutes() const;
    [[nodiscard]] qint32 seconds() const;
    void controlTextDidChange(const QLineEdit &field);
    void controlTextDidEndEditing(const QLineEdit &field);
    void enableReturnShortcut();
    void disableReturnShortcut();
    void comboBoxSelectionDidChange(QComboBox &combo);
    void handleManageSounds(WebbyComboBox &combo);
    /// The planned duration of the run, with the number of the pass if the timer loops.
    [[nodiscard]] QString durationText() const;
    void setElapsedColor(TextColor color);
    [[nodiscard]] TimerSettings settings() const;
    void takeOver(const TimerSettings &settings);
    void showAsPreset(const TimerSettings &settings, const QString &key);
    void showPresetMark(const QString &name, const QString &origin);
    void restorePlace(const QString &key);
    [[nodiscard]] const FinishActions::Row &finishAction() const;
    void selectFinishAction(FinishAction action);
    void fillFinishedPicker(FinishActions::Picker picker);
    void showLinks();
    void refreshKeepWuffingBox();
    void startChosenPreset();
    void startTargetWuffer();
    void comeForward();

    TimerHost &_host;
    std::unique_ptr<WufferWindow> _window;
    std::unique_ptr<Ui::Wuffer> _ui;
    std::unique_ptr<SoundPreviews> _previews;
    /// Created on first use, because a calendar is costly.
    std::unique_ptr<TargetTimeSheet> _targetTimeWindow;
    std::unique_ptr<TimeEntry> _timeEntry;
    TextColor _titleColor = TextColor::Black;
    TextColor _elapsedColor = TextColor::Black;
    TimerRun _run;
    DisplayRest _displayRest;
    ClockTimer _checkTimer{[this] { timerLoop(); }};
    ClockTimer _wuffTimer{[this] { wuffLoop(); }};
    /// Enables the Return shortcut a moment after Return has ended the editing of the name.
    ClockTimer _returnTimer{[this] { enableReturnShortcut(); }};
    std::unique_ptr<Sound> _doneSound;
    std::unique_ptr<Sound> _beepSound;
    AlarmNotification _alarmNotification{*this, [this] { return !_soundOff && !_disableGrowl; }};
    QString _finishedText;
    bool _energySaverActive = false;
    bool _soundOff = false;
    bool _suppressCountdown = false;
    /// Loaded but not read here: the code that opens presets reads the setting itself.
    bool _autoStartPresets = false;
    bool _disableGrowl = false;
    bool _closed = false;
    /// The timer that this one starts, and the one that starts it. Closing a window cuts the links.
    QPointer<Wuffer> _targetWuffer;
    QPointer<Wuffer> _reverseTargetWuffer;
};
