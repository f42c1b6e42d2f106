#include "app/WufferApplication.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QWindow>

#include <memory>

namespace
{
constexpr double kTick = 0.037;

/// A timer whose window is exposed or not. Like a window that is minimised or on another workspace,
/// an unexposed window keeps its widgets visible for Qt.
class ShownTimer : public TimerFixture
{
public:
    ShownTimer()
    {
        timer.window()->show();
        QCoreApplication::processEvents();
    }

    void setExposed(bool exposed)
    {
        timer.window()->windowHandle()->setVisible(exposed);
        QCoreApplication::processEvents();
    }

    [[nodiscard]] int wakeUpsIn(double seconds)
    {
        const int before = clock.wakeUps();
        pass(seconds);
        return clock.wakeUps() - before;
    }
};
} // namespace

/// What work a timer saves while its display cannot be seen, and what it still does.
class tst_RestingDisplay final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aHiddenTimerWorksEveryFifthTickOnly();
    void anEnergySavingTimerWakesTheProcessEveryFifthTickOnly();
    void theEndOfEnergySavingShowsAtTheNextTick();
    void theNoticesComeAsTheyDoForAVisibleTimer();
    void theStatusIsWhatTheDisplayWouldSay_data();
    void theStatusIsWhatTheDisplayWouldSay();
    void aDisplayThatComesIntoViewIsUpToDate();
    void aHiddenTimerBeepsAndRingsAsAVisibleOneDoes();
    void aHiddenStopwatchHasAStatus();
    void anEndThatWasSleptThroughRingsAtOnce();
};

void tst_RestingDisplay::aHiddenTimerWorksEveryFifthTickOnly()
{
    ShownTimer t;
    t.startCountdown(600);
    QCOMPARE(t.wakeUpsIn(100.5 * kTick), 100);

    t.setExposed(false);
    t.pass(5 * kTick);

    QCOMPARE(t.wakeUpsIn(100 * kTick), 20);
}

void tst_RestingDisplay::anEnergySavingTimerWakesTheProcessEveryFifthTickOnly()
{
    ShownTimer t;
    t.set("energySaverMode", 1);
    t.startCountdown(600);
    t.pass(5.5 * kTick);

    QCOMPARE(t.wakeUpsIn(100 * kTick), 20);
}

void tst_RestingDisplay::theEndOfEnergySavingShowsAtTheNextTick()
{
    ShownTimer t;
    t.set("energySaverMode", 1);
    t.startCountdown(600);
    t.pass(5.5 * kTick);
    QCOMPARE(t.milliseconds(), QString());

    t.set("energySaverMode", 0);

    t.pass(kTick);
    QVERIFY(!t.milliseconds().isEmpty());
    QCOMPARE(t.wakeUpsIn(100 * kTick), 100);
}

void tst_RestingDisplay::theNoticesComeAsTheyDoForAVisibleTimer()
{
    QList<QList<double>> moments(2);
    for (const bool hidden : {false, true}) {
        ShownTimer t;
        const double start = t.clock.now();
        NotificationCenter::defaultCenter().addObserver(
            *t.timer.window(), QStringLiteral("statusChanged"),
            [&](QObject *) { moments[hidden].append(t.clock.now() - start); });
        t.setExposed(!hidden);
        t.startCountdown(20);
        t.pass(25);
    }
    QVERIFY(moments[0].size() > 100);
    QCOMPARE(moments[1].size(), moments[0].size());
    for (qsizetype i = 0; i < moments[0].size(); ++i)
        QVERIFY(std::abs(moments[0][i] - moments[1][i]) < 1e-4);
}

void tst_RestingDisplay::theStatusIsWhatTheDisplayWouldSay_data()
{
    QTest::addColumn<bool>("savingEnergy");
    QTest::newRow("as usual") << false;
    QTest::newRow("saving energy") << true;
}

void tst_RestingDisplay::theStatusIsWhatTheDisplayWouldSay()
{
    QFETCH(const bool, savingEnergy);
    QList<QStringList> texts(2);
    for (const bool hidden : {false, true}) {
        ShownTimer t;
        t.set("energySaverMode", savingEnergy);
        NotificationCenter::defaultCenter().addObserver(
            *t.timer.window(), QStringLiteral("statusChanged"), [&](QObject *) {
                texts[hidden].append(t.timer.statusString() + t.timer.currentTextColor().name());
            });
        t.setExposed(!hidden);
        t.startCountdown(20);
        t.pass(25);
    }
    QCOMPARE(texts[1], texts[0]);
}

void tst_RestingDisplay::aDisplayThatComesIntoViewIsUpToDate()
{
    ShownTimer t;
    t.startCountdown(600);
    t.setExposed(false);
    // Between two of the ticks at which the timer works.
    t.pass(60 + 6 * kTick);
    const QString before = t.milliseconds();
    const Date now = Date::now();

    t.setExposed(true);

    QVERIFY(t.milliseconds() != before);
    const double left = t.timer.targetDate()->timeIntervalSinceDate(now);
    QCOMPARE(t.milliseconds().toInt(), static_cast<int>(std::fmod(left, 1.0) * 1000));
    QCOMPARE(t.wakeUpsIn(100 * kTick), 100);
}

void tst_RestingDisplay::aHiddenTimerBeepsAndRingsAsAVisibleOneDoes()
{
    QList<QStringList> diaries(2);
    for (const bool hidden : {false, true}) {
        ShownTimer t;
        const double start = t.clock.now();
        t.setExposed(!hidden);
        t.startCountdown(20);
        t.sounds.whenPlayed = [&] {
            diaries[hidden] << QString::number(t.clock.now() - start, 'f', 3);
        };
        t.pass(25);
        QCOMPARE(t.display(), QStringLiteral("Wuff!"));
        QCOMPARE(t.timer.statusString(), QStringLiteral("Wuff!"));
    }
    QVERIFY(diaries[0].size() > 10);
    QCOMPARE(diaries[1], diaries[0]);
}

void tst_RestingDisplay::aHiddenStopwatchHasAStatus()
{
    ShownTimer t;
    t.timer.stopwatch();
    t.setExposed(false);
    t.pressGo();

    t.pass(65.5);

    QCOMPARE(t.timer.statusString(), QStringLiteral("1m 5s"));
    QVERIFY(t.wakeUpsIn(100 * kTick) <= 21);
}

void tst_RestingDisplay::anEndThatWasSleptThroughRingsAtOnce()
{
    ShownTimer t;
    t.startCountdown(600);
    t.setExposed(false);
    t.pass(60);

    t.clock.sleep(1000);

    QCOMPARE(t.timer.statusString(), QStringLiteral("Wuff!"));
}

WUFFER_TEST(tst_RestingDisplay)
#include "tst_RestingDisplay.moc"
