#pragma once

#include "rules/NameText.h"

#include <QCoreApplication>
#include <QStringView>

// Texts that the program stores or compares. They are the same in every language.

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

/// Texts that several parts of the program show, translated.
class TimerTexts final
{
    Q_DECLARE_TR_FUNCTIONS(TimerTexts)

public:
    // The titles of the button that starts and stops a timer.

    //: On the button and in the menu: runs the timer.
    [[nodiscard]] static QString start() { return tr("Start"); }
    //: On the button and in the menu: stops the running timer.
    [[nodiscard]] static QString stop() { return tr("Stop"); }
    //: On the button and in the menu, during an alarm: ends the alarm.
    [[nodiscard]] static QString reset() { return tr("Reset"); }
    //: On the button and in the menu, at the first timer of a chain: runs the chain.
    [[nodiscard]] static QString startChain() { return tr("Start Chain"); }
    //: On the disabled button and in the menu: another timer starts this one.
    [[nodiscard]] static QString chained() { return tr("Chained"); }

    //: A timer that counts up, and the menu item that makes a timer one.
    [[nodiscard]] static QString stopwatch() { return tr("Stopwatch"); }
    //: The menu item that makes a stopwatch a timer that counts down.
    [[nodiscard]] static QString timer() { return tr("Timer"); }
    //: Opens the drawer with more options of a timer.
    [[nodiscard]] static QString moreOptions() { return tr("More Options"); }
    //: Closes the drawer with more options of a timer.
    [[nodiscard]] static QString hideOptions() { return tr("Hide Options"); }

    //: A line of a list: the name of a timer and a time, such as “Tea - 0h 5m 0s”.
    [[nodiscard]] static QString description(const QString &name, const QString &time)
    {
        return tr("%1 - %2").arg(name, time);
    }
    /// The same to be drawn, with the name isolated.
    [[nodiscard]] static QString nameAndTime(const QString &name, const QString &time)
    {
        return description(NameText::isolated(name), time);
    }
    //: The name of a timer and what its display shows, such as “Tea: 5m 3s”.
    [[nodiscard]] static QString nameAndStatus(const QString &name, const QString &status)
    {
        return tr("%1: %2").arg(NameText::isolated(name), status);
    }
};
