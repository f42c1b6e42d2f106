#pragma once

#include <QStringList>
#include <QVariant>

#include <array>
#include <optional>
#include <variant>

// All keys of stored values and all names of notices. Other files use these constants, so that a
// value cannot be written under one name and read under another.

/// The key of a stored value, with the type as which it is read. A value that is missing or of
/// another type reads as off, 0 or empty, and as nothing if the type is optional.
template<class Value> struct SettingsKey
{
    QStringView name;

    /// The key as UserDefaults takes it. Does not copy the characters.
    [[nodiscard]] QString text() const { return QString::fromRawData(name.data(), name.size()); }
};

/// A key of any type, for code that handles all keys.
using AnySettingsKey =
    std::variant<SettingsKey<bool>, SettingsKey<float>, SettingsKey<QString>,
                 SettingsKey<QStringList>, SettingsKey<QVariantMap>, SettingsKey<qint32>,
                 SettingsKey<std::optional<qint32>>, SettingsKey<std::optional<QString>>>;

/// The keys of the settings.
namespace Keys
{
// Options that all timers share. A switch is stored as 1 or 0.

/// Timers play no sounds.
inline constexpr SettingsKey<bool> kSoundOff{u"soundOff"};
/// No beeps before the end of a countdown.
inline constexpr SettingsKey<bool> kSuppressCountdown{u"suppressCountdown"};
/// A timer that is opened from the presets starts at once.
inline constexpr SettingsKey<bool> kAutoStartPresets{u"autoStartPresets"};
/// No notification on the desktop at the end of a countdown.
inline constexpr SettingsKey<bool> kGrowlDisabled{u"growlDisabled"};
/// A running timer updates its display at every fifth tick only.
inline constexpr SettingsKey<bool> kEnergySaverMode{u"energySaverMode"};
/// No status item in the panel.
inline constexpr SettingsKey<bool> kNoStatusBar{u"noStatusBar"};
/// The text that a timer shows at its end. Missing and empty mean the built-in text.
inline constexpr SettingsKey<QString> kFinishedText{u"finishedText"};
/// The stored text of a launch choice. Any other text opens one timer.
inline constexpr SettingsKey<QString> kLaunchBehavior{u"launchBehavior"};

// Sounds that all timers share, each stored as the path of its file.

/// The sounds that the user has added, newest first.
inline constexpr SettingsKey<QStringList> kSoundHistory{u"soundHistory"};
/// The sound of the alarm and that of the countdown. Missing means the built-in one.
inline constexpr SettingsKey<QString> kAlarmPath{u"alarmPath"};
inline constexpr SettingsKey<QString> kCountdownPath{u"countdownPath"};

// Timers.

/// The settings of the first timer of the next launch: a record of TimerKeys.
inline constexpr SettingsKey<QVariantMap> kDefaultWufferSettings{u"defaultWufferSettings"};
/// The beginning of the key of a preset, followed by its number. A preset is such a record, too.
inline constexpr QStringView kPresetPrefix = u"Preset ";
/// The places of windows: under the key of each record above, a record of PlaceKeys.
inline constexpr SettingsKey<QVariantMap> kWindowFrames{u"windowFrames"};

// The quantities of the converter. Missing means 0.

inline constexpr SettingsKey<float> kFahrenheitValue{u"fahrenheitValue"};
inline constexpr SettingsKey<float> kGramsValue{u"gramsValue"};
inline constexpr SettingsKey<float> kMilliliterValue{u"mLValue"};

/// All keys but those of the presets, which are made from kPresetPrefix.
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
/// The name that the user has typed. Missing and empty mean no name.
inline constexpr SettingsKey<QString> kTitle{u"title"};
/// The values of the three number fields.
inline constexpr SettingsKey<qint32> kHours{u"hours"};
inline constexpr SettingsKey<qint32> kMinutes{u"minutes"};
inline constexpr SettingsKey<qint32> kSeconds{u"seconds"};
/// The alarm repeats until the user stops it.
inline constexpr SettingsKey<bool> kKeepWuffing{u"keepWuffing"};
/// The timer fills the screen when it starts.
inline constexpr SettingsKey<bool> kFullScreen{u"fullScreen"};
/// The stored text of the finish action. Missing means that no action is selected.
inline constexpr SettingsKey<std::optional<QString>> kFinishOption{u"finishOption"};
/// The index of the preset that follows in the list of presets. Missing means the first.
inline constexpr SettingsKey<std::optional<qint32>> kPresetSelection{u"presetSelection"};
/// The timer's own sounds: the selections in its two lists. Missing leaves the selection as it is.
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

/// The keys of a record with the place of one window, in device-independent pixels. Without both
/// values the record is ignored.
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

    /// The name as the NotificationCenter takes it. Does not copy the characters.
    operator QString() const { return QString::fromRawData(name.data(), name.size()); }
};

namespace Notices
{
/// Posted by a Wuffer, the object, at every fifth tick of its run and whenever it has started,
/// stopped, reached its end or closed. Updates the status item.
inline constexpr Notice kStatusChanged{u"statusChanged"};
/// Posted by a Wuffer, the object, after it was saved as a preset. Updates the menu of the presets.
inline constexpr Notice kPresetsChanged{u"presetsChangedNotification"};
/// Posted by the Preferences, the object, after each change of an option or a sound that all
/// timers share. Every Wuffer then reads the settings again.
inline constexpr Notice kPrefsChanged{u"prefsChangedNotification"};
/// Posted by a Wuffer, without an object, to make the Preferences show their page of sounds.
inline constexpr Notice kManageSounds{u"manageSoundsNotification"};
/// Posted by a ClickableImageView, the object, at each click. The Preferences mute or unmute.
inline constexpr Notice kClickableImageViewClicked{u"ClickableImageViewClicked"};

inline constexpr std::array kAll{kStatusChanged, kPresetsChanged, kPrefsChanged, kManageSounds,
                                 kClickableImageViewClicked};
} // namespace Notices
