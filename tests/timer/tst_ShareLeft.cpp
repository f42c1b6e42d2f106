#include "support/Paintings.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QWindow>

#include <cmath>

namespace
{
constexpr double kTick = 0.037;

/// A timer in a visible window.
class ShownTimer : public TimerFixture
{
public:
    ShownTimer()
    {
        timer.window()->show();
        QCoreApplication::processEvents();
    }

    /// Lets time pass tick by tick, and paints what each tick has changed.
    void watch(double seconds)
    {
        for (double passed = 0; passed < seconds; passed += kTick) {
            pass(kTick);
            QCoreApplication::processEvents();
        }
    }

    void setExposed(bool exposed)
    {
        timer.window()->windowHandle()->setVisible(exposed);
        QCoreApplication::processEvents();
    }
};

/// Whether the bar shows this share, to a tick of a countdown of at least a minute.
bool shows(const TimerUser &user, double share)
{
    return std::abs(user.box().shareLeft() - share) < 0.001;
}
} // namespace

/// What the bar of the display shows in each state of a timer, and what it costs.
class tst_ShareLeft final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anIdleTimerHasNoBar();
    void aCountdownShowsTheShareOfTheRunThatWasStarted();
    void theRestStaysAfterAStop();
    void aStartFromTheRestIsANewRun();
    void theBarIsFullWhileTheTimerRings();
    void aStopwatchHasNoBar();
    void enteringOrLeavingTheStopwatchEndsTheBar();
    void aPresetEndsTheBar();
    void theBarHasTheColourOfTheText();
    void theBarIsPaintedOnlyWhenItMovesByAPixel();
    void anUnseenBarIsNotPainted();
};

void tst_ShareLeft::anIdleTimerHasNoBar()
{
    TimerFixture t;
    QCOMPARE(t.box().shareLeft(), 0.0);
    t.startCountdown(100);
    t.pass(50);
    t.timer.resetWuffer();
    QCOMPARE(t.box().shareLeft(), 0.0);
}

void tst_ShareLeft::aCountdownShowsTheShareOfTheRunThatWasStarted()
{
    TimerFixture t;
    t.startCountdown(100);
    QCOMPARE(t.box().shareLeft(), 1.0);
    t.pass(25);
    QVERIFY(shows(t, 0.75));
    t.pass(74);
    QVERIFY(shows(t, 0.01));
}

void tst_ShareLeft::theRestStaysAfterAStop()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(40);
    t.pressGo();
    t.pass(1000);
    QVERIFY(shows(t, 0.6));
}

void tst_ShareLeft::aStartFromTheRestIsANewRun()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(40);
    t.pressGo();
    t.pressGo();
    QCOMPARE(t.box().shareLeft(), 1.0);
    t.pass(30);
    QVERIFY(shows(t, 0.5));
}

void tst_ShareLeft::theBarIsFullWhileTheTimerRings()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.startCountdown(20);
    t.pass(21);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.box().shareLeft(), 1.0);
    t.pressGo();
    QCOMPARE(t.box().shareLeft(), 0.0);
}

void tst_ShareLeft::aStopwatchHasNoBar()
{
    TimerFixture t;
    t.timer.stopwatch();
    t.pressGo();
    t.pass(10);
    QCOMPARE(t.box().shareLeft(), 0.0);
    t.pressGo();
    QCOMPARE(t.box().shareLeft(), 0.0);
}

void tst_ShareLeft::enteringOrLeavingTheStopwatchEndsTheBar()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(40);
    t.pressGo();
    t.timer.stopwatch();
    QCOMPARE(t.box().shareLeft(), 0.0);
    t.timer.stopwatch();
    QCOMPARE(t.box().shareLeft(), 0.0);
}

void tst_ShareLeft::aPresetEndsTheBar()
{
    TimerFixture t;
    t.startCountdown(100);
    t.pass(40);
    t.pressGo();
    t.timer.setPreset(3);
    QCOMPARE(t.box().shareLeft(), 0.0);
}

void tst_ShareLeft::theBarHasTheColourOfTheText()
{
    TimerFixture t;
    t.startCountdown(60);
    QCOMPARE(t.box().barColor(), t.color());
    t.pass(55);
    QCOMPARE(t.box().barColor(), QColor::fromRgbF(0.9F, 0.0F, 0.0F));
    QCOMPARE(t.box().barColor(), t.color());
}

void tst_ShareLeft::theBarIsPaintedOnlyWhenItMovesByAPixel()
{
    ShownTimer t;
    t.startCountdown(600);
    QCoreApplication::processEvents();
    const Paintings paintings(t.box());

    t.watch(60);

    const int tenth = t.label("_resultLabel").width() / 10;
    QVERIFY(tenth > 20);
    const qsizetype count = paintings.rects.size();
    QVERIFY2(std::abs(count - tenth) <= 1, qPrintable(QString::number(count)));
    for (const QRect &each : paintings.rects)
        QVERIFY(each.top() > t.label("_elapsedLabel").geometry().bottom());
}

void tst_ShareLeft::anUnseenBarIsNotPainted()
{
    ShownTimer t;
    t.startCountdown(600);
    t.setExposed(false);
    t.watch(1);
    const Paintings paintings(t.box());

    t.watch(60);

    QCOMPARE(paintings.rects.size(), 0);
    t.setExposed(true);
    t.watch(1);
    QVERIFY(shows(t, 538.0 / 600));
}

WUFFER_TEST(tst_ShareLeft)
#include "tst_ShareLeft.moc"
