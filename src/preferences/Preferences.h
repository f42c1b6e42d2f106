#pragma once

#include <QObject>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QAction;
class QLineEdit;
class QMainWindow;
class Sound;
class SoundFileCheck;
class SoundPreviews;
class WebbyComboBox;
enum class SoundEntry;

namespace Ui
{
class Preferences;
}

/// The controller of the preferences: the options that all timers share, and the sounds they may
/// choose from.
///
/// The window shows the contents of the settings. Every change is written to the settings at once
/// and announced with Notices::kPrefsChanged, so there is no button to apply it. The controller is
/// created when the program starts; its window is shown when the user opens it.
class Preferences final : public QObject
{
    Q_OBJECT
    /// The window to bring to the front.
    Q_PROPERTY(QWidget *_window MEMBER _window)

public:
    /// Fills the window without showing it, and loads the preferences. Updates the title of the
    /// menu item that mutes and unmutes. Window and item must outlive the controller. The function
    /// returns whether the program is about to end.
    Preferences(QMainWindow &window, QAction &muteMenu, std::function<bool()> programEnds);
    ~Preferences() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

    // The options: Preferences.cpp.

    /// Shows the settings, and writes them back with defaults for missing ones.
    void loadPreferences();
    /// Writes every option to the settings and announces the change.
    void savePreferences();
    void sendChangedNotification();
    /// Enables the controls that depend on the mute box and the countdown box, and saves.
    void turnOffSound();
    /// Toggles the mute box and saves.
    void toggleMute();
    /// Brings the window to the front with the page of the sounds.
    void showSoundTab();

    // The sound library: PreferencesSounds.cpp.

    /// Whether the file at the path can be played. The event loop runs while the file is opened. A
    /// file that does not answer within ten seconds counts as playable: it is not known to be
    /// unplayable.
    [[nodiscard]] bool soundFileIsValid(const QString &path) const;
    /// Lets the user choose a file; nothing if the user cancels.
    [[nodiscard]] std::optional<QUrl> getSoundFileURL();
    /// Lets the user choose a file and adds it to the library; beeps if it cannot be played.
    /// Returns the path in both cases, and nothing if the user cancels.
    std::optional<QString> addSoundPath();
    /// Adds the files to the library and selects the first playable one for the sound at this place
    /// of the page of the sounds. Beeps if a file cannot be played.
    void takeDroppedSounds(QPoint place, const QStringList &paths);
    /// Removes the path from the library in the settings; the combos still list it.
    void removeSound(const QString &path);
    /// Removes all added sounds and returns to the built-in ones.
    void clearSoundHistory();
    /// Shows the names of the sounds in use.
    void refreshSoundTitles();
    /// Fills both sound combos and selects the sounds in use. Removes a sound in use that cannot be
    /// played any more from the library, at once or when its file has answered.
    void populateComboBoxes();
    /// Applies the new selection in a sound combo. Ignores null and other combos.
    void comboBoxSelectionDidChange(WebbyComboBox *combo);

private:
    struct Kind;

    void awakeFromNib();
    void fitHints();
    void connectControls();
    void controlTextDidChange(const QLineEdit &field);
    void windowWillClose(const QWidget &window);

    [[nodiscard]] Kind alarm() const;
    [[nodiscard]] Kind countdown() const;
    /// The sound whose row contains the place; the alarm sound outside both rows.
    [[nodiscard]] Kind kindAt(QPoint place) const;
    /// Whether files may be dropped at the place: only if the combo of its sound is enabled.
    [[nodiscard]] bool takesAt(QPoint place) const;
    /// Adds the file to the library in the settings if it can be played; returns whether it can.
    [[nodiscard]] bool addSound(const QString &path) const;
    /// Shows that this sound cannot be played.
    static void showMissing(const Kind &kind, const Sound &sound);
    static void setMissingVisible(const Kind &kind, bool visible);
    void selectStoredSound(const Kind &kind);
    /// Removes a sound in use that cannot be played from the library, and selects the built-in one.
    void giveUp(const Kind &kind, const Sound &sound);
    /// The same if the sound is in use and its file has answered only now.
    void giveUpLate(const Sound &sound);
    void selectAndReport(WebbyComboBox &combo, const QString &dataObject);
    void selectAnotherSound(const Kind &kind);
    /// Applies an entry that is not a file.
    void carryOut(SoundEntry entry, const Kind &kind);
    /// Makes the file the sound in use, if it is in the library and can be played.
    void storeFile(const Kind &kind, const QString &path) const;

    QWidget *_window;
    std::unique_ptr<Ui::Preferences> _ui;
    QWidget *_preferencesWindow;
    QAction &_muteMenu;
    const std::function<bool()> _programEnds;
    std::unique_ptr<SoundPreviews> _previews;
    std::unique_ptr<SoundFileCheck> _check;
};
