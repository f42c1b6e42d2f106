#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "base/Date.h"
#include "platform/ProcessTuning.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>

#include <ctime>
#include <iostream>
#include <sstream>
#include <string>

// Wuffer itself, at the command of whoever measures it from outside. Each line of the standard
// input is one order, carried out in the running program and then answered by a line of results:
//
//     open N      opens N timer windows            start       starts all timers
//     close       closes all windows               minimise    minimises them
//     start N S   starts N new timers of S seconds; the seconds until the first of them ends
//     cycle N     opens and closes N windows in turn
//     change N    shows N different times on the newest timer; CPU microseconds for each
//     ring N S    starts N timers of S seconds at moments spread over a second, and waits for
//                 their alarms: how late each one is, in milliseconds

namespace
{
/// Long enough for every measurement, in seconds.
constexpr double kLongRun = 5000;

double cpuMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) * 1e-3;
}

/// Lets the program run for so long.
void pass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

class Stage final
{
public:
    explicit Stage(WufferController &controller) : _controller(controller) {}

    void carryOut(std::istringstream &order);

private:
    void open(int count);
    static void close();
    void start(int count, int seconds);
    static void minimise();
    void cycle(int count);
    static void change(int count);
    void ring(int count, int seconds);

    WufferController &_controller;
};

void Stage::carryOut(std::istringstream &order)
{
    std::string verb;
    int count = 0;
    int seconds = 0;
    order >> verb >> count >> seconds;
    if (verb == "open")
        open(count);
    else if (verb == "close")
        close();
    else if (verb == "start")
        start(count, seconds);
    else if (verb == "minimise")
        minimise();
    else if (verb == "cycle")
        cycle(count);
    else if (verb == "change")
        change(count);
    else if (verb == "ring")
        ring(count, seconds);
    else
        qFatal("unknown order %s", verb.c_str());
    std::cout << std::endl;
}

void Stage::open(int count)
{
    for (int i = 0; i < count; ++i) {
        _controller.newWuffer();
        pass(20);
    }
}

void Stage::close()
{
    for (const Wuffer *timer : WufferApplication::getWuffers())
        timer->window()->close();
    pass(100);
}

void Stage::start(int count, int seconds)
{
    if (count > 0) {
        close();
        open(count);
    }
    const Date begin = Date::now();
    for (Wuffer *timer : WufferApplication::getWuffers()) {
        timer->setFieldsWithTimeLeft(count > 0 ? seconds : kLongRun);
        timer->goPressed();
    }
    if (count > 0)
        std::cout << seconds + begin.timeIntervalSinceNow();
}

void Stage::minimise()
{
    for (const Wuffer *timer : WufferApplication::getWuffers())
        timer->window()->showMinimized();
}

void Stage::cycle(int count)
{
    for (int i = 0; i < count; ++i) {
        open(1);
        WufferApplication::getWuffers().back()->window()->close();
    }
    pass(100);
}

void Stage::change(int count)
{
    Wuffer &timer = *WufferApplication::getWuffers().back();
    const double start = cpuMicroseconds();
    for (int i = 0; i < count; ++i) {
        const double elapsed = i * 0.037;
        timer.refreshDisplay(kLongRun - elapsed, elapsed);
        QCoreApplication::processEvents();
    }
    std::cout << (cpuMicroseconds() - start) / count;
}

void Stage::ring(int count, int seconds)
{
    close();
    open(count);
    int ended = 0;
    QEventLoop loop;
    for (Wuffer *timer : WufferApplication::getWuffers()) {
        QObject::connect(timer, &Wuffer::stateChanged, &loop, [&, timer] {
            const double late = -timer->targetDate()->timeIntervalSinceNow();
            if (late < 0)
                return;
            std::cout << late * 1000 << ' ';
            QObject::disconnect(timer, &Wuffer::stateChanged, &loop, nullptr);
            if (++ended == count)
                loop.quit();
        });
        timer->setFieldsWithTimeLeft(seconds);
        timer->goPressed();
        pass(1000 / count);
    }
    loop.exec();
    close();
}
} // namespace

int main(int argc, char *argv[])
{
    tuneProcess();
    const WufferApplication application(argc, argv);
    WufferApplication::setQuitOnLastWindowClosed(false);
    const SystemServices services;
    WufferController controller;
    controller.awakeFromNib();

    Stage stage(controller);
    QSocketNotifier orders(0, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, qApp, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QCoreApplication::quit();
            return;
        }
        orders.setEnabled(false);
        std::istringstream order(line);
        stage.carryOut(order);
        orders.setEnabled(true);
    });
    return WufferApplication::exec();
}
