#include "app/StatusDescription.h"
#include "base/Service.h"
#include "rules/RunningTimers.h"
#include "support/TestClock.h"
#include "support/TestMain.h"

namespace
{
/// A timer as the rules see it, which counts how often they ask it.
struct SomeTimer
{
    QString name;
    /// Seconds from the beginning of the test; no value for a stopwatch.
    std::optional<double> end;
    bool running = true;
    QColor color = Qt::black;
    mutable int questions = 0;

    [[nodiscard]] bool isRunning() const
    {
        ++questions;
        return running;
    }
    [[nodiscard]] std::optional<Date> targetDate() const
    {
        ++questions;
        return end ? Date::now().addingTimeInterval(*end) : Date::distantFuture();
    }
    [[nodiscard]] QString title() const { return name; }
    [[nodiscard]] QString statusString() const { return end ? QStringLiteral("1m 5s") : name; }
    [[nodiscard]] QColor currentTextColor() const { return color; }
};

using Timers = std::vector<SomeTimer>;

std::vector<const SomeTimer *> pointersTo(const Timers &timers)
{
    std::vector<const SomeTimer *> pointers;
    for (const SomeTimer &timer : timers)
        pointers.push_back(&timer);
    return pointers;
}

/// The names in the order of ending.
QString ordered(const Timers &timers)
{
    QStringList names;
    for (const SomeTimer *timer :
         RunningTimers::inOrderOfEnding(RunningTimers::among(pointersTo(timers))))
        names << timer->name;
    return names.join(QLatin1Char(' '));
}

QString soonest(const Timers &timers)
{
    const SomeTimer *first = RunningTimers::soonestEnding(RunningTimers::among(pointersTo(timers)));
    return first ? first->name : QString();
}

SomeTimer ending(const char *name, double end)
{
    return {QString::fromLatin1(name), end};
}

SomeTimer idle(const char *name)
{
    return {QString::fromLatin1(name), 1, false};
}

SomeTimer stopwatch(const char *name)
{
    return {QString::fromLatin1(name), std::nullopt};
}

/// The order by its definition: each timer is inserted before the first that ends no earlier.
std::vector<const SomeTimer *> inserted(const Timers &timers)
{
    std::vector<const SomeTimer *> ordered;
    for (const SomeTimer &timer : timers) {
        auto place = ordered.begin();
        while (place != ordered.end() && *timer.targetDate() > *(*place)->targetDate())
            ++place;
        ordered.insert(place, &timer);
    }
    return ordered;
}

StatusDescription<const SomeTimer> describe(const Timers &timers)
{
    return StatusDescription<const SomeTimer>::of(RunningTimers::among(pointersTo(timers)));
}
} // namespace

/// Which timers the status item shows, in which order, and with which texts.
class tst_RunningTimers final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void timersStandInTheOrderInWhichTheyEnd_data();
    void timersStandInTheOrderInWhichTheyEnd();
    void twoHundredTimersStandAsIfEachWereInsertedInTurn();
    void eachOfManyTimersIsAskedNoMoreThanEachOfFew();
    void theTitleIsTheStatusOfTheSoonestAndABlankInItsColor();
    void withoutARunningTimerThereIsNothingToSee();
    void thereIsAMenuFromTwoRunningTimersOn_data();
    void thereIsAMenuFromTwoRunningTimersOn();
    void aLineIsTheNameAndTheStatus();

private:
    TestClock _clock;
    Service<Clock> _service{_clock};
};

void tst_RunningTimers::timersStandInTheOrderInWhichTheyEnd_data()
{
    QTest::addColumn<Timers>("timers");
    QTest::addColumn<QString>("order");
    const auto row = [](const char *name, const Timers &timers, const char *order) {
        QTest::newRow(name) << timers << QString::fromLatin1(order);
    };
    row("none", {}, "");
    row("none that runs", {idle("a"), idle("b")}, "");
    row("one", {ending("a", 5)}, "a");
    row("in their order", {ending("a", 5), ending("b", 6)}, "a b");
    row("against their order", {ending("a", 6), ending("b", 5)}, "b a");
    row("between two", {ending("a", 1), ending("b", 3), ending("c", 2)}, "a c b");
    row("idle ones are left out", {ending("a", 6), idle("b"), ending("c", 5)}, "c a");
    row("two at the same moment", {ending("a", 5), ending("b", 5)}, "b a");
    row("three at the same moment", {ending("a", 5), ending("b", 5), ending("c", 5)}, "c b a");
    row("some at the same moment",
        {ending("a", 5), ending("b", 3), ending("c", 5), ending("d", 3), ending("e", 9)},
        "d b c a e");
    row("a moment apart", {ending("a", 5.0000019), ending("b", 5)}, "b a");
    row("in its alarm", {ending("a", 5), ending("b", -2)}, "b a");
    row("a stopwatch alone", {stopwatch("a")}, "a");
    row("a stopwatch after a countdown", {stopwatch("a"), ending("b", 1e9)}, "b a");
    row("several stopwatches", {stopwatch("a"), ending("b", 5), stopwatch("c")}, "b c a");
}

void tst_RunningTimers::timersStandInTheOrderInWhichTheyEnd()
{
    QFETCH(const Timers, timers);
    QTEST(ordered(timers), "order");
    QCOMPARE(soonest(timers), ordered(timers).section(QLatin1Char(' '), 0, 0));
}

void tst_RunningTimers::twoHundredTimersStandAsIfEachWereInsertedInTurn()
{
    Timers timers;
    for (int i = 0; i < 200; ++i)
        timers.push_back(i % 10 == 0 ? stopwatch("watch") : ending("timer", i * 37 % 50));
    const auto running = RunningTimers::among(pointersTo(timers));
    const std::vector<const SomeTimer *> order = RunningTimers::inOrderOfEnding(running);
    QCOMPARE(order.size(), timers.size());
    QVERIFY(order == inserted(timers));
    QCOMPARE(RunningTimers::soonestEnding(running), order.front());
}

void tst_RunningTimers::eachOfManyTimersIsAskedNoMoreThanEachOfFew()
{
    const auto questionsToEach = [](int count) {
        Timers timers;
        for (int i = 0; i < count; ++i)
            timers.push_back(ending("timer", -i));
        static_cast<void>(ordered(timers));
        static_cast<void>(describe(timers));
        int questions = 0;
        for (const SomeTimer &timer : timers)
            questions += timer.questions;
        return double(questions) / count;
    };
    QCOMPARE(questionsToEach(2000), questionsToEach(2));
}

void tst_RunningTimers::theTitleIsTheStatusOfTheSoonestAndABlankInItsColor()
{
    Timers timers{stopwatch("a"), ending("b", 5)};
    timers[1].color = QColor(230, 0, 0);
    const auto description = describe(timers);
    QCOMPARE(description.target, &timers[1]);
    QCOMPARE(description.title.text, QStringLiteral("1m 5s "));
    QCOMPARE(description.title.color, QColor(230, 0, 0));
    QCOMPARE(description.title.fontSize, 15.0);
}

void tst_RunningTimers::withoutARunningTimerThereIsNothingToSee()
{
    const auto description = describe({idle("a")});
    QVERIFY(!description.target);
    QCOMPARE(description.title.text, QString());
    QVERIFY(!description.hasMenu);
}

void tst_RunningTimers::thereIsAMenuFromTwoRunningTimersOn_data()
{
    QTest::addColumn<Timers>("timers");
    QTest::addColumn<bool>("hasMenu");
    QTest::newRow("none") << Timers() << false;
    QTest::newRow("one") << Timers{ending("a", 1), idle("b")} << false;
    QTest::newRow("two") << Timers{ending("a", 1), idle("b"), stopwatch("c")} << true;
    QTest::newRow("two hundred") << Timers(200, ending("a", 1)) << true;
}

void tst_RunningTimers::thereIsAMenuFromTwoRunningTimersOn()
{
    QFETCH(const Timers, timers);
    QTEST(describe(timers).hasMenu, "hasMenu");
}

void tst_RunningTimers::aLineIsTheNameAndTheStatus()
{
    const auto line = [](const char *name) {
        return StatusDescription<const SomeTimer>::line(ending(name, 1));
    };
    QCOMPARE(line("Tea"), QStringLiteral("Tea: 1m 5s"));
    QCOMPARE(line("100 %1 %@ & _"), QStringLiteral("100 %1 %@ & _: 1m 5s"));
}

WUFFER_TEST(tst_RunningTimers)
#include "tst_RunningTimers.moc"
