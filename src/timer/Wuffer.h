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

    // What others ask a timer: Wuffer.cpp.

    [[nodiscard]] WufferWindow *window() const { return _window.get(); }
    /// Started and not closed; a timer in its alarm phase counts as running.
    [[nodiscard]] bool isRunning() const { return _run.isStarted() && !_closed; }
    /// When the run ends: the distant future for a stopwatch, nothing before the first start.
    [[nodiscard]] std::optional<Date> targetDate() const { return _run.targetDate(); }
    /// The name typed by the user, or "Wuffer".
    [[nodiscard]] QString title() const;
    /// The name with the duration set: "Tea - 0h 5m 0s".
    [[nodiscard]] QString description() const;
    /// What the big display says; what it would say, while nobody can see it.
    [[nodiscard]] QString statusString() const;
    /// The colour in which it says so.
    [[nodiscard]] QColor currentTextColor() const;
    /// The button that starts and stops it, for a menu item that repeats it.
    [[nodiscard]] QAbstractButton &goButton() const;

    // The run cycle: WufferRunCycle.cpp, WufferAlarmPhase.cpp.

    /// The user's Start, Stop or Reset: starts when not started, else stops. Never refused.
    void goPressed();
    /// Back to the state before the last start.
    void resetWuffer();
    /// Enters or leaves stopwatch mode; ignored while started.
    void stopwatch();
    /// Whether the alarm may go on until the user stops it: only when nothing else is to follow.
    [[nodiscard]] bool shouldKeepWuffing() const;
    /// Switches the keep-wuffing box over.
    void toggleKeepWuffing();

    // The fields: WufferFields.cpp.

    /// The duration in the three fields in whole seconds. Bad text counts as 0.
    [[nodiscard]] double timeLeftFromFields() const;
    /// Writes so many seconds into the three fields.
    void setFieldsWithTimeLeft(double timeLeft);
    /// Goes to the name, the whole of which the next letter replaces.
    void rename();

    // The target date: WufferTargetTime.cpp.

    /// Shows the sheet in which a date is picked; ignored while started.
    void targetTime();
    /// Counts down to the date picked in the sheet.
    void startWithTargetTime();
    /// Hides the sheet.
    void endTargetTimeSheet();

    // The display: WufferDisplay.cpp.

    /// Shows these times, in seconds; a remaining time of zero or less restores the idle display.
    void refreshDisplay(double remaining, double timeElapsed);
    /// The only way by which text reaches the big display: fits the font to the text.
    void setResultLabelText(const QString &text);
    /// Colours every text of the display, the elapsed line only if it is asked for.
    void setColorForDisplayText(TextColor color, bool elapsedToo);
    /// The idle display.
    void setDefaultDisplayValues();
    /// Some window has come into view or gone: a display that has rested and is seen catches up.
    void windowExposed();
    /// Some window of the program has gone.
    void windowHidden();

    // Sounds and notifications: WufferSounds.cpp.

    /// The sound of a choice: a built-in name or the path of a file. Null when there is none.
    [[nodiscard]] std::unique_ptr<Sound> createSoundWithPath(const QString &path) const;
    /// Starts the alarm sound.
    void playDone();
    /// Plays one countdown beep.
    void playBeep();
    /// Warms both sounds up silently.
    void prepareSounds();
    /// Posts the desktop notification that tells of the end.
    void showGrowlNotification();

    // Full screen and windows: WufferPresentation.cpp.

    /// Moves the display onto the screen that the user looks at, the pointer hidden, or back.
    void setFullScreenMode(bool fullScreen);
    /// Sets the three texts of the display in the sizes of the full screen or of the window.
    void setFullScreenFontSizes(bool fullScreen);
    /// Enters full-screen mode, or leaves it.
    void startStopFullScreen();
    /// Leave full-screen mode, for the user or for an alarm; answer whether the timer was in it.
    bool setWindowed();
    bool giveUpFullScreen();
    /// Opens or closes the drawer and retitles its button.
    void showHideAdvanced();
    /// Brings the timer's window to the front, with the whole program, for the user.
    void showWufferWindow();

    /// What a menu item does to a timer.
    using Operation = void (Wuffer::*)();
    /// Whether the menu item with this operation is enabled; retitles what follows the state.
    [[nodiscard]] bool validateMenuItem(QAction &item, Operation action) const;

    // Settings: WufferSettings.cpp.

    /// Keeps the settings of this timer and the place of its window under the key.
    void storeSettingsInDefaultsWithKey(const QString &key);
    /// Keeps them for the next launch.
    void saveSettingsToDefaultKey();
    /// Reads what is kept under the key into the controls, puts the window where it was kept, but
    /// never exactly onto another timer's, if that is asked for, and shows it.
    void loadSettingsFromDefaultsWithKey(const QString &key, bool moveWindow);

    // Presets: WufferPresets.cpp.

    /// The key of a preset in the settings: "Preset 3". Any number will do.
    [[nodiscard]] static QString keyForPreset(quint32 number);
    /// A preset in a list: "Tea - 0h 5m 0s". One that was never saved is made first.
    [[nodiscard]] static QString stringForPreset(qint32 number);
    /// Saves this timer into the preset of that number; ignored while started or a stopwatch.
    void setPreset(qint32 number);
    /// Mark the timer as one that holds a preset unchanged, and undo that after an edit.
    void setPresetColor();
    void removePresetColor();

    // Finish actions: WufferFinishActions.cpp.

    /// Fills the finish combo with what can follow the end, and selects "Do Nothing".
    void populateFinishedCombo();
    /// Adapts the picker and the keep-wuffing box to the finish action selected.
    void handleFinishedComboChange();
    /// Lists the presets in the picker, keeping the place that is selected.
    void populateFinishedPickerComboWithPresets();
    /// Shows in the picker which timer this one starts, or how to choose one.
    void populateFinishedPickerComboWithChosenTargetWuffer();
    /// Runs the finish action.
    void handleFinishedBehaviour();
    /// Explains the finish actions.
    void getFinishingHelp();

    // Chains, known to both ends of each link and never a circle: WufferChain.cpp.

    /// The timer that this one starts when it has finished, and the one that starts it; or null.
    [[nodiscard]] Wuffer *getTargetWuffer() const { return _targetWuffer; }
    [[nodiscard]] Wuffer *getTargetingWuffer() const { return _reverseTargetWuffer; }
    /// Whether this timer starts another or is started by one.
    [[nodiscard]] bool isChained() const;
    /// The whole chain of this timer, in the order in which its members run.
    [[nodiscard]] std::vector<Wuffer *> chainedWuffers();
    /// "Wuffer Chain - 2 of 3"; empty when the timer is not chained.
    [[nodiscard]] QString chainString();
    /// Lets this timer start another one, or none for null, when it has finished. Links that
    /// stand in the way are cut. Ignored for the timer itself.
    void setTargetWuffer(Wuffer *timer);
    /// The other side of setTargetWuffer(), which alone calls it.
    void setTargeted(Wuffer &timer);
    /// Cut the link to the timer that this one starts, and that from the timer that starts it.
    void removeTargetWuffer();
    void removeTargetingWuffer();
    /// Shows the state of the chain in this timer, unless it is started.
    void refreshChainStatus();
    void refreshChainStatusForAllChainedWuffers();

    // Global settings: WufferGlobalSettings.cpp.

    /// Takes over the settings that hold for all timers.
    void loadGlobalSettings();
    /// Fills the sound combos and keeps what is selected in them.
    void populateSoundCombos();
    /// Lets sounds be chosen only where they can be heard.
    void refreshSoundComboEnabledness();

Q_SIGNALS:
    /// What the menu items of this timer may do, or are called, may have changed.
    void stateChanged();
    /// The window closes; the timer is of no more use. Before the notice that tells of it.
    void closed();
    /// The user wants to read this page of the help.
    void helpRequested(const QString &page);
    /// The user wants to choose, below this button, which timer this one starts.
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
    /// What the number fields say, each as a whole number.
    [[nodiscard]] qint32 hours() const;
    [[nodiscard]] qint32 minutes() const;
    [[nodiscard]] qint32 seconds() const;
    void controlTextDidChange(const QLineEdit &field);
    void controlTextDidEndEditing(const QLineEdit &field);
    void enableReturnShortcut();
    void disableReturnShortcut();
    void comboBoxSelectionDidChange(QComboBox &combo);
    void handleManageSounds(WebbyComboBox &combo);
    /// How long the run was meant to last, with its pass where it loops.
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
    /// Made when it is first asked for: a calendar is costly.
    std::unique_ptr<TargetTimeSheet> _targetTimeWindow;

    std::unique_ptr<TimeEntry> _timeEntry;
    TextColor _titleColor = TextColor::Black;
    TextColor _elapsedColor = TextColor::Black;
    TimerRun _run;
    DisplayRest _displayRest;
    ClockTimer _checkTimer{[this] { timerLoop(); }};
    ClockTimer _wuffTimer{[this] { wuffLoop(); }};
    /// Gives the Return key back a moment after it has ended the editing of the name.
    ClockTimer _returnTimer{[this] { enableReturnShortcut(); }};
    std::unique_ptr<Sound> _doneSound;
    std::unique_ptr<Sound> _beepSound;
    AlarmNotification _alarmNotification{*this, [this] { return !_soundOff && !_disableGrowl; }};
    QString _finishedText;
    bool _energySaverActive = false;
    bool _soundOff = false;
    bool _suppressCountdown = false;
    /// Loaded with the others; who opens presets reads the setting itself.
    bool _autoStartPresets = false;
    bool _disableGrowl = false;
    bool _closed = false;
    /// The timer that this one starts, and the one that starts it. Closing a window cuts the links.
    QPointer<Wuffer> _targetWuffer;
    QPointer<Wuffer> _reverseTargetWuffer;
};
