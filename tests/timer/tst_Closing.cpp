#include "app/WufferApplication.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QAction>
#include <QDialog>
#include <QFile>

/// What happens to a timer when its window closes.
class tst_Closing final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aClosedTimerLeavesTheListAtOnce();
    void aTimerThatClosesPostsANotice();
    void closingARunningTimerEndsIt();
    void closingSilencesTheSounds();
    void noFinishActionOfAClosedTimerRuns();
    void aClosedTimerStartedAgainDoesNotCount();
    void closingAnIdleTimerWritesTheSettingsToDisk();
    void closingTwiceIsHarmless();
    void closingLeavesTheFullScreen();
    void closingTakesTheSheetAlong();
    void aClosedTimerIsDestroyed();
    void aRunningTimerClosesWithoutATrace();
    void aClosedTimerIsOffTheListWhenItsNoticeComes();
    void aVisibleTimerCanBeDestroyedWhileItsNameIsEdited();

private:
    static void letGo() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
};

void tst_Closing::aClosedTimerLeavesTheListAtOnce()
{
    const TimerFixture t;
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(1));
    t.timer.window()->close();
    QVERIFY(WufferApplication::getWuffers().empty());
}

void tst_Closing::aTimerThatClosesPostsANotice()
{
    const TimerFixture t;
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.timer.window()->close();
    QCOMPARE(notices.count, 1);
    QCOMPARE(notices.lastObject, &t.timer);
}

void tst_Closing::closingARunningTimerEndsIt()
{
    TimerFixture t;
    t.startCountdown(60);
    t.timer.window()->close();
    QVERIFY(!t.timer.isRunning());
    QVERIFY(t.clock.isIdle());
    t.pass(120);
    QVERIFY(t.notifications.shown.empty());
}

void tst_Closing::closingSilencesTheSounds()
{
    TimerFixture t;
    t.timer.playDone();
    t.timer.playBeep();
    t.timer.window()->close();
    QCOMPARE(t.sounds.diary(QStringLiteral("stop")).size(), 2);
}

void tst_Closing::noFinishActionOfAClosedTimerRuns()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(1);
    t.pass(2);
    t.timer.window()->close();
    t.pass(10);
    QVERIFY(!t.timer.isRunning());
    QCOMPARE(t.notifications.shown.size(), std::size_t(1));
    letGo();
    QVERIFY(t.clock.isIdle());
}

void tst_Closing::aClosedTimerStartedAgainDoesNotCount()
{
    const TimerFixture t;
    t.timer.window()->close();
    t.timer.goPressed();
    QVERIFY(!t.timer.isRunning());
}

void tst_Closing::closingAnIdleTimerWritesTheSettingsToDisk()
{
    TimerFixture t;
    t.defaults.setObject(7, QStringLiteral("something"));
    t.timer.window()->close();
    QFile file(t.settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\"something\": 7"));
}

void tst_Closing::closingTwiceIsHarmless()
{
    const TimerFixture t;
    t.timer.window()->close();
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    t.timer.window()->close();
    QCOMPARE(notices.count, 0);
}

void tst_Closing::closingLeavesTheFullScreen()
{
    TimerFixture t;
    t.tick("_fullScreenBox");
    t.startCountdown(60);
    QVERIFY(QGuiApplication::overrideCursor());
    t.timer.window()->close();
    QVERIFY(!t.isFullScreen());
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_Closing::closingTakesTheSheetAlong()
{
    const TimerFixture t;
    t.timer.targetTime();
    const auto &sheet = child<QDialog>(*t.timer.window(), "_targetTimeWindow");
    QVERIFY(sheet.isVisible());
    t.timer.window()->close();
    QVERIFY(!sheet.isVisible());
}

void tst_Closing::aClosedTimerIsDestroyed()
{
    const TimerFixture t;
    const QPointer<Wuffer> timer(&t.timer);
    const QPointer<QWidget> window(t.timer.window());
    t.timer.window()->close();
    QVERIFY(timer);
    letGo();
    QVERIFY(!timer);
    QVERIFY(!window);
}

void tst_Closing::aRunningTimerClosesWithoutATrace()
{
    TimerFixture t;
    t.defaults.setObject(7, QStringLiteral("something"));
    t.startCountdown(60);
    t.timer.window()->close();
    QVERIFY(!QFile::exists(t.settingsPath()));
}

void tst_Closing::aClosedTimerIsOffTheListWhenItsNoticeComes()
{
    const TimerFixture t;
    bool listed = true;
    bool enabled = true;
    QAction item;
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(
        observer, QStringLiteral("statusChanged"), [&](QObject *) {
            listed = !WufferApplication::getWuffers().empty();
            enabled = t.timer.validateMenuItem(item, &Wuffer::resetWuffer);
        });
    t.timer.window()->close();
    QVERIFY(!listed);
    QVERIFY(!enabled);
}

void tst_Closing::aVisibleTimerCanBeDestroyedWhileItsNameIsEdited()
{
    const TestServices services;
    auto timer = std::make_unique<Wuffer>(WufferApplication::instance());
    const QPointer<QWidget> window(timer->window());
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    auto *name = window->findChild<QLineEdit *>(QStringLiteral("_titleField"));
    name->setFocus();
    QVERIFY(name->hasFocus());
    QTest::keyClicks(name, QStringLiteral("Tea"));
    timer.reset();
    QVERIFY(!window);
}

WUFFER_TEST(tst_Closing)
#include "tst_Closing.moc"
