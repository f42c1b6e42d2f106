#include "support/GatheringFixture.h"
#include "support/TestMain.h"

namespace
{
using End = DesktopNotification::End;
using Occasion = DesktopNotification::Occasion;

const QStringList kFirstFive{QStringLiteral("T1"), QStringLiteral("T2"), QStringLiteral("T3"),
                             QStringLiteral("T4"), QStringLiteral("T5")};
} // namespace

/// What happens to gathered notifications when alarms end by themselves, when the user answers, and
/// when the desktop closes them.
class tst_GatheredAnswers final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeTakesThePlaceOfWhatStands();
    void threeTimersKeepTheirOwnNotificationsWhenTheyChange();
    void changesOfOneTimerAreHeldBackLikeItsNews();
    void stopIsOfferedWhileAnyTimerRings();
    void aChangeThatIsNotSeenIsNotShown();
    void showAlsoDismissesTheTimersThatRingNoMore();
    void showLeavesTheOthersToBeStopped();
    void stopAlsoDismissesTheTimersThatRingNoMore();
    void theEndOfTheSummaryIsReportedToEachTimer();
    void simultaneousRemindersAreOneQuietSummary();
    void newsAmongRemindersMakesTheSummaryNews();
};

void tst_GatheredAnswers::aChangeTakesThePlaceOfWhatStands()
{
    GatheringFixture t;
    t.end(2);
    t.quieten(0);
    QCOMPARE(t.desktop.shownAgain.size(), 1U);
    QCOMPARE(t.desktop.shownAgain.front().sender, t.timers.front().get());
    QVERIFY(!t.desktop.shownAgain.front().notification.stop);
    QCOMPARE(t.desktop.standing.size(), 2U);
    QVERIFY(t.clock.isIdle());
}

void tst_GatheredAnswers::threeTimersKeepTheirOwnNotificationsWhenTheyChange()
{
    GatheringFixture t;
    t.end(3);
    for (const std::size_t each : {0U, 1U, 2U}) {
        t.clock.advance(0.2);
        t.quieten(each);
    }
    QCOMPARE(t.desktop.standing.size(), 3U);
    t.clock.advance(5);
    QCOMPARE(t.desktop.standing.size(), 3U);
    QCOMPARE(t.desktop.shownAgain.size(), 3U);
}

void tst_GatheredAnswers::changesOfOneTimerAreHeldBackLikeItsNews()
{
    GatheringFixture t;
    t.end(1);
    for (int i = 0; i < 40; ++i) {
        t.clock.advance(0.2);
        t.quieten(0);
        t.clock.advance(0.05);
        t.end(*t.timers.front(), QStringLiteral("T1"));
    }
    // Three by themselves, each with its change, and then about one per second for ten seconds.
    QVERIFY(t.desktop.shown.size() + t.desktop.shownAgain.size() <= 6U + 11U);
    t.clock.advance(1);
    QCOMPARE(t.only().text, QStringLiteral("T1: 5s"));
}

void tst_GatheredAnswers::stopIsOfferedWhileAnyTimerRings()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    for (const std::size_t each : {3U, 0U, 4U, 1U})
        t.quieten(each);
    t.clock.advance(5);
    QVERIFY(t.only().stop);
    t.quieten(2);
    t.clock.advance(5);
    QVERIFY(!t.only().stop);
    QVERIFY(t.only().show);
    QCOMPARE(t.only().text, QStringLiteral("T5\nT4\nT3\nT2\nT1"));
}

void tst_GatheredAnswers::aChangeThatIsNotSeenIsNotShown()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    const std::size_t before = t.desktop.shown.size() + t.desktop.shownAgain.size();
    t.quieten(3);
    QVERIFY(t.clock.isIdle());
    t.clock.advance(5);
    QCOMPARE(t.desktop.shown.size() + t.desktop.shownAgain.size(), before);
}

void tst_GatheredAnswers::showAlsoDismissesTheTimersThatRingNoMore()
{
    GatheringFixture t;
    t.end(5);
    for (const std::size_t each : {0U, 1U, 2U, 3U})
        t.quieten(each);
    t.clock.advance(5);
    const std::function<void()> show = t.only().show;
    show();
    QCOMPARE(t.texts(), QStringList());
    QCOMPARE(t.dismissed, kFirstFive);
    QCOMPARE(t.entries(), QStringLiteral("show T5"));
    t.clock.advance(5);
    QCOMPARE(t.texts(), QStringList());
}

void tst_GatheredAnswers::showLeavesTheOthersToBeStopped()
{
    GatheringFixture t;
    t.end(5);
    t.quieten(1);
    t.clock.advance(5);
    const std::function<void()> show = t.only().show;
    show();
    // A desktop closes a notification when the user presses one of its buttons.
    t.desktop.close(0, End::Dismissed);
    QCOMPARE(t.dismissed, QStringList({QStringLiteral("T2"), QStringLiteral("T5")}));
    t.clock.advance(5);
    QCOMPARE(t.only().text, QStringLiteral("T4\nT3\nT1"));
    t.only().stop();
    QCOMPARE(t.entries(), QStringLiteral("show T5 stop T1 stop T3 stop T4"));
    QCOMPARE(t.texts(), QStringList());
}

void tst_GatheredAnswers::stopAlsoDismissesTheTimersThatRingNoMore()
{
    GatheringFixture t;
    t.end(5);
    t.quieten(0);
    t.quieten(2);
    t.clock.advance(5);
    const std::function<void()> stop = t.only().stop;
    stop();
    QCOMPARE(t.entries(), QStringLiteral("stop T2 stop T4 stop T5"));
    QCOMPARE(t.dismissed, QStringList({QStringLiteral("T1"), QStringLiteral("T3")}));
    QCOMPARE(t.texts(), QStringList());
}

void tst_GatheredAnswers::theEndOfTheSummaryIsReportedToEachTimer()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    t.desktop.close(0, End::Expired);
    QCOMPARE(t.expired, kFirstFive);
    QCOMPARE(t.dismissed, QStringList());
}

void tst_GatheredAnswers::simultaneousRemindersAreOneQuietSummary()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    t.desktop.close(0, End::Expired);
    t.clock.advance(5);
    for (std::size_t each = 0; each < 5; ++each)
        t.remind(each);
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("5 timers have ended"));
    QVERIFY(t.only().occasion == Occasion::Reminder);
    QVERIFY(t.only().stop);
}

void tst_GatheredAnswers::newsAmongRemindersMakesTheSummaryNews()
{
    GatheringFixture t;
    t.end(5);
    t.clock.advance(5);
    t.desktop.close(0, End::Expired);
    t.end(1);
    for (std::size_t each = 0; each < 5; ++each)
        t.remind(each);
    t.clock.advance(1);
    QCOMPARE(t.only().title, QStringLiteral("6 timers have ended"));
    QVERIFY(t.only().occasion == Occasion::News);
}

WUFFER_TEST(tst_GatheredAnswers)
#include "tst_GatheredAnswers.moc"
