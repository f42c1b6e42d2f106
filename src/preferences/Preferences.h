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
/// The window shows what the settings hold. Every change goes to the settings at once and is
/// announced with the notice Notices::kPrefsChanged, so there is nothing to apply. The
/// controller is made when the program starts, its window is shown when somebody asks for it.
class Preferences final : public QObject
{
    Q_OBJECT
    /// The window that is brought forward.
    Q_PROPERTY(QWidget *_window MEMBER _window)

public:
    /// Fills the window, which is not shown, and loads the preferences. The menu item is the one
    /// that mutes and unmutes; its title follows. Both must outlive the controller. The function
    /// says whether the program is about to end.
    Preferences(QMainWindow &window, QAction &muteMenu, std::function<bool()> programEnds);
    ~Preferences() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

    // The options: Preferences.cpp.

    /// Shows what the settings hold, and writes it back with what was missing.
    void loadPreferences();
    /// Writes every option to the settings and announces the change.
    void savePreferences();
    void sendChangedNotification();
    /// Adapts the controls to the mute box, and saves.
    void turnOffSound();
    /// Switches the mute box over.
    void toggleMute();
    /// Brings the window to the front, its sounds in view.
    void showSoundTab();

    // The sound library: PreferencesSounds.cpp.

    /// Whether the file at the path can be played.
    [[nodiscard]] bool soundFileIsValid(const QString &path) const;
    /// Lets the user choose a file; nothing when it was cancelled.
    [[nodiscard]] std::optional<QUrl> getSoundFileURL();
    /// Lets the user choose a file and adds it to the library, or beeps if it cannot be played.
    /// The path of the file in both cases; nothing when it was cancelled.
    std::optional<QString> addSoundPath();
    /// Adds the files to the library and takes the first that can be played into use, as if each
    /// had been chosen at this place of the page of the sounds. Beeps if one cannot be played.
    void takeDroppedSounds(QPoint place, const QStringList &paths);
    /// Takes the path out of the library in the settings; the lists that are shown stay.
    void removeSound(const QString &path);
    /// Forgets all added sounds and goes back to the built-in ones.
    void clearSoundHistory();
    /// Names the sounds in use.
    void refreshSoundTitles();
    /// Fills both sound combos and selects the sounds in use. A sound in use that cannot be played
    /// any more is taken out of the library.
    void populateComboBoxes();
    /// Carries out what was selected in one of the sound combos. Null and any other box are
    /// ignored.
    void comboBoxSelectionDidChange(WebbyComboBox *combo);

private:
    struct Kind;

    void awakeFromNib();
    void connectControls();
    void controlTextDidChange(const QLineEdit &field);
    void windowWillClose(const QWidget &window);

    [[nodiscard]] Kind alarm() const;
    [[nodiscard]] Kind countdown() const;
    /// The sound to whose row the place belongs; the alarm away from both.
    [[nodiscard]] Kind kindAt(QPoint place) const;
    /// Whether sounds are taken there: where they can be chosen, too.
    [[nodiscard]] bool takesAt(QPoint place) const;
    /// Adds the file to the library in the settings if it can be played; whether it can.
    [[nodiscard]] bool addSound(const QString &path) const;
    /// Says which file of the kind cannot be played; nothing for no path.
    static void showMissing(const Kind &kind, const QString &path);
    void selectStoredSound(const Kind &kind);
    void selectAndReport(WebbyComboBox &combo, const QString &dataObject);
    void selectAnotherSound(const Kind &kind);
    /// Carries out what one of the entries stands for that are not files.
    void carryOut(SoundEntry entry, const Kind &kind);
    /// Makes the file the sound in use, if it is in the library and can be played.
    void storeFile(const Kind &kind, const QString &path);

    QWidget *_window;
    std::unique_ptr<Ui::Preferences> _ui;
    QWidget *_preferencesWindow;
    QAction &_muteMenu;
    const std::function<bool()> _programEnds;
    std::unique_ptr<SoundPreviews> _previews;
};
