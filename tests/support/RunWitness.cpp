#include "support/RunWitness.h"

#include "app/WufferApplication.h"
#include "base/NotificationCenter.h"
#include "controls/DisplayLabel.h"
#include "rules/TimerTexts.h"
#include "support/Find.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace
{
/// How late a timer may ring on a computer that is awake, in seconds: in the energy saver mode it
/// checks the time only at every fifth tick.
constexpr double kLate = 0.19;
constexpr int kDay = 86400;
constexpr int kBeepsOfARun = 12;

bool isRinging(const Wuffer &timer)
{
    return child<QPushButton>(*timer.window(), "_goButton").text() == TimerTexts::reset();
}

/// The seconds in a text like "1h 2m 3s"; nullopt for any other text.
std::optional<int> secondsIn(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:(\\d+)h )?(?:(\\d+)m )?(\\d+)s(?: \\(x\\d+\\))?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toInt() * 3600 + match.captured(2).toInt() * 60 +
           match.captured(3).toInt();
}

/// The timer that ends first; the newest of them if several end at the same time.
const Wuffer *firstToEnd(const std::vector<Wuffer *> &running)
{
    const Wuffer *first = nullptr;
    for (const Wuffer *timer : running) {
        if (!first || *timer->targetDate() <= *first->targetDate())
            first = timer;
    }
    return first;
}
} // namespace

RunWitness::RunWitness(TestServices &services) : _services(services)
{
    NotificationCenter::defaultCenter().addObserver(
        *this, QStringLiteral("statusChanged"),
        [this](QObject *object) { noticed(static_cast<const Wuffer &>(*object)); });
}

void RunWitness::noticed(const Wuffer &timer)
{
    const auto known = _runs.find(&timer);
    if (!timer.isRunning()) {
        if (known != _runs.end()) {
            endRun(*known);
            _runs.erase(known);
        }
    } else if (known == _runs.end()) {
        begin(timer);
    } else {
        require(known->end == *timer.targetDate(), "a run keeps its end time");
        if (isRinging(timer) && !known->hasRung)
            ring(*known);
    }
    compareSigns();
    lookAtStatusItem();
}

void RunWitness::begin(const Wuffer &timer)
{
    ++runs;
    _runs.insert(&timer, {Date::now(), *timer.targetDate()});
    require(!isRinging(timer), "a run does not begin with its alarm");
}

void RunWitness::ring(Run &run)
{
    ++rings;
    run.hasRung = true;
    require(run.end.timeIntervalSinceNow() <= 0, "a timer does not ring before its end");
    const bool muted = isSet("soundOff");
    _expected.notifications += isSet("growlDisabled") ? 0 : 1;
    _expected.alarms += muted ? 0 : 1;
    _expected.attentions += muted ? 1 : 0;
}

void RunWitness::endRun(const Run &run)
{
    require(run.hasRung || overdue(run) < kLate, "a run that has reached its end has rung");
}

void RunWitness::compareSigns()
{
    _seen.notifications += int(std::exchange(_services.notifications.shown, {}).size());
    _seen.attentions += int(std::exchange(_services.desktop.attentionAskedFor, {}).size());
    _seen.alarms += int(_services.sounds.diary(QStringLiteral("play wolvesWuff.wav")).size());
    const auto beepsHeard = int(_services.sounds.diary(QStringLiteral("play crow.wav")).size());
    _services.sounds.clearDiary();
    beeps += beepsHeard;
    require(beepsHeard == 0 || !(isSet("soundOff") || isSet("suppressCountdown")),
            "no beep sounds while the settings forbid it");
    require(beeps <= runs * kBeepsOfARun, "a run beeps twelve times at most");
    require(_seen == _expected, "each end is announced once, in the ways that are set");
}

void RunWitness::lookAtStatusItem()
{
    const StatusItem &item = _services.statusItem;
    std::vector<Wuffer *> running = WufferApplication::getWuffers();
    std::erase_if(running, [](const Wuffer *timer) { return !timer->isRunning(); });
    if (isSet("noStatusBar") || running.empty()) {
        require(item.isEmpty(), "the status item is empty when there is nothing to show");
        return;
    }
    const Wuffer *first = firstToEnd(running);
    require(item.target() == first, "the status item is for the timer that ends first");
    require(item.attributedTitle().text == first->statusString() + QLatin1Char(' '),
            "the status item shows the text of the display");
    require((item.menu() != nullptr) == (running.size() > 1), "only several timers have a menu");
    require(!item.menu() || item.menu()->lines().size() == running.size(),
            "the menu has a line for each running timer");
}

void RunWitness::look()
{
    compareSigns();
    for (const Wuffer *timer : WufferApplication::getWuffers()) {
        const auto run = _runs.constFind(timer);
        require((run != _runs.constEnd()) == timer->isRunning(),
                "every start and stop has a notice");
        if (run != _runs.constEnd())
            lookAt(*timer, *run);
        else
            require(!isRinging(*timer), "only a running timer rings");
    }
}

void RunWitness::lookAt(const Wuffer &timer, const Run &run)
{
    const double remaining = run.end.timeIntervalSinceNow();
    require(run.hasRung || overdue(run) < kLate, "a timer rings when its time is over");
    require(run.hasRung == isRinging(timer), "an alarm lasts until the run ends");
    const double duration = run.end.timeIntervalSinceDate(run.begin);
    if (run.hasRung || remaining <= 0 || duration >= kDay)
        return;
    const std::optional<int> shown = secondsIn(timer.statusString());
    require(shown && std::abs(*shown + 0.5 - remaining) < 0.5 + kLate,
            "the display shows the time that remains");
    // In full screen mode the line is not in the window; at the start it is empty.
    const auto *line = timer.window()->findChild<DisplayLabel *>(QStringLiteral("_elapsedLabel"));
    if (!line || line->text().isEmpty() || !shown)
        return;
    // Both are rounded down to whole seconds, so the sum may be one second short.
    const std::optional<int> elapsed = secondsIn(line->text().section(QLatin1Char(' '), 1));
    const double sum = *shown + elapsed.value_or(-kDay);
    require(sum == duration || sum == duration - 1, "elapsed and remaining add up to the duration");
}

double RunWitness::overdue(const Run &run)
{
    // A run with a negative duration is over as soon as it begins.
    return -std::max(run.begin, run.end).timeIntervalSinceNow();
}

void RunWitness::require(bool condition, const char *what)
{
    if (!condition)
        complaints << QString::fromLatin1(what);
}

bool RunWitness::isSet(const char *key) const
{
    return _services.defaults.boolForKey(QString::fromLatin1(key));
}
