#include "app/AuxiliaryWindow.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"
#include "tools/MeasurementsPanel.h"
#include "tools/NumberField.h"

#include <QFile>
#include <QScreen>

#include <algorithm>

Q_DECLARE_METATYPE(WufferController::Operation)

/// What opens at launch, where new timers are placed, and the program's other windows.
class tst_WufferController final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aLaunchOpensWhatTheUserChose_data();
    void aLaunchOpensWhatTheUserChose();
    void theTimerOpenedAtLaunchIsShown();
    void aLaunchLeavesEveryOptionInTheSettings();
    void aLaunchShowsNoPreferences();
    void newTimersStandOneStepFromTheNewest();
    void aCascadeThatWouldLeaveTheScreenBeginsAgain_data();
    void aCascadeThatWouldLeaveTheScreenBeginsAgain();
    void aNewTimerIsShownInFront();
    void startingAllLeavesRunningTimersAlone();
    void startingAllTwiceChangesNothing();
    void theOtherWindowsAreShownAndActive_data();
    void theOtherWindowsAreShownAndActive();
    void theOtherWindowsAreMadeWhenAskedFor();
    void theConverterAwaitsANumber();
    void theMeasurementsAreShown();
    void escapeClosesTheConverterAndTheMeasurements_data();
    void escapeClosesTheConverterAndTheMeasurements();
    void aWindowShownAgainIsTheSame();
    void aMinimizedWindowIsShownAgain();
    void theWebPageIsOpened();
    void everyItemOfTheControllerIsEnabled();
};

void tst_WufferController::aLaunchOpensWhatTheUserChose_data()
{
    QTest::addColumn<QVariant>("choice");
    QTest::addColumn<int>("timers");
    QTest::addColumn<bool>("running");
    QTest::newRow("the first launch") << QVariant() << 1 << false;
    QTest::newRow("one timer") << QVariant(QStringLiteral("Open a Wuffer")) << 1 << false;
    QTest::newRow("nothing") << QVariant(QStringLiteral("Do Nothing")) << 0 << false;
    QTest::newRow("preset 1") << QVariant(QStringLiteral("Open Preset ⌘1")) << 1 << false;
    QTest::newRow("preset 1 started")
        << QVariant(QStringLiteral("Open and Start Preset ⌘1")) << 1 << true;
    QTest::newRow("without the sign it is another text")
        << QVariant(QStringLiteral("Open and Start Preset 1")) << 1 << false;
    QTest::newRow("another case is another text")
        << QVariant(QStringLiteral("do nothing")) << 1 << false;
    QTest::newRow("no text") << QVariant(42) << 1 << false;
}

void tst_WufferController::aLaunchOpensWhatTheUserChose()
{
    QFETCH(const QVariant, choice);
    TestServices services;
    if (choice.isValid())
        services.defaults.setObject(choice, QStringLiteral("launchBehavior"));
    WufferController controller;
    controller.awakeFromNib();
    const std::vector<Wuffer *> timers = WufferApplication::getWuffers();
    QTEST(int(timers.size()), "timers");
    QTEST(!timers.empty() && timers.front()->isRunning(), "running");
}

void tst_WufferController::theTimerOpenedAtLaunchIsShown()
{
    const TestServices services;
    WufferController controller;
    controller.awakeFromNib();
    const Wuffer &timer = *WufferApplication::getWuffers().front();
    QVERIFY(timer.window()->isVisible());
    QVERIFY(QTest::qWaitForWindowActive(timer.window()));
}

void tst_WufferController::aLaunchLeavesEveryOptionInTheSettings()
{
    TestServices services;
    WufferController controller;
    controller.awakeFromNib();
    const UserDefaults &defaults = services.defaults;
    QCOMPARE(defaults.stringForKey(QStringLiteral("launchBehavior")),
             QStringLiteral("Open a Wuffer"));
    QCOMPARE(defaults.stringForKey(QStringLiteral("finishedText")), QStringLiteral("Wuff!"));
    services.defaults.synchronize();
    QFile file(services.settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray stored = file.readAll();
    for (const char *key : {"soundOff", "suppressCountdown", "autoStartPresets", "growlDisabled",
                            "energySaverMode", "noStatusBar"})
        QVERIFY2(stored.contains(QByteArray("\"") + key + "\": 0"), key);
}

void tst_WufferController::aLaunchShowsNoPreferences()
{
    const TestServices services;
    WufferController controller;
    controller.awakeFromNib();
    int shown = 0;
    for (const QWidget *window : QApplication::topLevelWidgets())
        shown += window->isVisible() ? 1 : 0;
    QCOMPARE(shown, 1);
}

void tst_WufferController::newTimersStandOneStepFromTheNewest()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    WufferApplication::getWuffers().front()->window()->move(60, 50);
    controller.newWuffer();
    controller.newWuffer();
    const std::vector<Wuffer *> timers = WufferApplication::getWuffers();
    const QPoint step = timers[1]->window()->pos() - QPoint(60, 50);
    const QPoint next = WufferWindow::nextCascadePoint({60, 50}, QSize(10, 10), {0, 0, 800, 600});
    QCOMPARE(step, next - QPoint(60, 50));
    QVERIFY(step.x() > 10 && step.x() == step.y());
    QCOMPARE(timers[2]->window()->pos(), QPoint(60, 50) + 2 * step);
}

void tst_WufferController::aCascadeThatWouldLeaveTheScreenBeginsAgain_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("next");
    QTest::newRow("with room") << QPoint(10, 40) << QPoint(38, 68);
    QTest::newRow("no room on the right") << QPoint(600, 40) << QPoint(0, 30);
    QTest::newRow("no room below") << QPoint(10, 500) << QPoint(0, 30);
    QTest::newRow("the last that fits") << QPoint(372, 302) << QPoint(400, 330);
    QTest::newRow("one further does not") << QPoint(373, 302) << QPoint(0, 30);
}

void tst_WufferController::aCascadeThatWouldLeaveTheScreenBeginsAgain()
{
    QFETCH(const QPoint, from);
    const QRect room(0, 30, 800, 570);
    QTEST(WufferWindow::nextCascadePoint(from, QSize(400, 270), room), "next");
}

void tst_WufferController::aNewTimerIsShownInFront()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    controller.newWuffer();
    const std::vector<Wuffer *> timers = WufferApplication::getWuffers();
    QCOMPARE(timers.size(), std::size_t(2));
    QVERIFY(QTest::qWaitForWindowActive(timers[1]->window()));
}

void tst_WufferController::startingAllLeavesRunningTimersAlone()
{
    TimerFixture t;
    WufferController controller;
    t.startCountdown(60);
    WufferApplication::instance().openWuffer().setFieldsWithTimeLeft(30);
    t.pass(10.04);
    controller.startAllWuffers();
    for (const Wuffer *timer : WufferApplication::getWuffers())
        QVERIFY(timer->isRunning());
    QCOMPARE(t.display(), QStringLiteral("49s"));
}

void tst_WufferController::startingAllTwiceChangesNothing()
{
    TimerFixture t;
    WufferController controller;
    t.typeDuration(0, 1, 0);
    controller.startAllWuffers();
    const NoticeCounter notices(QStringLiteral("statusChanged"));
    controller.startAllWuffers();
    QVERIFY(t.timer.isRunning());
    QCOMPARE(notices.count, 0);
}

void tst_WufferController::theOtherWindowsAreShownAndActive_data()
{
    QTest::addColumn<QString>("title");
    for (const char *title : {"Preferences", "Converter", "Measurements"})
        QTest::newRow(title) << QString::fromLatin1(title);
}

void tst_WufferController::theOtherWindowsAreShownAndActive()
{
    QFETCH(const QString, title);
    const TimerFixture t;
    WufferController controller;
    t.timer.showWufferWindow();
    const QHash<QString, WufferController::Operation> operations{
        {QStringLiteral("Preferences"), &WufferController::showPreferences},
        {QStringLiteral("Converter"), &WufferController::showConverter},
        {QStringLiteral("Measurements"), &WufferController::showMeasurements},
    };
    (controller.*operations.value(title))();
    QTRY_VERIFY(QApplication::activeWindow() &&
                QApplication::activeWindow()->windowTitle() == title);
}

void tst_WufferController::theOtherWindowsAreMadeWhenAskedFor()
{
    const TestServices services;
    WufferController controller;
    controller.awakeFromNib();
    const auto windows = QApplication::topLevelWidgets();
    QVERIFY(!std::ranges::any_of(windows, [](const QWidget *window) {
        return window->findChild<NumberField *>() || window->findChild<MeasurementsPanel *>();
    }));
}

void tst_WufferController::theConverterAwaitsANumber()
{
    const TestServices services;
    WufferController controller;
    controller.showConverter();
    QTRY_VERIFY(qobject_cast<NumberField *>(QApplication::focusWidget()));
    auto &field = static_cast<NumberField &>(*QApplication::focusWidget());
    QCOMPARE(field.objectName(), QStringLiteral("_millilitersField"));
    QTest::keyClicks(&field, QStringLiteral("250"));
    QCOMPARE(services.defaults.floatForKey(QStringLiteral("mLValue")), 250.0F);
    // A window that is shown again is unchanged.
    field.window()->close();
    controller.showConverter();
    QCOMPARE(field.text(), QStringLiteral("250"));
}

void tst_WufferController::theMeasurementsAreShown()
{
    const TestServices services;
    WufferController controller;
    controller.showMeasurements();
    QTRY_VERIFY(qobject_cast<MeasurementsPanel *>(QApplication::focusWidget()));
    const QWidget &panel = *QApplication::focusWidget();
    QVERIFY(panel.width() >= panel.sizeHint().width());
}

void tst_WufferController::escapeClosesTheConverterAndTheMeasurements_data()
{
    QTest::addColumn<WufferController::Operation>("show");
    QTest::newRow("converter") << &WufferController::showConverter;
    QTest::newRow("measurements") << &WufferController::showMeasurements;
}

void tst_WufferController::escapeClosesTheConverterAndTheMeasurements()
{
    QFETCH(const WufferController::Operation, show);
    const TestServices services;
    WufferController controller;
    (controller.*show)();
    QTRY_VERIFY(QApplication::focusWidget());
    QWidget *window = QApplication::activeWindow();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!window->isVisible());
}

void tst_WufferController::aWindowShownAgainIsTheSame()
{
    const TestServices services;
    WufferController controller;
    controller.showConverter();
    const auto windows = QApplication::topLevelWidgets().size();
    controller.showConverter();
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
}

void tst_WufferController::aMinimizedWindowIsShownAgain()
{
    const TestServices services;
    WufferController controller;
    controller.showConverter();
    QTRY_VERIFY(QApplication::activeWindow());
    QWidget *window = QApplication::activeWindow();
    window->showMinimized();
    controller.showConverter();
    QVERIFY(!window->isMinimized());
}

void tst_WufferController::theWebPageIsOpened()
{
    const TestServices services;
    WufferController controller;
    controller.donate();
    QCOMPARE(services.desktop.opened.size(), std::size_t(1));
    const QUrl page = services.desktop.opened.front();
    QVERIFY2(page.isLocalFile(), qPrintable(page.toString()));
    QVERIFY2(QFile::exists(page.toLocalFile()), qPrintable(page.toLocalFile()));
}

void tst_WufferController::everyItemOfTheControllerIsEnabled()
{
    const TestServices services;
    const WufferController controller;
    QVERIFY(controller.validateMenuItem(&WufferController::newWuffer));
    QVERIFY(controller.validateMenuItem(&WufferController::startAllWuffers));
}

WUFFER_TEST(tst_WufferController)
#include "tst_WufferController.moc"
