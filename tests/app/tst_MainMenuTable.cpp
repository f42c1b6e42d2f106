#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QAbstractButton>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

/// The texts and keys in the menus, and the items that show the state of a timer.
class tst_MainMenuTable final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyItemHasAMnemonicOfItsOwn();
    void quitAndCloseHaveTheirKeysOnEveryDesktop();
    void thePlatformsOwnKeysStayBeside();
    void aNewTimerIsCalledTheSameEverywhere();
    void theFirstItemIsTheButton();
    void theFirstItemFollowsTheChain();
    void theFirstItemIsRightWhenAChainHasRun();
    void theFirstItemDoesWhatTheButtonDoes();
    void theFirstItemIsUpdatedWhenTheMenuOpens();
    void withoutATimerThereIsNothingToStartOrRename();
    void renameGoesToTheName();
    void renameSelectsANameThatIsBeingEdited();

private:
    static Wuffer &newest() { return *WufferApplication::getWuffers().back(); }
    static QMenu &timerMenu() { return menu(*newest().window(), QStringLiteral("Timer")); }
    static QAction &first() { return *timerMenu().actions().at(0); }
    static QAction &rename() { return *timerMenu().actions().at(1); }
    /// The text of the first item of the Timer menu; in brackets while the item is disabled.
    static QString firstItem()
    {
        return first().isEnabled() ? first().text() : QStringLiteral("(%1)").arg(first().text());
    }
    static QLineEdit &name(const Wuffer &timer)
    {
        return child<QLineEdit>(*timer.window(), "_titleField");
    }
    /// Ends the alarm that has just begun.
    void endAlarm()
    {
        _services->sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
        _services->clock.advance(0.3);
    }

    // Each test gets new services and one timer, which is active.
    std::unique_ptr<TestServices> _services;
    std::unique_ptr<WufferController> _controller;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _services = std::make_unique<TestServices>();
        _controller = std::make_unique<WufferController>();
        _controller->awakeFromNib();
        activate(*newest().window());
    }
    void cleanup()
    {
        _controller.reset();
        _services.reset();
    }
};

namespace
{
/// Whether the program uses this text elsewhere, too; such a text has no mnemonic.
bool isFixed(const QString &text)
{
    static const QRegularExpression fixed(
        QStringLiteral("^(Start|Stopwatch|More Options|Mute All|Save Wuffer to Preset|Shortcut: .*|"
                       ".* - \\d+h \\d+m \\d+s\\)?)$"));
    return fixed.match(text).hasMatch();
}

/// The menu and its submenus.
QList<QMenu *> withSubmenus(QMenu &menu)
{
    QList<QMenu *> menus{&menu};
    for (const QAction *item : menu.actions()) {
        if (item->menu())
            menus << withSubmenus(*item->menu());
    }
    return menus;
}

/// Fails if an item has no mnemonic, or the same as another item.
void checkMnemonics(const QList<QAction *> &items)
{
    QSet<QString> letters;
    for (const QAction *item : items) {
        if (item->isSeparator() || isFixed(item->text()))
            continue;
        const QString letter = QKeySequence::mnemonic(item->text()).toString();
        QVERIFY2(!letter.isEmpty(), qPrintable(item->text()));
        QVERIFY2(!letters.contains(letter), qPrintable(item->text()));
        letters << letter;
    }
}
} // namespace

void tst_MainMenuTable::everyItemHasAMnemonicOfItsOwn()
{
    _controller->newWuffer();
    const QList<QAction *> titles = newest().window()->menuBar()->actions();
    checkMnemonics(titles);
    int menus = 0;
    for (const QAction *title : titles) {
        for (QMenu *each : withSubmenus(*title->menu())) {
            Q_EMIT each->aboutToShow();
            checkMnemonics(each->actions());
            ++menus;
        }
    }
    // The five menus of the menu bar and two submenus.
    QCOMPARE(menus, 7);
}

void tst_MainMenuTable::quitAndCloseHaveTheirKeysOnEveryDesktop()
{
    // The offscreen platform has no standard key for Quit, like some desktops.
    QVERIFY(QKeySequence::keyBindings(QKeySequence::Quit).isEmpty());
    const QList<QAction *> file = menu(*newest().window(), QStringLiteral("File")).actions();
    QCOMPARE(file.last()->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    QCOMPARE(file.at(file.size() - 2)->shortcut(), QKeySequence(QStringLiteral("Ctrl+W")));
}

void tst_MainMenuTable::thePlatformsOwnKeysStayBeside()
{
    const QList<QAction *> file = menu(*newest().window(), QStringLiteral("File")).actions();
    const QList<QKeySequence> keys = file.at(file.size() - 2)->shortcuts();
    const QList<QKeySequence> own = QKeySequence::keyBindings(QKeySequence::Close);
    QVERIFY(own.size() > 1);
    for (const QKeySequence &each : own)
        QCOMPARE(keys.count(each), 1);
}

void tst_MainMenuTable::aNewTimerIsCalledTheSameEverywhere()
{
    const QAction &item = *menu(*newest().window(), QStringLiteral("File")).actions().at(0);
    const QString name = QString(item.text()).remove(QLatin1Char('&'));
    QCOMPARE(name, QStringLiteral("New Timer"));
    newest().window()->close();
    QTRY_VERIFY(QApplication::activeWindow() != nullptr);
    QCOMPARE(child<QAbstractButton>(*QApplication::activeWindow(), "_newTimerButton").text(), name);
    QFile entry(QFINDTESTDATA("../packaging/org.wuffer.Wuffer.desktop"));
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QString action = QString::fromUtf8(entry.readAll())
                               .section(QStringLiteral("[Desktop Action new-timer]\n"), 1, 1)
                               .section(QLatin1Char('\n'), 0, 0);
    QCOMPARE(action, QStringLiteral("Name=") + name);
}

void tst_MainMenuTable::theFirstItemIsTheButton()
{
    QVERIFY(first().shortcuts().isEmpty());
    QCOMPARE(firstItem(), QStringLiteral("Start"));
    newest().setFieldsWithTimeLeft(1);
    newest().goPressed();
    QCOMPARE(firstItem(), QStringLiteral("Stop"));
    _services->clock.advance(1.1);
    QCOMPARE(firstItem(), QStringLiteral("Reset"));
    endAlarm();
    QCOMPARE(firstItem(), QStringLiteral("Start"));
}

void tst_MainMenuTable::theFirstItemFollowsTheChain()
{
    Wuffer &head = newest();
    _controller->newWuffer();
    Wuffer &tail = newest();
    activate(*tail.window());
    head.setTargetWuffer(&tail);
    QCOMPARE(firstItem(), QStringLiteral("(Chained)"));
    activate(*head.window());
    QCOMPARE(firstItem(), QStringLiteral("Start Chain"));
    tail.window()->close();
    QCOMPARE(first().text(), QStringLiteral("Start"));
}

void tst_MainMenuTable::theFirstItemIsRightWhenAChainHasRun()
{
    Wuffer &head = newest();
    _controller->newWuffer();
    Wuffer &tail = newest();
    activate(*tail.window());
    head.setTargetWuffer(&tail);
    tail.setFieldsWithTimeLeft(1);
    tail.goPressed();
    QCOMPARE(firstItem(), QStringLiteral("Stop"));
    _services->clock.advance(1.1);
    endAlarm();
    // The link remains, so only the head can start the chain again.
    QVERIFY(!tail.goButton().isEnabled());
    QCOMPARE(firstItem(), QStringLiteral("(Chained)"));
}

void tst_MainMenuTable::theFirstItemDoesWhatTheButtonDoes()
{
    newest().setFieldsWithTimeLeft(60);
    first().trigger();
    QVERIFY(newest().isRunning());
    first().trigger();
    QVERIFY(!newest().isRunning());
}

void tst_MainMenuTable::theFirstItemIsUpdatedWhenTheMenuOpens()
{
    first().setText(QStringLiteral("old"));
    first().setEnabled(false);
    Q_EMIT timerMenu().aboutToShow();
    QCOMPARE(firstItem(), QStringLiteral("Start"));
}

void tst_MainMenuTable::withoutATimerThereIsNothingToStartOrRename()
{
    newest().goPressed();
    QVERIFY(rename().isEnabled());
    _controller->showConverter();
    QTRY_VERIFY(!WufferApplication::keyWuffer());
    QCOMPARE(firstItem(), QStringLiteral("(Start)"));
    QVERIFY(!rename().isEnabled());
}

void tst_MainMenuTable::renameGoesToTheName()
{
    Wuffer &timer = newest();
    name(timer).setText(QStringLiteral("Tea"));
    QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_F2);
    QVERIFY(name(timer).hasFocus());
    QTest::keyClicks(&name(timer), QStringLiteral("Eggs"));
    QCOMPARE(timer.title(), QStringLiteral("Eggs"));
    // Also while the timer runs.
    timer.goPressed();
    QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_F2);
    QCOMPARE(name(timer).selectedText(), QStringLiteral("Eggs"));
}

void tst_MainMenuTable::renameSelectsANameThatIsBeingEdited()
{
    name(newest()).setText(QStringLiteral("Tea"));
    name(newest()).setFocus();
    name(newest()).setCursorPosition(1);
    rename().trigger();
    QCOMPARE(name(newest()).selectedText(), QStringLiteral("Tea"));
}

WUFFER_TEST(tst_MainMenuTable)
#include "tst_MainMenuTable.moc"
