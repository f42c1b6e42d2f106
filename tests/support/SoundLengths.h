#pragma once

#include "base/Sound.h"

#include <QElapsedTimer>
#include <QTest>

#include <limits>

// How long sounds last, for tests that really play them.

/// How late the end of a sound may be noticed here, in seconds.
inline constexpr double kSlack = 0.2;
/// How often a measurement is made: a busy computer notices an end late now and then, but what the
/// sounds themselves do late, they do each time.
inline constexpr int kAttempts = 3;

inline QElapsedTimer startedTimer()
{
    QElapsedTimer timer;
    timer.start();
    return timer;
}

/// Waits for the end of the sound. Gives the seconds since the timer was started; infinity if the
/// sound does not end.
inline double secondsUntilSilent(const Sound &sound, QElapsedTimer timer = startedTimer())
{
    return QTest::qWaitFor([&] { return !sound.isPlaying(); }, 5000)
               ? static_cast<double>(timer.nsecsElapsed()) * 1e-9
               : std::numeric_limits<double>::infinity();
}

/// Plays, and verifies that it takes about so many seconds.
#define VERIFY_LASTS(play, expected)                                                               \
    do {                                                                                           \
        double seconds = 0;                                                                        \
        for (int attempt = 0; attempt < kAttempts; ++attempt) {                                    \
            seconds = (play)();                                                                    \
            if (seconds < (expected) + kSlack)                                                     \
                break;                                                                             \
        }                                                                                          \
        QVERIFY2(seconds > (expected)-0.01 && seconds < (expected) + kSlack,                       \
                 qPrintable(QString::number(seconds)));                                            \
    } while (false)
