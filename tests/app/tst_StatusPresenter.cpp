#include "app/StatusPresenter.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
/// A timer, and a controller that shows all timers in the status item.
class StatusFixture : public TimerFixture
{
public:
    StatusFixture()
    {
        defaults.setObject(QStringLiteral("Do Nothing"), QStringLiteral("launchBehavior"));
        controller.awakeFromNib();
    }

    /// Starts another timer for this many seconds.
    Wuffer &startAnother(int seconds)
    {
        Wuffer &another = WufferApplication::instance().openWuffer();
        another.setFieldsWithTimeLeft(seconds);
        another.goPressed();
        return another;
    }

    Wuffer &startStopwatch()
    {
        Wuffer &another = WufferApplication::instance().openWuffer();
        another.stopwatch();
        another.goPressed();
        return another;
    }

    [[nodiscard]] QString title() const { return statusItem.attributedTitle().text; }
    [[nodiscard]] bool hasImage() const { return !statusItem.image().isNull(); }

    /// The texts of the menu's lines; empty if there is no menu.
    [[nodiscard]] QStringList lines() const
    {
        QStringList texts;
        if (statusItem.menu()) {
            for (const StatusMenu::Line &line : statusItem.menu()->lines())
                texts << line.text;
        }
        return texts;
    }

    WufferController controller;
};

const QColor kRed = QColor::fromRgbF(0.9F, 0.0F, 0.0F);
} // namespace

/// What the status item shows of real timers right after each of their notices.
class tst_StatusPresenter final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theImageHasADrawingForEachSizeOfAPanel();
    void withoutARunningTimerTheItemIsEmpty();
    void aStartedTimerShowsAndAStoppedOneDoesNot();
    void theTitleFollowsTheDisplay();
    void theTitleHasTheColorOfTheDisplay();
    void aTimerFromAPresetIsBlackThenRed();
    void theAlarmShowsUntilItIsReset();
    void aTimerStartedAtLaunchShowsAtItsFirstNotice();
    void aPressBringsTheOneTimerToTheFront();
    void aPressAfterTheLastTimerHasStoppedDoesNothing();
    void twoTimersAreListedSoonestFirst();
    void theTitleIsThatOfTheSoonest();
    void theTargetIsTheSoonest();
    void atTheSameMomentTheNewestIsFirst();
    void stopwatchesComeLastTheNewestFirst();
    void theMenuGoesWhenOneOfTwoStops();
    void theMenuGoesWhenOneOfTwoCloses();
    void theMenuIsTheSameAllAlong();
    void aLineKeepsItsNumber();
    void choosingALineBringsThatTimerToTheFront();
    void choosingALineThatIsGoneDoesNothing();
    void theLinesSayWhatIsOnTheDisplays();
    void theImageStaysWhileTimersRun();
    void theItemIsEmptyWhenSwitchedOff();
    void switchingOffEmptiesTheItemAndTouchesNothingElse();
    void switchingOnAgainShowsEverythingAtTheNextNotice();
    void aTimerClosedWhileSwitchedOffIsNotInTheMenu();
    void removingTheItemLeavesTargetAndMenu();
    void aNoticeWithoutAChangeUpdatesNothing();
    void manyTimersCostNoMoreThanTheirTitle();
    void theItemIsEmptyWhenTheControllerHasGone();
};

void tst_StatusPresenter::theImageHasADrawingForEachSizeOfAPanel()
{
    StatusFixture t;
    t.startAnother(60);
    const QIcon image = t.statusItem.image();
    for (const int size : {22, 24, 32, 44, 48, 64})
        QVERIFY2(image.availableSizes().contains(QSize(size, size)),
                 QByteArray::number(size).constData());
}

void tst_StatusPresenter::withoutARunningTimerTheItemIsEmpty()
{
    const StatusFixture t;
    QVERIFY(t.statusItem.isEmpty());
    QVERIFY(!t.statusItem.menu());
    QVERIFY(!t.statusItem.target());
    QCOMPARE(t.statusItem.changes, 0);
}

void tst_StatusPresenter::aStartedTimerShowsAndAStoppedOneDoesNot()
{
    StatusFixture t;
    t.startCountdown(65);
    QCOMPARE(t.title(), QStringLiteral("1m 5s "));
    QVERIFY(t.hasImage());
    QVERIFY(!t.statusItem.menu());
    t.pressGo();
    QCOMPARE(t.title(), QString());
    QVERIFY(!t.hasImage());
    QVERIFY(!t.statusItem.target());
}

void tst_StatusPresenter::theTitleFollowsTheDisplay()
{
    StatusFixture t;
    t.startCountdown(65);
    t.pass(4.5);
    QCOMPARE(t.title(), QStringLiteral("1m 0s "));
    QCOMPARE(t.title(), t.display() + QLatin1Char(' '));
}

void tst_StatusPresenter::theTitleHasTheColorOfTheDisplay()
{
    StatusFixture t;
    t.startCountdown(14);
    QCOMPARE(t.statusItem.attributedTitle().color, QColor(Qt::black));
    QCOMPARE(t.statusItem.attributedTitle().fontSize, 15.0);
    t.pass(4);
    QCOMPARE(t.statusItem.attributedTitle().color, kRed);
    QCOMPARE(t.timer.currentTextColor(), kRed);
}

void tst_StatusPresenter::aTimerFromAPresetIsBlackThenRed()
{
    StatusFixture t;
    t.timer.setPreset(3);
    t.startCountdown(14);
    QCOMPARE(t.statusItem.attributedTitle().color, QColor(Qt::black));
    t.pass(4);
    QCOMPARE(t.statusItem.attributedTitle().color, kRed);
}

void tst_StatusPresenter::theAlarmShowsUntilItIsReset()
{
    StatusFixture t;
    t.startCountdown(1);
    t.pass(1.1);
    QCOMPARE(t.title(), QStringLiteral("Wuff! "));
    QCOMPARE(t.statusItem.attributedTitle().color, kRed);
    t.pressGo();
    QVERIFY(t.statusItem.isEmpty());
}

void tst_StatusPresenter::aTimerStartedAtLaunchShowsAtItsFirstNotice()
{
    TestServices t;
    t.defaults.setObject(QStringLiteral("Open and Start Preset ⌘1"),
                         QStringLiteral("launchBehavior"));
    WufferController controller;
    controller.awakeFromNib();
    QVERIFY(WufferApplication::getWuffers().front()->isRunning());
    QVERIFY(t.statusItem.isEmpty());
    t.clock.advance(0.2);
    QVERIFY(!t.statusItem.isEmpty());
}

void tst_StatusPresenter::aPressBringsTheOneTimerToTheFront()
{
    StatusFixture t;
    t.startCountdown(60);
    t.timer.window()->showMinimized();
    QCOMPARE(t.statusItem.target(), &t.timer);
    t.statusItem.sendAction();
    QVERIFY(!t.timer.window()->isMinimized());
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
}

void tst_StatusPresenter::aPressAfterTheLastTimerHasStoppedDoesNothing()
{
    StatusFixture t;
    t.startCountdown(60);
    t.pressGo();
    t.timer.window()->hide();
    t.statusItem.sendAction();
    QVERIFY(!t.timer.window()->isVisible());
}

void tst_StatusPresenter::twoTimersAreListedSoonestFirst()
{
    StatusFixture t;
    t.typeName(QStringLiteral("Tea & cake %1"));
    t.startCountdown(90);
    t.startAnother(65);
    QCOMPARE(t.lines(), (QStringList{QStringLiteral("Wuffer: 1m 5s"),
                                     QStringLiteral("Tea & cake %1: 1m 30s")}));
}

void tst_StatusPresenter::theTitleIsThatOfTheSoonest()
{
    StatusFixture t;
    t.startCountdown(90);
    t.startAnother(65);
    QCOMPARE(t.title(), QStringLiteral("1m 5s "));
    t.startAnother(30);
    QCOMPARE(t.title(), QStringLiteral("30s "));
}

void tst_StatusPresenter::theTargetIsTheSoonest()
{
    StatusFixture t;
    t.startCountdown(90);
    Wuffer &sooner = t.startAnother(65);
    QCOMPARE(t.statusItem.target(), &sooner);
    sooner.goPressed();
    QCOMPARE(t.statusItem.target(), &t.timer);
}

void tst_StatusPresenter::atTheSameMomentTheNewestIsFirst()
{
    StatusFixture t;
    t.typeName(QStringLiteral("old"));
    t.startCountdown(60);
    const Wuffer &newer = t.startAnother(60);
    QCOMPARE(t.lines(),
             (QStringList{QStringLiteral("Wuffer: 1m 0s"), QStringLiteral("old: 1m 0s")}));
    QCOMPARE(t.statusItem.target(), &newer);
}

void tst_StatusPresenter::stopwatchesComeLastTheNewestFirst()
{
    StatusFixture t;
    t.typeName(QStringLiteral("first watch"));
    t.timer.stopwatch();
    t.pressGo();
    t.pass(5.2);
    QCOMPARE(t.title(), QStringLiteral("5s "));
    t.startStopwatch();
    QCOMPARE(t.lines().size(), 2);
    QCOMPARE(t.lines().constLast(), QStringLiteral("first watch: 5s"));
    t.startAnother(100000);
    QCOMPARE(t.lines().constFirst(), QStringLiteral("Wuffer: 1d 3h 46m "));
    QCOMPARE(t.lines().constLast(), QStringLiteral("first watch: 5s"));
}

void tst_StatusPresenter::theMenuGoesWhenOneOfTwoStops()
{
    StatusFixture t;
    t.startCountdown(60);
    Wuffer &other = t.startAnother(30);
    StatusMenu *menu = t.statusItem.menu();
    QVERIFY(menu);
    other.goPressed();
    QVERIFY(!t.statusItem.menu());
    QVERIFY(menu->lines().empty());
    QCOMPARE(t.statusItem.target(), &t.timer);
    QCOMPARE(t.title(), QStringLiteral("1m 0s "));
}

void tst_StatusPresenter::theMenuGoesWhenOneOfTwoCloses()
{
    StatusFixture t;
    t.startCountdown(60);
    t.startAnother(30).window()->close();
    QVERIFY(!t.statusItem.menu());
    QCOMPARE(t.title(), QStringLiteral("1m 0s "));
}

void tst_StatusPresenter::theMenuIsTheSameAllAlong()
{
    StatusFixture t;
    t.startCountdown(60);
    Wuffer &other = t.startAnother(30);
    const StatusMenu *menu = t.statusItem.menu();
    t.startAnother(20);
    QCOMPARE(t.statusItem.menu(), menu);
    t.pressGo();
    other.goPressed();
    t.pressGo();
    QCOMPARE(t.statusItem.menu(), menu);
}

void tst_StatusPresenter::aLineKeepsItsNumber()
{
    StatusFixture t;
    t.startCountdown(60);
    t.startAnother(30);
    const int before = t.statusItem.menu()->lines().back().id;
    t.startAnother(10);
    t.startAnother(90);
    QCOMPARE(t.statusItem.menu()->lines()[2].id, before);
    QVERIFY(before > 0);
}

void tst_StatusPresenter::choosingALineBringsThatTimerToTheFront()
{
    StatusFixture t;
    t.startCountdown(60);
    Wuffer &other = t.startAnother(30);
    other.showWufferWindow();
    t.timer.window()->showMinimized();
    t.statusItem.menu()->choose(t.statusItem.menu()->lines().back().id);
    QVERIFY(!t.timer.window()->isMinimized());
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
}

void tst_StatusPresenter::choosingALineThatIsGoneDoesNothing()
{
    StatusFixture t;
    t.startCountdown(60);
    t.startAnother(40);
    Wuffer &closing = t.startAnother(30);
    const int id = t.statusItem.menu()->lines().front().id;
    closing.window()->close();
    t.statusItem.menu()->choose(id);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    t.statusItem.menu()->choose(id);
    t.statusItem.menu()->choose(-1);
    QCOMPARE(t.lines().size(), 2);
}

void tst_StatusPresenter::theLinesSayWhatIsOnTheDisplays()
{
    StatusFixture t;
    t.startCountdown(90);
    t.startAnother(65);
    t.pass(10.3);
    QCOMPARE(t.lines(),
             (QStringList{QStringLiteral("Wuffer: 54s"), QStringLiteral("Wuffer: 1m 19s")}));
}

void tst_StatusPresenter::theImageStaysWhileTimersRun()
{
    StatusFixture t;
    t.startCountdown(60);
    const qint64 image = t.statusItem.image().cacheKey();
    t.pass(2);
    t.startAnother(30);
    QCOMPARE(t.statusItem.image().cacheKey(), image);
}

void tst_StatusPresenter::theItemIsEmptyWhenSwitchedOff()
{
    StatusFixture t;
    t.set("noStatusBar", 1);
    t.startCountdown(60);
    t.startAnother(30);
    t.pass(1);
    QVERIFY(t.statusItem.isEmpty());
    QVERIFY(!t.statusItem.menu());
    QVERIFY(!t.statusItem.target());
}

void tst_StatusPresenter::switchingOffEmptiesTheItemAndTouchesNothingElse()
{
    StatusFixture t;
    t.startCountdown(60);
    t.startAnother(30);
    const StatusMenu *menu = t.statusItem.menu();
    QObject *target = t.statusItem.target();
    t.set("noStatusBar", 1);
    QVERIFY(!t.statusItem.isEmpty());
    t.pass(0.2);
    QVERIFY(t.statusItem.isEmpty());
    QCOMPARE(t.statusItem.menu(), menu);
    QCOMPARE(t.statusItem.target(), target);
}

void tst_StatusPresenter::switchingOnAgainShowsEverythingAtTheNextNotice()
{
    StatusFixture t;
    t.set("noStatusBar", 1);
    t.startCountdown(60);
    t.startAnother(30);
    t.set("noStatusBar", 0);
    t.pass(0.2);
    QCOMPARE(t.title(), QStringLiteral("29s "));
    QVERIFY(t.hasImage());
    QCOMPARE(t.lines().size(), 2);
}

void tst_StatusPresenter::aTimerClosedWhileSwitchedOffIsNotInTheMenu()
{
    StatusFixture t;
    t.startCountdown(60);
    Wuffer &other = t.startAnother(30);
    t.set("noStatusBar", 1);
    other.window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(t.lines(), QStringList{QStringLiteral("Wuffer: 1m 0s")});
    QVERIFY(!t.statusItem.target());
    t.statusItem.sendAction();
}

void tst_StatusPresenter::removingTheItemLeavesTargetAndMenu()
{
    StatusFixture t;
    t.startCountdown(60);
    t.startAnother(30);
    t.controller.removeStatusBar();
    QVERIFY(t.statusItem.isEmpty());
    QVERIFY(t.statusItem.menu());
    QVERIFY(t.statusItem.target());
}

void tst_StatusPresenter::aNoticeWithoutAChangeUpdatesNothing()
{
    StatusFixture t;
    t.startCountdown(60);
    t.startAnother(30);
    t.controller.refreshStatusItem();
    const int before = t.statusItem.changes;
    for (int i = 0; i < 100; ++i)
        t.controller.refreshStatusItem();
    QCOMPARE(t.statusItem.changes, before);
}

void tst_StatusPresenter::manyTimersCostNoMoreThanTheirTitle()
{
    StatusFixture t;
    for (int i = 0; i < 20; ++i)
        t.startAnother(300 + i);
    t.pass(0.5);
    const int before = t.statusItem.changes;
    t.pass(10);
    QCOMPARE(t.statusItem.changes - before, 10);
    QCOMPARE(t.lines().size(), 20);
}

void tst_StatusPresenter::theItemIsEmptyWhenTheControllerHasGone()
{
    TimerFixture t;
    {
        StatusPresenter presenter(t.statusItem);
        t.startCountdown(60);
        WufferApplication::instance().openWuffer().goPressed();
        presenter.refreshStatusItem();
        QVERIFY(t.statusItem.menu());
    }
    QVERIFY(t.statusItem.isEmpty());
    QVERIFY(!t.statusItem.menu());
    QVERIFY(!t.statusItem.target());
}

WUFFER_TEST(tst_StatusPresenter)
#include "tst_StatusPresenter.moc"
