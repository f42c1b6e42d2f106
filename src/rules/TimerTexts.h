#pragma once

#include <QStringView>

// Texts that the program compares or stores as well as shows. Each is defined once.

inline constexpr QStringView kGoButtonStart = u"Start";
inline constexpr QStringView kGoButtonStop = u"Stop";
/// The button's title while the alarm lasts.
inline constexpr QStringView kGoButtonReset = u"Reset";
/// The button's title in a chain: at the head, which the user can start, and at the other timers.
inline constexpr QStringView kGoButtonStartChain = u"Start Chain";
inline constexpr QStringView kGoButtonChained = u"Chained";
inline constexpr QStringView kStopwatchString = u"Stopwatch";

inline constexpr QStringView kMoreOptions = u"More Options";
inline constexpr QStringView kHideOptions = u"Hide Options";

/// The name of a timer that the user has not named.
inline constexpr QStringView kUnnamedTitle = u"Wuffer";

inline constexpr QStringView kWufferFinishedNothing = u"Do Nothing";
inline constexpr QStringView kWufferFinishedRestart = u"Loop this Wuffer";
inline constexpr QStringView kWufferFinishedPreset = u"Start a Preset";
inline constexpr QStringView kWufferFinishedWuffer = u"Start other open Wuffer";

inline constexpr QStringView kWuffSound = u"Wuff (Default)";
inline constexpr QStringView kCrowSound = u"Crow (Default)";

/// The font family of the big display, the milliseconds and the elapsed line.
inline constexpr QStringView kResultLabelFont = u"Courier";
