#pragma once

#include "app/WufferController.h"
#include "support/RunWitness.h"
#include "support/TestServices.h"
#include "support/TimerUser.h"

#include <QRandomGenerator>

/// Somebody who has the program running all the time, and does with it whatever comes to mind.
/// What that is depends on the seed alone.
class Resident final : public TestServices
{
public:
    explicit Resident(quint32 seed);

    /// One arbitrary act; says what it was.
    const char *act();
    /// Goes to bed: the computer sleeps until the next morning.
    void night();

    [[nodiscard]] const std::vector<std::unique_ptr<TimerUser>> &users() const { return _users; }
    /// How many timers there are that nobody has destroyed, of all that were ever opened.
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
    void letNotificationGo();
    void wait();
    void watch();
    void shutTheLid();

    /// Takes to the newest timer, which somebody has just opened.
    void adopt();
    void closeAt(int place);
    /// A timer, opened if there is none.
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
