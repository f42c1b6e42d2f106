#pragma once

#include "platform/StatusItem.h"
#include "rules/NameText.h"
#include "rules/RunningTimers.h"
#include "rules/TimerTexts.h"

/// What the status item shows about the running timers.
template<class Timer> struct StatusDescription final
{
    /// The timer that ends first, whose window a click shows; null when the item shows nothing.
    Timer *target = nullptr;
    /// The status of that timer, in its colour.
    StatusTitle title;
    /// Whether a click opens the list of all running timers instead.
    bool hasMenu = false;

    [[nodiscard]] static StatusDescription
    of(const std::vector<RunningTimers::Running<Timer>> &running)
    {
        Timer *first = RunningTimers::soonestEnding(running);
        if (!first)
            return {};
        const QString text = NameText::inOneLine(first->statusString()) + QLatin1Char(' ');
        return {first, {text, first->currentTextColor(), kFontSize}, running.size() >= 2};
    }

    /// The line of a timer in that list.
    [[nodiscard]] static QString line(const Timer &timer)
    {
        return TimerTexts::nameAndStatus(NameText::inOneLine(timer.title()),
                                         NameText::inOneLine(timer.statusString()));
    }

private:
    static constexpr double kFontSize = 15;
};
