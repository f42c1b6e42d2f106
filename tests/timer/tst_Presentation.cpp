#include "app/WufferApplication.h"
#include "controls/Drawer.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QAction>
#include <QProxyStyle>

namespace
{
/// Sets how long drawers slide, so that a test can look at them meanwhile, or have no slide at all.
class SlideStyle final : public QProxyStyle
{
public:
    explicit SlideStyle(int milliseconds) : _milliseconds(milliseconds) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        if (hint == SH_Widget_Animation_Duration)
            return _milliseconds;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    int _milliseconds;
};

/// Counts how often a window changes its size while the counter lives.
class ResizeCounter final : public QObject
{
public:
    explicit ResizeCounter(QWidget &window) { window.installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            ++count;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

const QString kMore = QStringLiteral("More Options");
const QString kHide = QStringLiteral("Hide Options");
} // namespace

/// Full screen mode, the drawer, bringing a window to the front, and the timer's menu items.
class tst_Presentation final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void fullScreenSizesAndBack();
    void theNameOnTheFullScreenStaysVisibleAfterwards();
    void aTimerWithoutANameIsAWufferOnTheFullScreen();
    void thePointerIsHiddenAndShownAgain();
    void thePointerIsHiddenOnceForAStartOnTheFullScreen();
    void theMenuTogglesFullScreen();
    void theWindowKeepsItsSizeThroughout();
    void leavingWithoutFullScreenChangesNothing();
    void closingTheFullScreenWindowOnlyEndsTheMode();
    void theProgramCanBeQuitFromTheFullScreen();
    void theDisplayGoesOnWhileOnTheFullScreen();
    void theDrawerButtonFollowsTheDrawer();
    void aClosingDrawerReopensUnderItsOldTitle();
    void theWindowGrowsByTheDrawer();
    void aMinimizedWindowComesToTheFront();
    void aWindowComesToTheFront();
    void theStopwatchItemIsNamedForWhatItLeadsTo();
    void itemsFollowWhetherTheTimerRuns();
    void theKeepWuffingItemFollowsItsBox();
    void theDrawerItemFollowsTheDrawer();
    void resetAndShowAreAlwaysEnabled();
    void anyOtherItemIsDisabled();
    void allItemsOfAClosedTimerAreDisabled();

private:
    static bool isEnabled(const TimerFixture &t, Wuffer::Operation operation)
    {
        QAction item;
        return t.timer.validateMenuItem(item, operation);
    }
    static QString titleOf(const TimerFixture &t, Wuffer::Operation operation)
    {
        QAction item(QStringLiteral("unchanged"));
        [[maybe_unused]] const bool enabled = t.timer.validateMenuItem(item, operation);
        return item.text();
    }
    static void slideFor(const TimerFixture &t, SlideStyle &style)
    {
        t.part<Drawer>("_drawer").setStyle(&style);
    }
};

void tst_Presentation::fullScreenSizesAndBack()
{
    TimerFixture t;
    t.timer.showWufferWindow();
    const QRect home = t.box().geometry();
    QWidget *parent = t.box().parentWidget();
    const QSize window = t.timer.window()->size();

    t.timer.setFullScreenMode(true);
    QVERIFY(t.box().window() != t.timer.window());
    QVERIFY(t.box().window()->isFullScreen());
    QVERIFY(t.box().window()->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(t.timer.window()->size(), window);

    t.timer.setFullScreenMode(false);
    QCOMPARE(t.box().parentWidget(), parent);
    QTRY_COMPARE(t.box().geometry(), home);
    QCOMPARE(t.timer.window()->size(), window);
    QVERIFY(t.box().isVisible());
}

void tst_Presentation::theNameOnTheFullScreenStaysVisibleAfterwards()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.timer.showWufferWindow();
    QVERIFY(!t.label("_fullTitleField").isVisible());
    t.timer.setFullScreenMode(true);
    QVERIFY(t.label("_fullTitleField").isVisible());
    QVERIFY(!t.titleField.isVisible());
    QCOMPARE(t.label("_fullTitleField").text(), QStringLiteral("Tea"));
    t.timer.setFullScreenMode(false);
    QVERIFY(t.label("_fullTitleField").isVisible());
    QVERIFY(t.part<QLineEdit>("_titleField").isVisible());
}

void tst_Presentation::thePointerIsHiddenAndShownAgain()
{
    TimerFixture t;
    t.timer.setFullScreenMode(true);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::BlankCursor);
    t.timer.setFullScreenMode(false);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_Presentation::thePointerIsHiddenOnceForAStartOnTheFullScreen()
{
    TimerFixture t;
    t.timer.setFullScreenMode(true);
    t.tick("_fullScreenBox");
    t.startCountdown(60);
    QVERIFY(t.isFullScreen());
    t.timer.setWindowed();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_Presentation::theMenuTogglesFullScreen()
{
    TimerFixture t;
    t.timer.startStopFullScreen();
    QVERIFY(t.isFullScreen());
    t.timer.startStopFullScreen();
    QVERIFY(!t.isFullScreen());
}

void tst_Presentation::theWindowKeepsItsSizeThroughout()
{
    TimerFixture t;
    t.timer.showWufferWindow();
    QCoreApplication::processEvents();
    ResizeCounter counter(*t.timer.window());
    for (const bool fullScreen : {true, false}) {
        t.timer.setFullScreenMode(fullScreen);
        for (int round = 0; round < 3; ++round)
            QCoreApplication::processEvents();
    }
    QCOMPARE(counter.count, 0);
}

void tst_Presentation::leavingWithoutFullScreenChangesNothing()
{
    TimerFixture t;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QVERIFY(!t.timer.setWindowed());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
    t.timer.setFullScreenMode(true);
    QVERIFY(t.timer.setWindowed());
}

void tst_Presentation::closingTheFullScreenWindowOnlyEndsTheMode()
{
    TimerFixture t;
    t.timer.showWufferWindow();
    t.startCountdown(60);
    t.timer.setFullScreenMode(true);
    t.box().window()->close();
    QVERIFY(!t.isFullScreen());
    QVERIFY(t.timer.isRunning());
    QVERIFY(t.timer.window()->isVisible());
}

void tst_Presentation::theProgramCanBeQuitFromTheFullScreen()
{
    TimerFixture t;
    t.timer.showWufferWindow();
    t.startCountdown(60);
    t.timer.setFullScreenMode(true);
    QApplication::closeAllWindows();
    QVERIFY(WufferApplication::getWuffers().empty());
    for (const QWidget *window : QApplication::topLevelWidgets())
        QVERIFY(!window->isVisible());
}

void tst_Presentation::theDisplayGoesOnWhileOnTheFullScreen()
{
    TimerFixture t;
    t.startCountdown(60);
    t.timer.setFullScreenMode(true);
    t.pass(10.04);
    QCOMPARE(t.display(), QStringLiteral("49s"));
    QCOMPARE(t.label("_resultLabel").font().pointSizeF(), 200.0);
}

void tst_Presentation::theDrawerButtonFollowsTheDrawer()
{
    TimerFixture t;
    SlideStyle style(0);
    slideFor(t, style);
    const auto &button = t.part<QPushButton>("_finishedDrawerButton");
    const auto &drawer = t.part<Drawer>("_drawer");
    QCOMPARE(button.text(), kMore);
    t.timer.showHideAdvanced();
    QCOMPARE(button.text(), kHide);
    QCOMPARE(drawer.state(), Drawer::State::Open);
    t.timer.showHideAdvanced();
    QCOMPARE(button.text(), kMore);
    QCOMPARE(drawer.state(), Drawer::State::Closed);
}

void tst_Presentation::aClosingDrawerReopensUnderItsOldTitle()
{
    TimerFixture t;
    SlideStyle style(60000);
    slideFor(t, style);
    const auto &button = t.part<QPushButton>("_finishedDrawerButton");
    const auto &drawer = t.part<Drawer>("_drawer");
    t.timer.showHideAdvanced();
    QCOMPARE(drawer.state(), Drawer::State::Opening);
    t.timer.showHideAdvanced();
    QCOMPARE(drawer.state(), Drawer::State::Closing);
    QCOMPARE(button.text(), kMore);
    t.timer.showHideAdvanced();
    QCOMPARE(drawer.state(), Drawer::State::Opening);
    QCOMPARE(button.text(), kMore);
}

void tst_Presentation::theWindowGrowsByTheDrawer()
{
    TimerFixture t;
    SlideStyle style(0);
    slideFor(t, style);
    t.timer.showWufferWindow();
    const int closed = t.timer.window()->height();
    t.timer.showHideAdvanced();
    QTRY_VERIFY(t.timer.window()->height() > closed + 60);
    t.timer.showHideAdvanced();
    QTRY_COMPARE(t.timer.window()->height(), closed);
}

void tst_Presentation::aMinimizedWindowComesToTheFront()
{
    const TimerFixture t;
    t.timer.window()->showMinimized();
    t.timer.showWufferWindow();
    QVERIFY(t.timer.window()->isVisible());
    QVERIFY(!t.timer.window()->isMinimized());
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
}

void tst_Presentation::aWindowComesToTheFront()
{
    const TimerFixture t;
    Wuffer &other = WufferApplication::instance().openWuffer();
    t.timer.showWufferWindow();
    other.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(other.window()));
    t.timer.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.timer.window()));
}

void tst_Presentation::theStopwatchItemIsNamedForWhatItLeadsTo()
{
    const TimerFixture t;
    QCOMPARE(titleOf(t, &Wuffer::stopwatch), QStringLiteral("Stopwatch"));
    t.timer.stopwatch();
    QCOMPARE(titleOf(t, &Wuffer::stopwatch), QStringLiteral("Timer"));
}

void tst_Presentation::itemsFollowWhetherTheTimerRuns()
{
    TimerFixture t;
    QVERIFY(isEnabled(t, &Wuffer::stopwatch));
    QVERIFY(isEnabled(t, &Wuffer::targetTime));
    QVERIFY(!isEnabled(t, &Wuffer::startStopFullScreen));
    t.startCountdown(60);
    QVERIFY(!isEnabled(t, &Wuffer::stopwatch));
    QVERIFY(!isEnabled(t, &Wuffer::targetTime));
    QVERIFY(isEnabled(t, &Wuffer::startStopFullScreen));
}

void tst_Presentation::theKeepWuffingItemFollowsItsBox()
{
    const TimerFixture t;
    QVERIFY(isEnabled(t, &Wuffer::toggleKeepWuffing));
    t.part<QCheckBox>("_keepWuffingBox").setEnabled(false);
    QVERIFY(!isEnabled(t, &Wuffer::toggleKeepWuffing));
}

void tst_Presentation::theDrawerItemFollowsTheDrawer()
{
    const TimerFixture t;
    SlideStyle style(60000);
    slideFor(t, style);
    QCOMPARE(titleOf(t, &Wuffer::showHideAdvanced), kMore);
    t.timer.showHideAdvanced();
    QCOMPARE(titleOf(t, &Wuffer::showHideAdvanced), kHide);
    t.timer.showHideAdvanced();
    QCOMPARE(titleOf(t, &Wuffer::showHideAdvanced), kMore);
    QVERIFY(isEnabled(t, &Wuffer::showHideAdvanced));
    SlideStyle noSlide(0);
    slideFor(t, noSlide);
    t.timer.showHideAdvanced();
    t.timer.showHideAdvanced();
    t.timer.showHideAdvanced();
    QCOMPARE(titleOf(t, &Wuffer::showHideAdvanced), kHide);
}

void tst_Presentation::resetAndShowAreAlwaysEnabled()
{
    TimerFixture t;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(isEnabled(t, &Wuffer::resetWuffer));
        QVERIFY(isEnabled(t, &Wuffer::showWufferWindow));
        t.startCountdown(60);
    }
}

void tst_Presentation::anyOtherItemIsDisabled()
{
    const TimerFixture t;
    QVERIFY(!isEnabled(t, &Wuffer::goPressed));
    QVERIFY(!isEnabled(t, nullptr));
}

void tst_Presentation::allItemsOfAClosedTimerAreDisabled()
{
    const TimerFixture t;
    t.timer.window()->close();
    for (const Wuffer::Operation operation :
         {&Wuffer::stopwatch, &Wuffer::toggleKeepWuffing, &Wuffer::targetTime,
          &Wuffer::showHideAdvanced, &Wuffer::startStopFullScreen, &Wuffer::resetWuffer,
          &Wuffer::showWufferWindow})
        QVERIFY(!isEnabled(t, operation));
}

void tst_Presentation::aTimerWithoutANameIsAWufferOnTheFullScreen()
{
    const TimerFixture t;
    t.timer.setFullScreenMode(true);
    QCOMPARE(t.label("_fullTitleField").text(), QStringLiteral("Wuffer"));
    t.timer.setFullScreenMode(false);
    QCOMPARE(t.label("_fullTitleField").text(), QString());
}

WUFFER_TEST(tst_Presentation)
#include "tst_Presentation.moc"
