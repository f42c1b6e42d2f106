#include "support/GatheringFixture.h"
#include "support/TestMain.h"

namespace
{
using End = DesktopNotification::End;
} // namespace

class tst_GatheredNotifications final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void upToThreeAreShownOneByOne();
    void aFourthGathersThemAll();
    void thoseThatEndTogetherAreShownAtOnceAsOne();
    void manyAreNamedOnlyInPart();
    void eightAreAllNamed();
    void moreAreAddedOnceASecond();
    void withdrawnNotificationsAreNoLongerCounted();
    void theLastOneLeftIsItself();
    void itGoesWithTheLast();
    void aDestroyedSenderIsNoLongerCounted();
    void afterAllAreGoneTheNextAreShownOneByOne();
    void showIsForTheLatest();
    void stopIsForAll();
    void aStopMayDestroyTheOthers();
    void quickNotificationsOfOneTimerAreHeldBack();
    void aFourthWithinASecondIsHeldBackAtAnyTime();
    void aDismissedSummaryDoesNotComeBack();
    void aNotificationNotYetShownOutlivesTheDismissal();
    void aDismissedNotificationIsNotGathered();
    void nothingWakesTheProgramWhileNothingChanges();
};

void tst_GatheredNotifications::upToThreeAreShownOneByOne()
{
    GatheringFixture t;
    t.end(3);
    QCOMPARE(t.texts(), QStringList({QStringLiteral("T1: 5s"), QStringLiteral("T2: 5s"),
                                     QStringLiteral("T3: 5s")}));
    QCOMPARE(t.desktop.standing.front().sender, t.timers.front().get());
    QVERIFY(t.clock.isIdle());
    t.gathered.withdraw(*t.timers[1]);
    QCOMPARE(t.texts(), QStringList({QStringLiteral("T1: 5s"), QStringLiteral("T3: 5s")}));
}

void tst_GatheredNotifications::aFourthGathersThemAll()
{
    GatheringFixture t;
    for (int i = 0; i < 4; ++i) {
        t.end(1);
        t.clock.advance(60);
    }
    QCOMPARE(t.only().title, QStringLiteral("4 timers have ended"));
    QCOMPARE(t.only().text, QStringLiteral("T4\nT3\nT2\nT1"));
    QCOMPARE(t.only().name, QStringLiteral("wuff"));
}

void tst_GatheredNotifications::thoseThatEndTogetherAreShownAtOnceAsOne()
{
    GatheringFixture t;
    t.end(30);
    t.clock.advance(0.11);
    QCOMPARE(t.only().title, QStringLiteral("30 timers have ended"));
    QCOMPARE(t.desktop.shown.size(), 4U);
}

void tst_GatheredNotifications::manyAreNamedOnlyInPart()
{
    GatheringFixture t;
    t.end(20);
    t.clock.advance(1);
    const QStringList lines = t.only().text.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 9);
    QCOMPARE(lines.front(), QStringLiteral("T20"));
    QCOMPARE(lines[7], QStringLiteral("T13"));
    QCOMPARE(lines.back(), QStringLiteral("and 12 more"));
}

void tst_GatheredNotifications::eightAreAllNamed()
{
    GatheringFixture t;
    t.end(8);
    t.clock.advance(1);
    QCOMPARE(t.only().text, QStringLiteral("T8\nT7\nT6\nT5\nT4\nT3\nT2\nT1"));
}

void tst_GatheredNotifications::moreAreAddedOnceASecond()
{
    GatheringFixture t;
    for (int i = 0; i < 100; ++i) {
        t.end(1);
        t.clock.advance(0.1);
    }
    // Three single ones, and then one a second for ten seconds.
    QVERIFY(t.desktop.shown.size() <= 3U + 11U);
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("100 timers have ended"));
}

void tst_GatheredNotifications::withdrawnNotificationsAreNoLongerCounted()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    t.gathered.withdraw(*t.timers[4]);
    t.gathered.withdraw(*t.timers[0]);
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("3 timers have ended"));
    QCOMPARE(t.only().text, QStringLiteral("T4\nT3\nT2"));
    t.only().show();
    QCOMPARE(t.entries(), QStringLiteral("show T4"));
}

void tst_GatheredNotifications::theLastOneLeftIsItself()
{
    GatheringFixture t;
    t.end(4);
    t.clock.advance(5);
    for (const int ended : {0, 1, 3})
        t.gathered.withdraw(*t.timers[static_cast<std::size_t>(ended)]);
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("Wuff!"));
    QCOMPARE(t.only().text, QStringLiteral("T3: 5s"));
}

void tst_GatheredNotifications::itGoesWithTheLast()
{
    GatheringFixture t;
    t.end(4);
    t.clock.advance(5);
    for (const auto &timer : t.timers)
        t.gathered.withdraw(*timer);
    QCOMPARE(t.texts(), QStringList());
    t.clock.advance(5);
    QCOMPARE(t.texts(), QStringList());
    QVERIFY(t.clock.isIdle());
}

void tst_GatheredNotifications::aDestroyedSenderIsNoLongerCounted()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    t.timers.pop_back();
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("4 timers have ended"));
    t.timers.clear();
    QCOMPARE(t.texts(), QStringList());
}

void tst_GatheredNotifications::afterAllAreGoneTheNextAreShownOneByOne()
{
    GatheringFixture t;
    t.end(4);
    t.clock.advance(5);
    t.timers.clear();
    t.clock.advance(5);
    t.end(2);
    QCOMPARE(t.texts(), QStringList({QStringLiteral("T1: 5s"), QStringLiteral("T2: 5s")}));
}

void tst_GatheredNotifications::showIsForTheLatest()
{
    GatheringFixture t;
    t.end(5);
    t.end(*t.timers[1], QStringLiteral("again"));
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("5 timers have ended"));
    const std::function<void()> show = t.only().show;
    show();
    QCOMPARE(t.entries(), QStringLiteral("show again"));
}

void tst_GatheredNotifications::stopIsForAll()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(1);
    const std::function<void()> stop = t.only().stop;
    stop();
    QCOMPARE(t.entries(), QStringLiteral("stop T1 stop T2 stop T3 stop T4 stop T5"));
    QCOMPARE(t.texts(), QStringList());
    stop();
    QCOMPARE(t.diary.size(), 5);
}

void tst_GatheredNotifications::aStopMayDestroyTheOthers()
{
    GatheringFixture t;
    const QObject first;
    t.gathered.notify(first,
                      {.title = {}, .text = {}, .name = {}, .stop = [&] { t.timers.clear(); }});
    t.end(4);
    t.clock.advance(1);
    const std::function<void()> stop = t.only().stop;
    stop();
    QVERIFY(t.timers.empty());
    QCOMPARE(t.entries(), QString());
}

void tst_GatheredNotifications::quickNotificationsOfOneTimerAreHeldBack()
{
    GatheringFixture t;
    const QObject timer;
    for (int i = 0; i < 40; ++i) {
        t.end(timer, QStringLiteral("loop"));
        t.clock.advance(0.2);
        t.gathered.withdraw(timer);
        t.clock.advance(0.05);
    }
    // Three single ones, and then about one a second for ten seconds.
    QVERIFY(t.desktop.shown.size() > 6U);
    QVERIFY(t.desktop.shown.size() <= 3U + 11U);
    QCOMPARE(t.desktop.shown.back().notification.text, QStringLiteral("loop: 5s"));
    QCOMPARE(t.texts(), QStringList());
}

void tst_GatheredNotifications::aDismissedSummaryDoesNotComeBack()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    t.desktop.close(0, End::Dismissed);
    t.gathered.withdraw(*t.timers.back());
    t.clock.advance(5);
    QCOMPARE(t.texts(), QStringList());
    QVERIFY(t.clock.isIdle());
    t.end(1);
    QCOMPARE(t.texts(), QStringList({QStringLiteral("T6: 5s")}));
}

void tst_GatheredNotifications::aNotificationNotYetShownOutlivesTheDismissal()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(0.2);
    t.end(1);
    t.desktop.close(0, End::Dismissed);
    t.clock.advance(1);
    QCOMPARE(t.texts(), QStringList({QStringLiteral("T6: 5s")}));
}

void tst_GatheredNotifications::aDismissedNotificationIsNotGathered()
{
    GatheringFixture t;
    t.end(3);
    t.clock.advance(5);
    t.desktop.close(0, End::Dismissed);
    t.end(1);
    QCOMPARE(t.texts(), QStringList({QStringLiteral("T2: 5s"), QStringLiteral("T3: 5s"),
                                     QStringLiteral("T4: 5s")}));
}

void tst_GatheredNotifications::nothingWakesTheProgramWhileNothingChanges()
{
    GatheringFixture t;
    t.end(30);
    t.clock.advance(5);
    QVERIFY(t.clock.isIdle());
    QCOMPARE(t.desktop.standing.size(), 1U);
}

void tst_GatheredNotifications::aFourthWithinASecondIsHeldBackAtAnyTime()
{
    GatheringFixture t;
    const QObject timer;
    const auto endFourTimes = [&](double lastPause) {
        for (const double pause : {60.0, 0.25, 0.25, lastPause}) {
            t.clock.advance(pause);
            t.end(timer, QStringLiteral("loop"));
            t.gathered.withdraw(timer);
        }
    };
    // The fourth comes a whole second after the first and is shown at once.
    endFourTimes(0.5);
    QCOMPARE(t.desktop.shown.size(), 4U);
    // The fourth comes earlier, and is withdrawn before it can be shown.
    endFourTimes(0.4375);
    t.clock.advance(60);
    QCOMPARE(t.desktop.shown.size(), 7U);
}

WUFFER_TEST(tst_GatheredNotifications)
#include "tst_GatheredNotifications.moc"
