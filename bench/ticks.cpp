#include "app/StatusPresenter.h"
#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/ProcessTuning.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QWindow>

#include <cmath>
#include <functional>
#include <valgrind/callgrind.h>

// The ticks of timers on a clock that is moved by hand, without a screen. Under callgrind each
// scene leaves a count of its instructions, marked by its name and by how many ticks or calls it
// is for; how fast the machine is or what else it does has no part in that.

namespace
{
constexpr double kTick = 0.037;
/// Seconds; long enough for all scenes.
constexpr double kLongRun = 5000;

/// Stands still until it is moved.
class HandClock final : public Clock
{
public:
    [[nodiscard]] double now() const override { return inSteps(_now); }
    [[nodiscard]] QDateTime calendarNow() const override { return {}; }

    /// Lets so many ticks pass, with what the event loop does after each that wakes the program.
    void pass(int ticks)
    {
        const double end = _now + ticks * kTick;
        while (nextDue() <= end) {
            _now = std::max(_now, nextDue() + 0x1p-20);
            fireDueTimers();
            QCoreApplication::processEvents();
        }
        _now = end;
    }

private:
    void nextDueChanged() override {}

    double _now = 1'800'000'000.375;
};

/// The program with the timers of one scene, all of them running and shown.
class Scene final
{
public:
    Scene(HandClock &clock, int timers) : _clock(clock)
    {
        _controller.awakeFromNib();
        for (int i = 1; i < timers; ++i)
            _controller.newWuffer();
        QCoreApplication::processEvents();
        for (Wuffer *timer : WufferApplication::getWuffers()) {
            timer->setFieldsWithTimeLeft(kLongRun);
            timer->goPressed();
        }
    }
    ~Scene()
    {
        for (const Wuffer *timer : WufferApplication::getWuffers())
            timer->window()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Q_DISABLE_COPY_MOVE(Scene)

    /// Hides the windows as a window manager does: their widgets are not told.
    static void hide()
    {
        for (const Wuffer *timer : WufferApplication::getWuffers())
            timer->window()->windowHandle()->setVisible(false);
        QCoreApplication::processEvents();
    }

    void countTicks(const char *name) const
    {
        constexpr int ticks = 270;
        count(name, ticks, [this] { _clock.pass(ticks); });
    }

    static void count(const char *name, int times, const std::function<void()> &what)
    {
        // Once for all that is only done the first time.
        what();
        const QByteArray mark = QByteArray(name) + '/' + QByteArray::number(times);
        CALLGRIND_START_INSTRUMENTATION;
        CALLGRIND_ZERO_STATS;
        what();
        CALLGRIND_DUMP_STATS_AT(mark.constData());
        CALLGRIND_STOP_INSTRUMENTATION;
    }

private:
    HandClock &_clock;
    WufferController _controller;
};

void countUnchanged(HandClock &clock)
{
    const Scene scene(clock, 1);
    Wuffer &timer = *WufferApplication::getWuffers().front();
    constexpr int times = 100;
    Scene::count("display that stays the same", times, [&] {
        for (int i = 0; i < times; ++i) {
            timer.refreshDisplay(kLongRun, 1);
            QCoreApplication::processEvents();
        }
    });
}

void countStatus(HandClock &clock, const char *name, int timers)
{
    const Scene scene(clock, timers);
    StatusPresenter presenter(Service<StatusItem>::current());
    constexpr int times = 100;
    Scene::count(name, times, [&] {
        for (int i = 0; i < times; ++i)
            presenter.refreshStatusItem();
    });
}

void countEnergySaver(HandClock &clock)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    const QString key = QStringLiteral("energySaverMode");
    defaults.setObject(1, key);
    Scene(clock, 1).countTicks("tick in the energy saver");
    defaults.removeObjectForKey(key);
}
} // namespace

int main(int argc, char *argv[])
{
    tuneProcess();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const WufferApplication application(argc, argv);
    WufferApplication::setQuitOnLastWindowClosed(false);
    const SystemServices services;
    HandClock clock;
    const Service<Clock> clockService(clock);

    Scene(clock, 1).countTicks("tick, visible");
    countUnchanged(clock);
    {
        const Scene scene(clock, 1);
        Scene::hide();
        scene.countTicks("tick, hidden");
    }
    countEnergySaver(clock);
    countStatus(clock, "status refresh, 1 timer", 1);
    countStatus(clock, "status refresh, 100 timers", 100);
}
