#pragma once

#include <QStringList>
#include <QVariant>

#include <array>
#include <optional>
#include <variant>

// Every key under which something is stored, and the name of every notice. No other file spells
// one, so that a key cannot be read in one place and written under another name in the next.

/// The key of something that is stored, with the type as which it is read. What is missing or of
/// another type reads as off, 0 or empty, and where the type is optional as nothing.
template<class Value> struct SettingsKey
{
    QStringView name;

    /// The key as the settings take it. The characters are not copied.
    [[nodiscard]] QString text() const { return QString::fromRawData(name.data(), name.size()); }
};

/// A key of any type, for what has to look at all of them.
using AnySettingsKey =
    std::variant<SettingsKey<bool>, SettingsKey<float>, SettingsKey<QString>,
                 SettingsKey<QStringList>, SettingsKey<QVariantMap>, SettingsKey<qint32>,
                 SettingsKey<std::optional<qint32>>, SettingsKey<std::optional<QString>>>;

/// The keys of the settings.
namespace Keys
{
// Options that all timers share. A switch is stored as 1 or 0.

/// No timer is heard.
inline constexpr SettingsKey<bool> kSoundOff{u"soundOff"};
/// No beeps before the end of a countdown.
inline constexpr SettingsKey<bool> kSuppressCountdown{u"suppressCountdown"};
/// A timer that is opened from the presets starts at once.
inline constexpr SettingsKey<bool> kAutoStartPresets{u"autoStartPresets"};
/// No notification on the desktop at the end of a countdown.
inline constexpr SettingsKey<bool> kGrowlDisabled{u"growlDisabled"};
/// A running timer changes its display at every fifth tick only.
inline constexpr SettingsKey<bool> kEnergySaverMode{u"energySaverMode"};
/// No status item in the panel.
inline constexpr SettingsKey<bool> kNoStatusBar{u"noStatusBar"};
/// What a timer says at its end. Missing and empty mean the program's own text.
inline constexpr SettingsKey<QString> kFinishedText{u"finishedText"};
/// The stored text of what opens at launch. Anything that is none of these opens one timer.
inline constexpr SettingsKey<QString> kLaunchBehavior{u"launchBehavior"};

// Sounds that all timers share, each by the path of its file.

/// The sounds that the user has added, newest first.
inline constexpr SettingsKey<QStringList> kSoundHistory{u"soundHistory"};
/// The sound of the alarm and that of the countdown. Missing means the built-in one.
inline constexpr SettingsKey<QString> kAlarmPath{u"alarmPath"};
inline constexpr SettingsKey<QString> kCountdownPath{u"countdownPath"};

// Timers.

/// What the first timer of the next launch takes over, a record of TimerKeys.
inline constexpr SettingsKey<QVariantMap> kDefaultWufferSettings{u"defaultWufferSettings"};
/// The beginning of the key of a preset, which holds such a record too; its number follows.
inline constexpr QStringView kPresetPrefix = u"Preset ";
/// Where windows stood: a record of PlaceKeys under the key of each record above.
inline constexpr SettingsKey<QVariantMap> kWindowFrames{u"windowFrames"};

// The quantities of the converter. Missing means 0.

inline constexpr SettingsKey<float> kFahrenheitValue{u"fahrenheitValue"};
inline constexpr SettingsKey<float> kGramsValue{u"gramsValue"};
inline constexpr SettingsKey<float> kMilliliterValue{u"mLValue"};

/// All of them but those of the presets, of which any number may be asked for.
inline constexpr std::array<AnySettingsKey, 16> kAll{
    kSoundOff,        kSuppressCountdown, kAutoStartPresets, kGrowlDisabled,
    kEnergySaverMode, kNoStatusBar,       kFinishedText,     kLaunchBehavior,
    kSoundHistory,    kAlarmPath,         kCountdownPath,    kDefaultWufferSettings,
    kWindowFrames,    kFahrenheitValue,   kGramsValue,       kMilliliterValue,
};
} // namespace Keys

/// The keys of a record with the settings of one timer.
namespace TimerKeys
{
/// The name that the user has typed. Missing and empty mean none.
inline constexpr SettingsKey<QString> kTitle{u"title"};
/// What the three number fields say.
inline constexpr SettingsKey<qint32> kHours{u"hours"};
inline constexpr SettingsKey<qint32> kMinutes{u"minutes"};
inline constexpr SettingsKey<qint32> kSeconds{u"seconds"};
/// The alarm goes on until the user stops it.
inline constexpr SettingsKey<bool> kKeepWuffing{u"keepWuffing"};
/// The timer fills the screen when it starts.
inline constexpr SettingsKey<bool> kFullScreen{u"fullScreen"};
/// The stored text of the finish action. Missing means that none is selected.
inline constexpr SettingsKey<std::optional<QString>> kFinishOption{u"finishOption"};
/// The place in the list of presets, from 0, of the one that follows. Missing means the first.
inline constexpr SettingsKey<std::optional<qint32>> kPresetSelection{u"presetSelection"};
/// The timer's own sounds: what is selected in its lists. Missing leaves the selection as it is.
inline constexpr SettingsKey<std::optional<QString>> kIndividualAlarmPath{u"individualAlarmPath"};
inline constexpr SettingsKey<std::optional<QString>> kIndividualCountdownPath{
    u"individualCountdownPath"};

inline constexpr std::array<AnySettingsKey, 10> kAll{
    kTitle,
    kHours,
    kMinutes,
    kSeconds,
    kKeepWuffing,
    kFullScreen,
    kFinishOption,
    kPresetSelection,
    kIndividualAlarmPath,
    kIndividualCountdownPath,
};
} // namespace TimerKeys

/// The keys of a record with the place of one window, in device-independent pixels. A place of
/// which either is missing is none.
namespace PlaceKeys
{
inline constexpr SettingsKey<std::optional<qint32>> kX{u"x"};
inline constexpr SettingsKey<std::optional<qint32>> kY{u"y"};

inline constexpr std::array<AnySettingsKey, 2> kAll{kX, kY};
} // namespace PlaceKeys

/// The name of a notice on the NotificationCenter.
struct Notice
{
    QStringView name;

    /// The name as the NotificationCenter takes it. The characters are not copied.
    operator QString() const { return QString::fromRawData(name.data(), name.size()); }
};

namespace Notices
{
/// Posted by a Wuffer, the object, at every fifth tick of its run and whenever it has started,
/// stopped, come to its end or closed. The status item follows.
inline constexpr Notice kStatusChanged{u"statusChanged"};
/// Posted by a Wuffer, the object, that has been saved into a preset. The menu of the presets
/// follows.
inline constexpr Notice kPresetsChanged{u"presetsChangedNotification"};
/// Posted by the Preferences, the object, after each change of an option or a sound that all
/// timers share. Every Wuffer follows.
inline constexpr Notice kPrefsChanged{u"prefsChangedNotification"};
/// Posted by a Wuffer, without an object, to have the Preferences show their sounds.
inline constexpr Notice kManageSounds{u"manageSoundsNotification"};
/// Posted by a ClickableImageView, the object, at each click. The Preferences mute or unmute.
inline constexpr Notice kClickableImageViewClicked{u"ClickableImageViewClicked"};

inline constexpr std::array kAll{kStatusChanged, kPresetsChanged, kPrefsChanged, kManageSounds,
                                 kClickableImageViewClicked};
} // namespace Notices
