#include "support/Resident.h"

#include "app/PresetsMenu.h"
#include "app/WufferApplication.h"
#include "base/NotificationCenter.h"
#include "timer/TargetTimeSheet.h"

#include <QAction>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace
{
constexpr int kMostTimers = 6;
constexpr double kHour = 3600;
/// Long enough for a timer in the energy saver mode to check the time, in seconds.
constexpr double kMoment = 0.19;
/// How many ends one wait goes through before the computer sleeps. Without this limit a timer that
/// loops every second would keep the test busy all night.
constexpr int kMostEnds = 6;
/// The tag of the first menu item that opens a preset.
constexpr int kFirstTag = 1000;
} // namespace

/// Something that the resident does; the weight says how often, relative to the other habits.
struct Resident::Habit
{
    int weight;
    const char *name;
    void (Resident::*act)();
};

const std::vector<Resident::Habit> &Resident::habits()
{
    using R = Resident;
    static const std::vector<Habit> habits{
        {6, "open", &R::open},
        {3, "open a preset", &R::openPreset},
        {2, "save a preset", &R::savePreset},
        {5, "close", &R::close},
        {1, "close all", &R::closeAll},
        {8, "type a duration", &R::typeDuration},
        {3, "press keys", &R::pressKeys},
        {2, "type a name", &R::typeName},
        {30, "start", &R::start},
        {6, "stop", &R::stop},
        {4, "reset", &R::reset},
        {3, "stopwatch", &R::stopwatch},
        {2, "count down to a date", &R::countDownToADate},
        {5, "choose a finish action", &R::chooseFinish},
        {5, "link", &R::link},
        {1, "unlink", &R::unlink},
        {2, "keep wuffing", &R::keepWuffing},
        {2, "want the full screen", &R::wantFullScreen},
        {2, "end the full screen", &R::endFullScreen},
        {5, "answer a notification", &R::answerNotification},
        {3, "close a notification", &R::closeNotification},
        {2, "mute", &R::mute},
        {4, "change a preference", &R::changePreference},
        {1, "start all", &R::startAll},
        {22, "wait", &R::wait},
        {2, "watch", &R::watch},
        {5, "shut the lid", &R::shutTheLid},
    };
    return habits;
}

Resident::Resident(quint32 seed) : _random(seed)
{
    _controller.awakeFromNib();
    _witness = std::make_unique<RunWitness>(*this);
    adopt();
}

const char *Resident::act()
{
    const int all = std::accumulate(habits().begin(), habits().end(), 0,
                                    [](int sum, const Habit &each) { return sum + each.weight; });
    int number = _random.bounded(all);
    const Habit *habit = habits().data();
    for (; number >= habit->weight; ++habit)
        number -= habit->weight;
    (this->*habit->act)();
    // Lets short delays run out, such as the one after the Return key.
    clock.advance(0.02);
    // Delivers posted events: closed timers are deleted, and the home window appears.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    _witness->look();
    return habit->name;
}

void Resident::night()
{
    sleep(kHour * 7 + upTo(int(kHour)));
    _witness->look();
}

int Resident::livingTimers() const
{
    return int(std::ranges::count_if(_everOpened, [](const auto &timer) { return timer; }));
}

// Windows

void Resident::adopt()
{
    // A timer that started in full screen mode leaves it, so that its parts are in the window.
    WufferApplication::instance().cancelFullScreenMode();
    Wuffer &timer = *WufferApplication::getWuffers().back();
    _users.push_back(std::make_unique<TimerUser>(timer));
    _everOpened.emplace_back(&timer);
}

void Resident::open()
{
    if (int(_users.size()) >= kMostTimers)
        closeAt(0);
    _controller.newWuffer();
    adopt();
}

void Resident::openPreset()
{
    if (int(_users.size()) >= kMostTimers)
        closeAt(0);
    QAction item;
    item.setData(kFirstTag + _random.bounded(10));
    _controller.preset(&item);
    adopt();
}

void Resident::savePreset()
{
    any().timer.setPreset(_random.bounded(10));
}

void Resident::closeAt(int place)
{
    const auto user = _users.begin() + place;
    Wuffer &timer = (*user)->timer;
    _users.erase(user);
    timer.window()->close();
}

void Resident::close()
{
    if (!_users.empty())
        closeAt(_random.bounded(int(_users.size())));
}

void Resident::closeAll()
{
    while (!_users.empty())
        close();
}

TimerUser &Resident::any()
{
    if (_users.empty())
        open();
    return *_users.at(std::size_t(_random.bounded(int(_users.size()))));
}

// Timers

void Resident::typeDuration()
{
    TimerUser &user = any();
    if (user.timer.isRunning())
        return;
    if (inOneOf(3))
        user.typeDuration(0, 0, _random.bounded(20));
    else if (inOneOf(20))
        user.typeDuration(-_random.bounded(2), _random.bounded(100), -_random.bounded(100));
    else
        user.typeDuration(inOneOf(4) ? _random.bounded(30) : 0, upTo(90), _random.bounded(60));
}

void Resident::pressKeys()
{
    static constexpr std::array keys{'0', '1', '2', '3', '5', ':', 'h', 'm', 's', '.', '-', 'R'};
    static constexpr std::array fields{"_hoursField", "_minutesField", "_secondsField"};
    const TimerUser &user = any();
    QWidget &window = *user.timer.window();
    user.part<QLineEdit>(fields.at(std::size_t(_random.bounded(3)))).setFocus();
    for (int count = upTo(6); count > 0 && window.focusWidget(); --count)
        QTest::keyClick(window.focusWidget(), keys.at(std::size_t(_random.bounded(12))));
    if (inOneOf(4) && window.focusWidget())
        QTest::keyClick(window.focusWidget(), inOneOf(2) ? Qt::Key_Up : Qt::Key_PageDown);
}

void Resident::typeName()
{
    static const QStringList names{QString(), QStringLiteral("Tea"), QStringLiteral("A & B <i>"),
                                   QString(40, QLatin1Char('x'))};
    if (TimerUser &user = any(); !user.isFullScreen())
        user.typeName(names.at(_random.bounded(int(names.size()))));
}

void Resident::start()
{
    TimerUser &user = any();
    // Starts with what the fields hold, even if that is zero.
    if (!user.timer.isRunning() && user.goButton().isEnabled())
        user.pressGo();
}

void Resident::stop()
{
    TimerUser &user = any();
    if (user.timer.isRunning())
        user.pressGo();
}

void Resident::reset()
{
    any().timer.resetWuffer();
}

void Resident::stopwatch()
{
    TimerUser &user = any();
    user.timer.stopwatch();
    if (inOneOf(2) && !user.timer.isRunning())
        user.pressGo();
}

void Resident::countDownToADate()
{
    TimerUser &user = any();
    if (user.timer.isRunning())
        return;
    user.timer.targetTime();
    auto &sheet = *user.timer.window()->findChild<TargetTimeSheet *>();
    if (inOneOf(4)) {
        sheet.reject();
        return;
    }
    // Sometimes the user waits so long that the date picked has passed.
    sheet.setDateValue(clock.calendarNow().addSecs(upTo(200'000)));
    if (inOneOf(4))
        sleep(upTo(300'000));
    // The sheet is gone if another timer has started this one meanwhile.
    if (sheet.isVisible())
        sheet.accept();
}

void Resident::chooseFinish()
{
    static const QStringList actions{QStringLiteral("Do Nothing"),
                                     QStringLiteral("Loop this Wuffer"),
                                     QStringLiteral("Start a Preset")};
    TimerUser &user = any();
    if (!user.part<QComboBox>("_finishedCombo").isEnabled())
        return;
    user.chooseFinish(actions.at(_random.bounded(int(actions.size()))));
    if (user.finish() == actions.constLast())
        user.pick(_random.bounded(10));
}

void Resident::link()
{
    if (_users.size() < 2)
        open();
    any().timer.setTargetWuffer(&any().timer);
}

void Resident::unlink()
{
    any().timer.setTargetWuffer(nullptr);
}

void Resident::keepWuffing()
{
    if (TimerUser &user = any(); user.part<QCheckBox>("_keepWuffingBox").isEnabled())
        user.timer.toggleKeepWuffing();
}

void Resident::wantFullScreen()
{
    any().tick("_fullScreenBox", inOneOf(2));
}

void Resident::endFullScreen()
{
    WufferApplication::instance().cancelFullScreenMode();
}

void Resident::startAll()
{
    _controller.startAllWuffers();
}

// Notifications

void Resident::answerNotification()
{
    if (notifications.standing.empty())
        return;
    const auto place = std::size_t(_random.bounded(int(notifications.standing.size())));
    const DesktopNotification answered = notifications.standing.at(place).notification;
    if (answered.stop && inOneOf(2))
        answered.stop();
    else
        answered.show();
}

void Resident::closeNotification()
{
    if (notifications.standing.empty())
        return;
    using End = DesktopNotification::End;
    const auto place = std::size_t(_random.bounded(int(notifications.standing.size())));
    notifications.close(place, inOneOf(3) ? End::Dismissed : End::Expired);
}

// Preferences

void Resident::mute()
{
    _controller.toggleMute();
}

void Resident::changePreference()
{
    constexpr std::array keys{"energySaverMode", "suppressCountdown", "growlDisabled",
                              "noStatusBar", "autoStartPresets"};
    const QString key =
        QString::fromLatin1(keys.at(std::size_t(_random.bounded(int(keys.size())))));
    defaults.setObject(int(!defaults.boolForKey(key)), key);
    NotificationCenter::defaultCenter().postNotificationName(
        QStringLiteral("prefsChangedNotification"));
    _controller.refreshStatusItem();
}

// Time

void Resident::wait()
{
    passQuietly(inOneOf(3) ? upTo(2 * int(kHour)) : upTo(300));
}

void Resident::watch()
{
    clock.advance(upTo(15));
    endSounds();
}

void Resident::shutTheLid()
{
    sleep(inOneOf(3) ? upTo(40'000) : upTo(900));
    if (inOneOf(2))
        endSounds();
}

double Resident::nextEnd()
{
    double next = std::numeric_limits<double>::infinity();
    for (const Wuffer *timer : WufferApplication::getWuffers()) {
        const double remaining =
            timer->isRunning() ? timer->targetDate()->timeIntervalSinceNow() : -1;
        if (remaining > 0)
            next = std::min(next, remaining);
    }
    return next;
}

void Resident::passQuietly(double seconds)
{
    // Every tick fires around the ends. In between, the clock jumps.
    constexpr double around = 0.6;
    int ends = 0;
    while (seconds > 0 && ends < kMostEnds) {
        const double quiet = std::min(seconds, nextEnd() - around);
        if (quiet > 0)
            sleep(quiet);
        seconds -= std::max(quiet, 0.0);
        if (seconds <= 0)
            return;
        clock.advance(2 * around);
        endSounds();
        seconds -= 2 * around;
        ++ends;
    }
    if (seconds > 0)
        sleep(seconds);
}

void Resident::sleep(double seconds)
{
    clock.sleep(seconds);
    clock.advance(kMoment);
    _witness->look();
}

void Resident::endSounds()
{
    sounds.endAll();
    // Long enough for the timers to notice that and to start what follows.
    clock.advance(0.21);
}
