#include "app/WufferApplication.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QIcon>
#include <QMainWindow>
#include <QMenuBar>
#include <QWindow>

/// The list of timers, and the key or mouse press that ends full screen mode.
class tst_WufferApplication final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theIconHasADrawingForEachSizeOfAPanel();
    void withoutTimersTheListIsEmpty();
    void timersAreListedInTheOrderInWhichTheyWereMade();
    void theListMayBeWalkedWhileTimersClose();
    void aWindowAtTheSameOriginIsFound();
    void theOldestWindowAtTheSameOriginIsFound();
    void aPixelApartIsNotTheSameOrigin();
    void otherWindowsNeverShareAnOrigin();
    void cancellingTakesEveryTimerOffTheFullScreen();
    void cancellingForOthersLeavesTheGivenTimer();
    void aKeyPressEndsFullScreenAndIsNotTyped();
    void theNextKeyPressIsTyped();
    void aHeldKeyDoesNothingMore();
    void releasingAnotherKeyDoesNotFreeTheHeldOne();
    void aRepeatOfAHeldKeyIsNoRelease();
    void theHeldKeyThatBroughtTheFullScreenDoesNotEndIt();
    void aMenuShortcutEndsFullScreenOnly();
    void aModifierAloneDoesNotEndFullScreen();
    void returnEndsFullScreenWithoutStopping();
    void aLeftClickEndsFullScreenOnly();
    void aDoubleClickEndsFullScreenOnly();
    void aRightClickDoesNotEndFullScreen();
    void aKeyReleaseDoesNotEndFullScreen();
    void pressesReachTheirTargetsWithoutFullScreen();
    void theTimerOfTheActiveWindowIsTheKeyTimer();
    void returnInAnOpenListPicksAndDoesNotStart_data();
    void returnInAnOpenListPicksAndDoesNotStart();

private:
    static void show(const TimerFixture &t)
    {
        t.timer.showWufferWindow();
        QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
    }
    /// Sends a key press to the window as the window system does, so that shortcuts come first.
    static void press(const QWidget &window, Qt::Key key,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyPress(window.windowHandle(), key, modifiers);
    }
    static void release(const QWidget &window, Qt::Key key,
                        Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyRelease(window.windowHandle(), key, modifiers);
    }
};

void tst_WufferApplication::theIconHasADrawingForEachSizeOfAPanel()
{
    const QIcon icon = QApplication::windowIcon();
    for (const int size : {16, 22, 24, 32, 44, 48, 64}) {
        QVERIFY2(icon.availableSizes().contains(QSize(size, size)),
                 QByteArray::number(size).constData());
        QCOMPARE(icon.pixmap(size).size(), QSize(size, size));
    }
}

void tst_WufferApplication::withoutTimersTheListIsEmpty()
{
    const TestServices services;
    QVERIFY(WufferApplication::getWuffers().empty());
    QVERIFY(!WufferApplication::instance().cancelFullScreenMode());
}

void tst_WufferApplication::timersAreListedInTheOrderInWhichTheyWereMade()
{
    const TimerFixture t;
    Wuffer *second = &WufferApplication::instance().openWuffer();
    Wuffer *third = &WufferApplication::instance().openWuffer();
    t.timer.showWufferWindow();
    const std::vector<Wuffer *> all{&t.timer, second, third};
    QVERIFY(WufferApplication::getWuffers() == all);
    second->window()->close();
    const std::vector<Wuffer *> rest{&t.timer, third};
    QVERIFY(WufferApplication::getWuffers() == rest);
}

void tst_WufferApplication::theListMayBeWalkedWhileTimersClose()
{
    const TimerFixture t;
    WufferApplication::instance().openWuffer();
    WufferApplication::instance().openWuffer();
    int walked = 0;
    for (const Wuffer *timer : WufferApplication::getWuffers()) {
        timer->window()->close();
        ++walked;
    }
    QCOMPARE(walked, 3);
    QVERIFY(WufferApplication::getWuffers().empty());
}

void tst_WufferApplication::aWindowAtTheSameOriginIsFound()
{
    const TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    t.timer.window()->move(100, 100);
    other.window()->move(300, 100);
    QVERIFY(!WufferApplication::otherWufferWindowSharesOrigin(*t.timer.window()));
    other.window()->move(100, 100);
    QCOMPARE(WufferApplication::otherWufferWindowSharesOrigin(*t.timer.window()), other.window());
    QCOMPARE(WufferApplication::otherWufferWindowSharesOrigin(*other.window()), t.timer.window());
}

void tst_WufferApplication::theOldestWindowAtTheSameOriginIsFound()
{
    const TimerFixture t;
    Wuffer &second = WufferApplication::instance().openWuffer();
    Wuffer &third = WufferApplication::instance().openWuffer();
    for (const Wuffer *timer : WufferApplication::getWuffers())
        timer->window()->move(100, 100);
    QCOMPARE(WufferApplication::otherWufferWindowSharesOrigin(*third.window()), t.timer.window());
    QCOMPARE(WufferApplication::otherWufferWindowSharesOrigin(*t.timer.window()), second.window());
}

void tst_WufferApplication::aPixelApartIsNotTheSameOrigin()
{
    const TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    t.timer.window()->move(100, 100);
    for (const QPoint near : {QPoint(101, 100), QPoint(100, 101), QPoint(99, 100)}) {
        other.window()->move(near);
        QVERIFY(!WufferApplication::otherWufferWindowSharesOrigin(*t.timer.window()));
    }
}

void tst_WufferApplication::otherWindowsNeverShareAnOrigin()
{
    const TimerFixture t;
    QMainWindow other;
    t.timer.window()->move(100, 100);
    other.move(100, 100);
    QVERIFY(!WufferApplication::otherWufferWindowSharesOrigin(*t.timer.window()));
    QCOMPARE(WufferApplication::otherWufferWindowSharesOrigin(other), t.timer.window());
}

void tst_WufferApplication::cancellingTakesEveryTimerOffTheFullScreen()
{
    TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    const auto &otherBox = child<DisplayBox>(*other.window(), "_displayBox");
    t.timer.setFullScreenMode(true);
    other.setFullScreenMode(true);
    QVERIFY(WufferApplication::instance().cancelFullScreenMode());
    QVERIFY(!t.isFullScreen());
    QVERIFY(!otherBox.isInFullScreenMode());
    QVERIFY(!WufferApplication::instance().cancelFullScreenMode());
}

void tst_WufferApplication::cancellingForOthersLeavesTheGivenTimer()
{
    TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    const auto &otherBox = child<DisplayBox>(*other.window(), "_displayBox");
    t.timer.setFullScreenMode(true);
    other.setFullScreenMode(true);
    WufferApplication::instance().cancelFullScreenModeForOthers(other);
    QVERIFY(!t.isFullScreen());
    QVERIFY(otherBox.isInFullScreenMode());
}

void tst_WufferApplication::aKeyPressEndsFullScreenAndIsNotTyped()
{
    TimerFixture t;
    show(t);
    auto &name = t.part<QLineEdit>("_titleField");
    name.setFocus();
    t.timer.setFullScreenMode(true);
    press(*t.box().window(), Qt::Key_X);
    QVERIFY(!t.isFullScreen());
    QCOMPARE(name.text(), QString());
}

void tst_WufferApplication::theNextKeyPressIsTyped()
{
    TimerFixture t;
    show(t);
    t.timer.setFullScreenMode(true);
    press(*t.box().window(), Qt::Key_7);
    release(*t.timer.window(), Qt::Key_7);
    t.timer.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
    press(*t.timer.window(), Qt::Key_7);
    release(*t.timer.window(), Qt::Key_7);
    QCOMPARE(t.fields(), QStringLiteral("0 7 0"));
}

void tst_WufferApplication::aHeldKeyDoesNothingMore()
{
    TimerFixture t;
    show(t);
    t.timer.setFullScreenMode(true);
    QWidget *field = &t.part<QLineEdit>("_minutesField");
    press(*t.box().window(), Qt::Key_7);
    QVERIFY(!t.isFullScreen());
    // The events of a held key until it is released.
    QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"),
                       true);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"), true);
    QVERIFY(QCoreApplication::sendEvent(field, &question));
    QVERIFY(question.isAccepted());
    QCoreApplication::sendEvent(field, &repeat);
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
    release(*t.timer.window(), Qt::Key_7);
    QCoreApplication::sendEvent(field, &repeat);
    QCOMPARE(t.fields(), QStringLiteral("0 7 0"));
}

void tst_WufferApplication::releasingAnotherKeyDoesNotFreeTheHeldOne()
{
    TimerFixture t;
    show(t);
    t.timer.setFullScreenMode(true);
    press(*t.box().window(), Qt::Key_7);
    release(*t.timer.window(), Qt::Key_X);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"), true);
    QCoreApplication::sendEvent(&t.part<QLineEdit>("_minutesField"), &repeat);
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
}

void tst_WufferApplication::theHeldKeyThatBroughtTheFullScreenDoesNotEndIt()
{
    TimerFixture t;
    t.timer.setFullScreenMode(true);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_F11, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&t.box(), &repeat);
    QVERIFY(t.isFullScreen());
}

void tst_WufferApplication::aMenuShortcutEndsFullScreenOnly()
{
    TimerFixture t;
    show(t);
    int triggered = 0;
    QAction *action = t.timer.window()->menuBar()->addAction(QStringLiteral("Something"));
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+N")));
    action->setShortcutContext(Qt::ApplicationShortcut);
    connect(action, &QAction::triggered, this, [&] { ++triggered; });

    t.timer.setFullScreenMode(true);
    press(*t.box().window(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(!t.isFullScreen());
    QCOMPARE(triggered, 0);
    release(*t.timer.window(), Qt::Key_N, Qt::ControlModifier);
    t.timer.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
    press(*t.timer.window(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(triggered, 1);
}

void tst_WufferApplication::aModifierAloneDoesNotEndFullScreen()
{
    TimerFixture t;
    show(t);
    t.timer.setFullScreenMode(true);
    for (const Qt::Key key :
         {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_CapsLock}) {
        press(*t.box().window(), key);
        release(*t.box().window(), key);
        QVERIFY(t.isFullScreen());
    }
    QKeyEvent altGr(QEvent::KeyPress, Qt::Key_AltGr, Qt::NoModifier);
    QCoreApplication::sendEvent(&t.box(), &altGr);
    QVERIFY(t.isFullScreen());
}

void tst_WufferApplication::returnEndsFullScreenWithoutStopping()
{
    TimerFixture t;
    show(t);
    t.tick("_fullScreenBox");
    t.startCountdown(60);
    QVERIFY(t.isFullScreen());
    press(*t.box().window(), Qt::Key_Return);
    QVERIFY(!t.isFullScreen());
    QVERIFY(t.timer.isRunning());
}

void tst_WufferApplication::aLeftClickEndsFullScreenOnly()
{
    TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    other.showWufferWindow();
    auto &button = child<QPushButton>(*other.window(), "_goButton");
    t.timer.setFullScreenMode(true);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!t.isFullScreen());
    QVERIFY(!other.isRunning());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(other.isRunning());
}

void tst_WufferApplication::aDoubleClickEndsFullScreenOnly()
{
    TimerFixture t;
    t.timer.setFullScreenMode(true);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&t.box(), &event);
    QVERIFY(!t.isFullScreen());
}

void tst_WufferApplication::aRightClickDoesNotEndFullScreen()
{
    TimerFixture t;
    t.timer.setFullScreenMode(true);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        QTest::mouseClick(&t.box(), button);
        QVERIFY(t.isFullScreen());
    }
    QTest::mouseRelease(&t.box(), Qt::LeftButton);
    QTest::mouseMove(&t.box());
    QVERIFY(t.isFullScreen());
}

void tst_WufferApplication::aKeyReleaseDoesNotEndFullScreen()
{
    TimerFixture t;
    show(t);
    t.timer.setFullScreenMode(true);
    release(*t.box().window(), Qt::Key_Return);
    QVERIFY(t.isFullScreen());
}

void tst_WufferApplication::pressesReachTheirTargetsWithoutFullScreen()
{
    TimerFixture t;
    show(t);
    press(*t.timer.window(), Qt::Key_4);
    release(*t.timer.window(), Qt::Key_4);
    QCOMPARE(t.fields(), QStringLiteral("0 4 0"));
    QTest::mouseClick(&t.part<QPushButton>("_goButton"), Qt::LeftButton);
    QVERIFY(t.timer.isRunning());
}

void tst_WufferApplication::theTimerOfTheActiveWindowIsTheKeyTimer()
{
    const TimerFixture t;
    show(t);
    QCOMPARE(WufferApplication::keyWuffer(), &t.timer);
    t.timer.targetTime();
    auto &sheet = child<QWidget>(*t.timer.window(), "_targetTimeWindow");
    QVERIFY(QTest::qWaitForWindowActive(&sheet));
    QCOMPARE(WufferApplication::keyWuffer(), &t.timer);
    t.timer.endTargetTimeSheet();
    QMainWindow other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!WufferApplication::keyWuffer());
}

void tst_WufferApplication::returnInAnOpenListPicksAndDoesNotStart_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_WufferApplication::returnInAnOpenListPicksAndDoesNotStart()
{
    QFETCH(const Qt::Key, key);
    const TimerFixture t;
    show(t);
    auto &combo = t.part<QComboBox>("_finishedCombo");
    combo.showPopup();
    QWindow *list = QApplication::activePopupWidget()->windowHandle();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, key);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(combo.currentIndex(), 1);
    QVERIFY(!t.timer.isRunning());
}

void tst_WufferApplication::aRepeatOfAHeldKeyIsNoRelease()
{
    TimerFixture t;
    show(t);
    t.timer.setFullScreenMode(true);
    press(*t.box().window(), Qt::Key_7);
    // On X11 a held key sends releases and presses in turn.
    QWidget *field = &t.part<QLineEdit>("_minutesField");
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeat(type, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"), true);
        QCoreApplication::sendEvent(field, &repeat);
    }
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
}

WUFFER_TEST(tst_WufferApplication)
#include "tst_WufferApplication.moc"
