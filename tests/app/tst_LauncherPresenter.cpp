#include "app/LauncherPresenter.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
/// A timer, and a controller that shows all timers in the launcher's icon.
struct LauncherFixture : TimerFixture
{
    LauncherFixture()
    {
        defaults.setObject(QStringLiteral("Do Nothing"), QStringLiteral("launchBehavior"));
        controller.awakeFromNib();
    }

    void start(int seconds)
    {
        timer.setFieldsWithTimeLeft(seconds);
        timer.goPressed();
    }

    /// The percent shown last; -1 for no bar.
    [[nodiscard]] int percent() const { return launcherEntry.shown.back().percent.value_or(-1); }
    [[nodiscard]] bool isUrgent() const { return launcherEntry.shown.back().urgent; }

    WufferController controller;
};
} // namespace

/// What the program's icon in the panel or dock shows of the timers.
class tst_LauncherPresenter final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsShownThatIsNotRead()
    {
        LauncherFixture fixture;
        fixture.start(100);
        fixture.clock.advance(200);
        QVERIFY(fixture.launcherEntry.shown.empty());
    }

    void theBarFollowsTheCountdown()
    {
        LauncherFixture fixture;
        fixture.launcherEntry.read();
        QCOMPARE(fixture.percent(), -1);
        fixture.start(100);
        for (const int passed : {10, 35, 99}) {
            fixture.clock.advance(passed + 0.3 - fixture.timer.run().timesAt(Date::now()).elapsed);
            QCOMPARE(fixture.percent(), passed);
            QVERIFY(!fixture.isUrgent());
        }
    }

    void theAlarmIsUrgentUntilItIsStopped()
    {
        LauncherFixture fixture;
        fixture.launcherEntry.read();
        fixture.start(10);
        fixture.clock.advance(10.1);
        QVERIFY(fixture.isUrgent());
        QCOMPARE(fixture.percent(), -1);
        fixture.timer.goPressed();
        QVERIFY(!fixture.isUrgent());
        QCOMPARE(fixture.percent(), -1);
    }

    void theTimerThatEndsFirstCounts()
    {
        LauncherFixture fixture;
        fixture.launcherEntry.read();
        fixture.start(1000);
        fixture.clock.advance(500.3);
        QCOMPARE(fixture.percent(), 50);
        Wuffer &sooner = WufferApplication::instance().openWuffer();
        sooner.setFieldsWithTimeLeft(100);
        sooner.goPressed();
        fixture.clock.advance(20.3);
        QCOMPARE(fixture.percent(), 20);
    }

    void aStopwatchHasNoBar()
    {
        LauncherFixture fixture;
        fixture.launcherEntry.read();
        fixture.timer.stopwatch();
        fixture.timer.goPressed();
        fixture.clock.advance(10);
        QCOMPARE(fixture.percent(), -1);
        QVERIFY(!fixture.isUrgent());
    }

    void aReaderThatComesLaterSeesTheAlarm()
    {
        LauncherFixture fixture;
        fixture.start(10);
        fixture.clock.advance(10.1);
        fixture.launcherEntry.read();
        QVERIFY(fixture.isUrgent());
    }
};

WUFFER_TEST(tst_LauncherPresenter)
#include "tst_LauncherPresenter.moc"
