#pragma once

#include "app/WufferController.h"
#include "support/RunWitness.h"
#include "support/TestServices.h"
#include "support/TimerUser.h"

#include <QRandomGenerator>

/// A user who keeps the program running all the time and does random things with it. The seed alone
/// decides which.
class Resident final : public TestServices
{
public:
    explicit Resident(quint32 seed);

    /// Does one random thing and returns its name.
    const char *act();
    /// Suspends the computer for a night.
    void night();

    [[nodiscard]] const std::vector<std::unique_ptr<TimerUser>> &users() const { return _users; }
    /// How many of the timers ever opened have not been destroyed.
    [[nodiscard]] int livingTimers() const;
    [[nodiscard]] int everOpened() const { return int(_everOpened.size()); }

    RunWitness &witness() { return *_witness; }

private:
    struct Habit;
    static const std::vector<Habit> &habits();

    void open();
    void openPreset();
    void savePreset();
    void close();
    void closeAll();
    void typeDuration();
    void pressKeys();
    void typeName();
    void start();
    void stop();
    void reset();
    void stopwatch();
    void countDownToADate();
    void chooseFinish();
    void link();
    void unlink();
    void keepWuffing();
    void wantFullScreen();
    void endFullScreen();
    void mute();
    void changePreference();
    void startAll();
    void answerNotification();
    void closeNotification();
    void wait();
    void watch();
    void shutTheLid();

    /// Adds a TimerUser for the newest timer, which has just been opened.
    void adopt();
    void closeAt(int place);
    /// A random timer; opens one if there is none.
    TimerUser &any();
    int upTo(int highest) { return _random.bounded(highest) + 1; }
    bool inOneOf(int cases) { return _random.bounded(cases) == 0; }
    void passQuietly(double seconds);
    /// Seconds until the next countdown ends, or infinity.
    [[nodiscard]] static double nextEnd();
    void sleep(double seconds);
    void endSounds();

    QRandomGenerator _random;
    WufferController _controller;
    std::unique_ptr<RunWitness> _witness;
    std::vector<std::unique_ptr<TimerUser>> _users;
    std::vector<QPointer<Wuffer>> _everOpened;
};
