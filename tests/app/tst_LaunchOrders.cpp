#include "app/HomeWindow.h"
#include "app/LaunchOrders.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/SingleInstance.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QTimer>

/// What opens at the first launch, and what later launches do to the running program.
class tst_LaunchOrders final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theOrderOfTheFirstLaunchDecidesWhatOpens_data();
    void theOrderOfTheFirstLaunchDecidesWhatOpens();
    void aNewTimerIsLikeTheOneOfTheLastTime();
    void startingAllStartsWhatOpens();
    void aLaterLaunchOpensANewTimer();
    void everyLaunchForANewTimerOpensOne();
    void aLaterLaunchStartsEveryTimer();
    void aLaterLaunchShowsTheOtherWindows();
    void aLaterLaunchBringsTheLastActiveWindowForward();
    void aLaterLaunchBringsBackAMinimizedTimer();
    void aLaterLaunchLeavesClosedWindowsClosed();
    void manyRequestsAtOnceRaiseTheWindowOnce();
    void noMoreThanAThousandTimersAreOpened();
    void anUnknownActionOpensNothing();
    void aServiceOpensNothingBeforeItsFirstOrder();
    void theFirstOrderOfAServiceDecidesWhatOpens();
    void laterOrdersGoToTheRunningProgram();
    // These come last: a program that has ended opens no more windows.
    void aServiceWithAnOrderInTimeStays();
    void aServiceWithoutAnOrderEnds();
};

namespace
{
/// The program, put together as in main().
struct Program : TestServices
{
    WufferController controller;
    SingleInstance instance;
    LaunchOrders orders{controller, instance};

    void launch(LaunchOrder order) { orders.begin({.order = order, .answer = {}}); }
    void ask(const char *action)
    {
        Q_EMIT instance.asked(QString::fromLatin1(action));
        clock.advance(0.02);
    }
};

std::size_t timers()
{
    return WufferApplication::getWuffers().size();
}

/// The titles of all windows that are open, sorted.
QStringList openWindows()
{
    QStringList titles;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->isWindow())
            titles << (qobject_cast<const HomeWindow *>(window) ? QStringLiteral("home")
                                                                : window->windowTitle());
    }
    titles.sort();
    return titles;
}
} // namespace

void tst_LaunchOrders::theOrderOfTheFirstLaunchDecidesWhatOpens_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QStringList>("windows");
    const QString nothing = QStringLiteral("Do Nothing");
    const QString preset = QStringLiteral("Open Preset ⌘1");
    const QStringList timer{QStringLiteral("Wuffer")};
    const QStringList home{QStringLiteral("home")};
    QTest::newRow("a launch") << int(LaunchOrder::Activate) << QString() << timer;
    QTest::newRow("a launch that opens nothing") << int(LaunchOrder::Activate) << nothing << home;
    QTest::newRow("a new timer") << int(LaunchOrder::NewTimer) << QString() << timer;
    QTest::newRow("a new timer in spite of the choice")
        << int(LaunchOrder::NewTimer) << nothing << timer;
    QTest::newRow("a new timer and no preset") << int(LaunchOrder::NewTimer) << preset << timer;
    QTest::newRow("all started, of none") << int(LaunchOrder::StartAll) << nothing << home;
    QTest::newRow("preferences") << int(LaunchOrder::Preferences) << QString()
                                 << QStringList{QStringLiteral("Preferences")};
    QTest::newRow("converter") << int(LaunchOrder::Converter) << preset
                               << QStringList{QStringLiteral("Converter")};
}

void tst_LaunchOrders::theOrderOfTheFirstLaunchDecidesWhatOpens()
{
    QFETCH(const int, order);
    QFETCH(const QString, choice);
    Program program;
    if (!choice.isEmpty())
        program.defaults.setObject(choice, QStringLiteral("launchBehavior"));
    program.launch(LaunchOrder(order));
    QTEST(openWindows(), "windows");
}

void tst_LaunchOrders::aNewTimerIsLikeTheOneOfTheLastTime()
{
    Program program;
    program.defaults.setObject(QVariantMap{{QStringLiteral("title"), QStringLiteral("Eggs")}},
                               QStringLiteral("defaultWufferSettings"));
    program.launch(LaunchOrder::NewTimer);
    QCOMPARE(openWindows(), QStringList{QStringLiteral("Eggs")});
}

void tst_LaunchOrders::startingAllStartsWhatOpens()
{
    Program program;
    program.launch(LaunchOrder::StartAll);
    QCOMPARE(timers(), std::size_t(1));
    QVERIFY(WufferApplication::getWuffers().front()->isRunning());
}

void tst_LaunchOrders::aLaterLaunchOpensANewTimer()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    program.ask("new-timer");
    QCOMPARE(timers(), std::size_t(2));
    QVERIFY(QTest::qWaitForWindowActive(WufferApplication::getWuffers().back()->window()));
}

void tst_LaunchOrders::aLaterLaunchStartsEveryTimer()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    program.ask("new-timer");
    QWidget &newest = *WufferApplication::getWuffers().back()->window();
    QVERIFY(QTest::qWaitForWindowActive(&newest));
    newest.showMinimized();
    program.ask("start-all");
    for (const Wuffer *timer : WufferApplication::getWuffers())
        QVERIFY(timer->isRunning());
    QVERIFY(!newest.isMinimized());
}

void tst_LaunchOrders::aLaterLaunchShowsTheOtherWindows()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    program.ask("preferences");
    program.ask("converter");
    QCOMPARE(openWindows(), (QStringList{QStringLiteral("Converter"), QStringLiteral("Preferences"),
                                         QStringLiteral("Wuffer")}));
}

void tst_LaunchOrders::aLaterLaunchBringsTheLastActiveWindowForward()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    QWidget &first = *WufferApplication::getWuffers().front()->window();
    program.ask("new-timer");
    program.ask("new-timer");
    // The window that was active last is neither the oldest nor the newest.
    QWidget &second = *WufferApplication::getWuffers().at(1)->window();
    for (QWidget *window : {&first, &second}) {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    second.showMinimized();
    program.ask("");
    QVERIFY(!second.isMinimized());
    QVERIFY(QTest::qWaitForWindowActive(&second));
    QCOMPARE(timers(), std::size_t(3));
}

void tst_LaunchOrders::aLaterLaunchBringsBackAMinimizedTimer()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    QWidget &window = *WufferApplication::getWuffers().front()->window();
    window.showMinimized();
    program.ask("");
    QVERIFY(!window.isMinimized());
}

void tst_LaunchOrders::manyRequestsAtOnceRaiseTheWindowOnce()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    int raised = 0;
    struct Counter final : QObject
    {
        explicit Counter(int &count) : _count(count) { qApp->installEventFilter(this); }
        bool eventFilter(QObject * /*object*/, QEvent *event) override
        {
            _count += int(event->type() == QEvent::ZOrderChange);
            return false;
        }
        int &_count;
    } counter(raised);

    for (int i = 0; i < 10'000; ++i)
        Q_EMIT program.instance.asked(QString());
    QCOMPARE(raised, 0);
    program.clock.advance(0.02);

    QVERIFY2(raised >= 1 && raised < 10, qPrintable(QString::number(raised)));
    QCOMPARE(timers(), std::size_t(1));
}

void tst_LaunchOrders::noMoreThanAThousandTimersAreOpened()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    // The first one is open, the others wait to be opened together.
    for (int i = 1; i < 1000; ++i)
        QVERIFY(program.instance.ask(QStringLiteral("new-timer")));
    QVERIFY(!program.instance.ask(QStringLiteral("new-timer")));
    QVERIFY(program.instance.ask(QStringLiteral("start-all")));
}

void tst_LaunchOrders::anUnknownActionOpensNothing()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    program.ask("dance");
    QCOMPARE(openWindows(), QStringList{QStringLiteral("Wuffer")});
}

void tst_LaunchOrders::aServiceOpensNothingBeforeItsFirstOrder()
{
    Program program;
    program.orders.begin({.service = true, .answer = {}});
    QCOMPARE(openWindows(), QStringList());
    program.ask("");
    QCOMPARE(openWindows(), QStringList{QStringLiteral("Wuffer")});
}

void tst_LaunchOrders::theFirstOrderOfAServiceDecidesWhatOpens()
{
    Program program;
    program.orders.begin({.service = true, .answer = {}});
    program.ask("new-timer");
    QCOMPARE(openWindows(), QStringList{QStringLiteral("Wuffer")});
}

void tst_LaunchOrders::aServiceWithAnOrderInTimeStays()
{
    Program program;
    program.orders.begin({.service = true, .answer = {}});
    program.clock.advance(9.9);
    program.ask("");
    bool quits = true;
    std::size_t open = 0;
    // quit() works only while the event loop runs.
    QTimer::singleShot(0, &program.controller, [&] {
        program.clock.advance(60);
        quits = WufferApplication::isQuitting();
        open = timers();
        QCoreApplication::quit();
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(!quits);
    QCOMPARE(open, std::size_t(1));
}

void tst_LaunchOrders::aServiceWithoutAnOrderEnds()
{
    Program program;
    program.orders.begin({.service = true, .answer = {}});
    QTimer::singleShot(0, &program.controller, [&] { program.clock.advance(10); });
    // exec() returns only when the program ends.
    QCOMPARE(QCoreApplication::exec(), 0);
}

void tst_LaunchOrders::laterOrdersGoToTheRunningProgram()
{
    Program program;
    program.orders.begin({.service = true, .answer = {}});
    program.ask("preferences");
    program.ask("new-timer");
    QCOMPARE(openWindows(), (QStringList{QStringLiteral("Preferences"), QStringLiteral("Wuffer")}));
}

void tst_LaunchOrders::aLaterLaunchLeavesClosedWindowsClosed()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    program.ask("converter");
    QVERIFY(QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }));
    QWidget &converter = *QApplication::activeWindow();
    QCOMPARE(converter.windowTitle(), QStringLiteral("Converter"));
    converter.close();
    program.ask("");
    QCOMPARE(openWindows(), QStringList{QStringLiteral("Wuffer")});
    QVERIFY(QTest::qWaitForWindowActive(WufferApplication::getWuffers().front()->window()));
}

void tst_LaunchOrders::everyLaunchForANewTimerOpensOne()
{
    Program program;
    program.launch(LaunchOrder::Activate);
    for (int i = 0; i < 3; ++i)
        Q_EMIT program.instance.asked(QStringLiteral("new-timer"));
    program.clock.advance(0.02);
    QCOMPARE(timers(), std::size_t(4));
}

WUFFER_TEST(tst_LaunchOrders)
#include "tst_LaunchOrders.moc"
