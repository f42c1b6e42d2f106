#pragma once

#include "platform/StatusItem.h"
#include "rules/NameText.h"
#include "rules/RunningTimers.h"

/// What the status item is to say of the timers that run.
template<class Timer> struct StatusDescription final
{
    /// The one that ends first, whom a press is meant for; null when nothing is to be seen.
    Timer *target = nullptr;
    /// Its status in its colour.
    StatusTitle title;
    /// Whether a press opens the list of all that run.
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

    /// The line for a timer in that list.
    [[nodiscard]] static QString line(const Timer &timer)
    {
        return NameText::inOneLine(timer.title()) + QStringLiteral(": ") +
               NameText::inOneLine(timer.statusString());
    }

private:
    static constexpr double kFontSize = 15;
};
