#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

/// The menus: their items, the timer that an item acts on, and when it is enabled.
class tst_MainMenu final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyWindowCarriesTheSameMenus();
    void noTwoItemsShareAShortcut();
    void onlyThePresetsUseDigits();
    void aTimersItemActsOnTheActiveTimer();
    void itemsFollowTheActiveWindow();
    void itemsFollowTheStateOfTheTimer();
    void itemsAreUpdatedWhenTheMenuOpens();
    void withoutAnActiveTimerItsItemsAreDisabled();
    void aShortcutObeysTheSameRules();
    void closeClosesTheActiveWindow();
    void minimizeMinimizesTheActiveWindow();
    void newOpensAnotherTimer();
    void muteIsRenamedWithEveryChange();

private:
    static QAction &item(const QMainWindow &window, const QString &text)
    {
        for (const QAction *menu : window.menuBar()->actions()) {
            for (QAction *action : menu->menu()->actions()) {
                if (action->text().remove(QLatin1Char('&')) == text)
                    return *action;
            }
        }
        qFatal("there is no menu item %s", qPrintable(text));
    }
    static void trigger(const QMainWindow &window, const QString &text)
    {
        QAction &action = item(window, text);
        if (!action.isEnabled())
            qFatal("the menu item %s is disabled", qPrintable(text));
        action.trigger();
    }
    static Wuffer &newest() { return *WufferApplication::getWuffers().back(); }
    static void activate(const QMainWindow &window)
    {
        const_cast<QMainWindow &>(window).activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&const_cast<QMainWindow &>(window)));
    }
};

void tst_MainMenu::everyWindowCarriesTheSameMenus()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    controller.newWuffer();
    controller.showConverter();
    QStringList titles;
    for (const QAction *menu : newest().window()->menuBar()->actions())
        titles << menu->text().remove(QLatin1Char('&'));
    const QStringList expected{QStringLiteral("File"), QStringLiteral("Timer"),
                               QStringLiteral("Presets"), QStringLiteral("Window"),
                               QStringLiteral("Help")};
    QCOMPARE(titles, expected);
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (const auto *window = qobject_cast<const QMainWindow *>(widget))
            QCOMPARE(window->menuBar()->actions(), newest().window()->menuBar()->actions());
    }
}

void tst_MainMenu::noTwoItemsShareAShortcut()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    QHash<QString, QString> owners;
    for (const QAction *menu : newest().window()->menuBar()->actions()) {
        for (const QAction *action : menu->menu()->actions()) {
            for (const QKeySequence &shortcut : action->shortcuts()) {
                const QString keys = shortcut.toString();
                QVERIFY2(!owners.contains(keys) || owners[keys] == action->text(),
                         qPrintable(keys));
                owners[keys] = action->text();
            }
        }
    }
    for (const char *keys : {"Ctrl+N", "Ctrl+W", "F11"})
        QVERIFY2(owners.contains(QString::fromLatin1(keys)), keys);
}

void tst_MainMenu::onlyThePresetsUseDigits()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    const QRegularExpression digits(QStringLiteral("(Ctrl|Alt)\\+\\d"));
    for (const QAction *menu : newest().window()->menuBar()->actions()) {
        const bool presets = menu->text().remove(QLatin1Char('&')) == QStringLiteral("Presets");
        for (const QAction *action : menu->menu()->actions())
            QVERIFY(presets || !action->shortcut().toString().contains(digits));
    }
}

void tst_MainMenu::aTimersItemActsOnTheActiveTimer()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    const WufferWindow &first = *newest().window();
    controller.newWuffer();
    const WufferWindow &second = *newest().window();
    activate(first);
    trigger(second, QStringLiteral("Stopwatch"));
    QCOMPARE(first.delegate().statusString(), QStringLiteral("0s"));
    QCOMPARE(second.delegate().statusString(), QStringLiteral("Wuffer"));
}

void tst_MainMenu::itemsFollowTheActiveWindow()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    const WufferWindow &running = *newest().window();
    newest().setFieldsWithTimeLeft(60);
    newest().goPressed();
    controller.newWuffer();
    const WufferWindow &idle = *newest().window();
    activate(running);
    QVERIFY(!item(idle, QStringLiteral("Stopwatch")).isEnabled());
    QVERIFY(item(idle, QStringLiteral("Full Screen")).isEnabled());
    activate(idle);
    QVERIFY(item(idle, QStringLiteral("Stopwatch")).isEnabled());
    QVERIFY(!item(idle, QStringLiteral("Full Screen")).isEnabled());
}

void tst_MainMenu::itemsFollowTheStateOfTheTimer()
{
    TestServices services;
    WufferController controller;
    controller.newWuffer();
    const WufferWindow &window = *newest().window();
    activate(window);
    newest().setFieldsWithTimeLeft(1);
    newest().goPressed();
    QVERIFY(!item(window, QStringLiteral("Stopwatch")).isEnabled());
    services.clock.advance(1.1);
    services.sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
    services.clock.advance(0.3);
    QVERIFY(item(window, QStringLiteral("Stopwatch")).isEnabled());
    newest().stopwatch();
    QVERIFY(item(window, QStringLiteral("Timer")).isEnabled());
    QVERIFY(!item(window, QStringLiteral("Keep Wuffing")).isEnabled());
}

void tst_MainMenu::itemsAreUpdatedWhenTheMenuOpens()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    const WufferWindow &window = *newest().window();
    activate(window);
    QAction &full = item(window, QStringLiteral("Full Screen"));
    full.setEnabled(true);
    QMenu *menu = window.menuBar()->actions().at(1)->menu();
    menu->popup({});
    QVERIFY(!full.isEnabled());
    menu->close();
}

void tst_MainMenu::withoutAnActiveTimerItsItemsAreDisabled()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    const WufferWindow &window = *newest().window();
    activate(window);
    QVERIFY(item(window, QStringLiteral("Reset")).isEnabled());
    controller.showConverter();
    QTRY_VERIFY(!item(window, QStringLiteral("Reset")).isEnabled());
    QVERIFY(item(window, QStringLiteral("New Timer")).isEnabled());
}

void tst_MainMenu::aShortcutObeysTheSameRules()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    Wuffer &timer = newest();
    activate(*timer.window());
    QWindow *window = QGuiApplication::focusWindow();
    timer.setFieldsWithTimeLeft(60);
    QTest::keyClick(window, Qt::Key_F11);
    QVERIFY(!WufferApplication::instance().cancelFullScreenMode());
    timer.goPressed();
    QTest::keyClick(window, Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(timer.statusString(), QStringLiteral("1m 0s"));
    QTest::keyClick(window, Qt::Key_F11);
    QVERIFY(WufferApplication::instance().cancelFullScreenMode());
}

void tst_MainMenu::closeClosesTheActiveWindow()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    controller.newWuffer();
    const WufferWindow &window = *newest().window();
    activate(window);
    trigger(window, QStringLiteral("Close"));
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(1));
}

void tst_MainMenu::minimizeMinimizesTheActiveWindow()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    const WufferWindow &window = *newest().window();
    activate(window);
    trigger(window, QStringLiteral("Minimize"));
    QVERIFY(window.isMinimized());
}

void tst_MainMenu::newOpensAnotherTimer()
{
    const TestServices services;
    WufferController controller;
    controller.newWuffer();
    activate(*newest().window());
    QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(2));
}

void tst_MainMenu::muteIsRenamedWithEveryChange()
{
    TestServices services;
    WufferController controller;
    controller.awakeFromNib();
    const WufferWindow &window = *newest().window();
    activate(window);
    trigger(window, QStringLiteral("Mute All"));
    QVERIFY(services.defaults.boolForKey(QStringLiteral("soundOff")));
    trigger(window, QStringLiteral("Unmute All"));
    QVERIFY(!services.defaults.boolForKey(QStringLiteral("soundOff")));
    QTest::mouseClick(&child<QWidget>(window, "_soundOffImage"), Qt::LeftButton);
    QVERIFY(item(window, QStringLiteral("Unmute All")).isEnabled());
    // From another window, by the keys of the item.
    controller.showPreferences();
    QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != &window);
    QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_M,
                    Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!services.defaults.boolForKey(QStringLiteral("soundOff")));
}

WUFFER_TEST(tst_MainMenu)
#include "tst_MainMenu.moc"
