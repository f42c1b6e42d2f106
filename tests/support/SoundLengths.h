#pragma once

#include "base/Sound.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QTest>

#include <limits>
#include <numeric>

// Measures how long sounds last, for tests that really play them.

/// How late the tests may notice the end of a sound, in seconds.
inline constexpr double kSlack = 0.2;

/// For how many seconds each thread of this process was ready to run but had to wait for a
/// processor. On a busy computer a sound lasts longer by that much, through no fault of the
/// program.
inline QHash<QString, double> secondsWaited()
{
    QHash<QString, double> waited;
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(threads.filePath(thread + QStringLiteral("/schedstat")));
        if (file.open(QIODevice::ReadOnly))
            waited[thread] = file.readAll().split(' ').value(1).toDouble() * 1e-9;
    }
    return waited;
}

/// How many seconds all threads together have waited since `before` was measured.
inline double secondsWaitedSince(const QHash<QString, double> &before)
{
    const QHash<QString, double> now = secondsWaited();
    return std::accumulate(now.keyBegin(), now.keyEnd(), 0.0,
                           [&](double sum, const QString &thread) {
                               return sum + now.value(thread) - before.value(thread);
                           });
}

inline QElapsedTimer startedTimer()
{
    QElapsedTimer timer;
    timer.start();
    return timer;
}

/// Waits until the file of the sound has answered; false if it does not.
[[nodiscard]] inline bool hasAnswered(const Sound &sound)
{
    return QTest::qWaitFor([&] { return sound.hasAnswered(); }, 5000);
}

/// Waits for the end of the sound. Returns the seconds since the timer was started; infinity if the
/// sound does not end.
inline double secondsUntilSilent(const Sound &sound, QElapsedTimer timer = startedTimer())
{
    return QTest::qWaitFor([&] { return !sound.isPlaying(); }, 5000)
               ? static_cast<double>(timer.nsecsElapsed()) * 1e-9
               : std::numeric_limits<double>::infinity();
}

/// Calls `play`, and verifies that the number of seconds it returns is about the expected one.
#define VERIFY_LASTS(play, expected)                                                               \
    do {                                                                                           \
        const QHash<QString, double> before = secondsWaited();                                     \
        const double seconds = (play)();                                                           \
        const double latest = (expected) + kSlack + secondsWaitedSince(before);                    \
        QVERIFY2(seconds > (expected)-0.01 && seconds < latest,                                    \
                 qPrintable(QString::number(seconds)));                                            \
    } while (false)
