#include "app/HomeWindow.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "base/NotificationCenter.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

/// The window that the program shows when no other window is open.
class tst_HomeWindow final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsThereWhenNothingOpensAtLaunch();
    void itIsNotThereBesideATimer();
    void itComesWhenTheLastWindowCloses();
    void itStaysAwayWhileAnotherTimerOfAChainRuns();
    void itStaysAwayWhileAMinimizedTimerIsOpen();
    void itGoesWhenAnotherWindowComes();
    void itComesAgain();
    void aNewTimerOpensFromIt();
    void everyPresetOpensFromIt();
    void namesOfPresetsAreShownAsTheyAre();
    void longNamesAreElidedAndShownInFullByTheToolTip();
    void aSavedPresetIsShownAtOnce();
    void itHasTheMenus();
    // These come last: a program that has ended opens no more windows.
    void closingItEndsTheProgram();
    void quittingShowsNone();
};

namespace
{
struct Program : TestServices
{
    WufferController controller;

    /// Launches the program with the setting that opens no timer.
    void launch()
    {
        defaults.setObject(QStringLiteral("Do Nothing"), QStringLiteral("launchBehavior"));
        controller.awakeFromNib();
    }
};

/// The home window; null if it is not open.
HomeWindow *home()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *candidate = qobject_cast<HomeWindow *>(window);
        if (candidate && candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

/// The home window's buttons for presets, in the order of the list.
QList<QPushButton *> presets()
{
    QList<QPushButton *> buttons = home()->findChildren<QPushButton *>();
    buttons.removeIf([](const QPushButton *button) {
        return button->objectName() == QStringLiteral("_newTimerButton");
    });
    return buttons;
}

QPushButton &newTimerButton()
{
    return *home()->findChild<QPushButton *>(QStringLiteral("_newTimerButton"));
}
} // namespace

void tst_HomeWindow::itIsThereWhenNothingOpensAtLaunch()
{
    Program program;
    program.launch();
    QVERIFY(home());
    QVERIFY(QTest::qWaitForWindowActive(home()));
    QVERIFY(newTimerButton().hasFocus());
}

void tst_HomeWindow::itIsNotThereBesideATimer()
{
    Program program;
    program.controller.awakeFromNib();
    QVERIFY(!home());
}

void tst_HomeWindow::itComesWhenTheLastWindowCloses()
{
    Program program;
    program.controller.awakeFromNib();
    program.controller.newWuffer();
    program.controller.showConverter();
    QTRY_VERIFY(QApplication::activeWindow() &&
                QApplication::activeWindow()->windowTitle() == QStringLiteral("Converter"));
    QWidget *converter = QApplication::activeWindow();
    for (Wuffer *timer : WufferApplication::getWuffers())
        timer->window()->close();
    QVERIFY(!home());
    converter->close();
    QTRY_VERIFY(home());
}

void tst_HomeWindow::itStaysAwayWhileAnotherTimerOfAChainRuns()
{
    Program program;
    program.controller.awakeFromNib();
    program.controller.newWuffer();
    Wuffer &first = *WufferApplication::getWuffers().front();
    Wuffer &second = *WufferApplication::getWuffers().back();
    first.setTargetWuffer(&second);
    second.goPressed();
    first.window()->close();
    QCoreApplication::processEvents();
    QVERIFY(!home());
    QVERIFY(second.isRunning());
    QVERIFY(!second.isChained());
    second.window()->close();
    QTRY_VERIFY(home());
}

void tst_HomeWindow::itStaysAwayWhileAMinimizedTimerIsOpen()
{
    Program program;
    program.controller.awakeFromNib();
    program.controller.newWuffer();
    WufferApplication::getWuffers().front()->window()->showMinimized();
    WufferApplication::getWuffers().back()->window()->close();
    QCoreApplication::processEvents();
    QVERIFY(!home());
}

void tst_HomeWindow::itGoesWhenAnotherWindowComes()
{
    Program program;
    program.launch();
    program.controller.showConverter();
    QVERIFY(!home());
}

void tst_HomeWindow::itComesAgain()
{
    Program program;
    program.launch();
    for (int time = 0; time < 3; ++time) {
        program.controller.newWuffer();
        QVERIFY(!home());
        WufferApplication::getWuffers().front()->window()->close();
        QTRY_VERIFY(home());
    }
}

void tst_HomeWindow::closingItEndsTheProgram()
{
    Program program;
    program.launch();
    const QSignalSpy closed(home(), &HomeWindow::closed);
    QTimer::singleShot(0, home(), &QWidget::close);
    // exec() returns only when the program ends.
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(closed.count(), 1);
}

void tst_HomeWindow::quittingShowsNone()
{
    Program program;
    program.controller.awakeFromNib();
    bool shown = false;
    connect(&WufferApplication::instance(), &WufferApplication::windowShown, this,
            [&] { shown = true; });
    QTimer::singleShot(0, &program.controller, &WufferController::quit);
    QCOMPARE(QCoreApplication::exec(), 0);
    // Delivers the events that were queued while the windows closed.
    QCoreApplication::processEvents();
    QVERIFY(!shown);
    QVERIFY(!home());
}

void tst_HomeWindow::aNewTimerOpensFromIt()
{
    Program program;
    program.launch();
    QVERIFY(QTest::qWaitForWindowActive(home()));
    QTest::keyClick(home()->focusWidget(), Qt::Key_Return);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(1));
}

void tst_HomeWindow::everyPresetOpensFromIt()
{
    Program program;
    program.launch();
    QCOMPARE(presets().size(), 10);
    QStringList opened;
    for (int place = 0; place < 10; ++place) {
        presets().at(place)->click();
        opened << WufferApplication::getWuffers().front()->title();
        WufferApplication::getWuffers().front()->window()->close();
        QTRY_VERIFY(home());
    }
    QCOMPARE(opened.constFirst(), QStringLiteral("Preset 1"));
    QCOMPARE(opened.constLast(), QStringLiteral("Preset 0"));
    QCOMPARE(QSet<QString>(opened.begin(), opened.end()).size(), 10);
}

void tst_HomeWindow::namesOfPresetsAreShownAsTheyAre()
{
    Program program;
    program.defaults.setObject(
        QVariantMap{{QStringLiteral("title"), QStringLiteral("<b>Tea</b> & cake")}},
        QStringLiteral("Preset 1"));
    program.launch();
    QCOMPARE(presets().constFirst()->text(), QStringLiteral("<b>Tea</b> && cake - 0h 0m 0s"));
    QCOMPARE(presets().constFirst()->accessibleName(),
             QStringLiteral("<b>Tea</b> & cake - 0h 0m 0s"));
    QCOMPARE(presets().constFirst()->toolTip(), QString());
}

void tst_HomeWindow::longNamesAreElidedAndShownInFullByTheToolTip()
{
    Program program;
    const QString name = QStringLiteral("<i>&soup</i>\n").repeated(1000);
    program.defaults.setObject(QVariantMap{{QStringLiteral("title"), name}},
                               QStringLiteral("Preset 2"));
    program.launch();
    const QPushButton &button = *presets().at(1);
    QVERIFY(home()->width() < 900);
    QVERIFY(button.text().contains(QStringLiteral("…")));
    QVERIFY(button.toolTip().contains(QStringLiteral("&lt;i&gt;&amp;soup")));
    QVERIFY(button.accessibleName().startsWith(QStringLiteral("<i>&soup</i> <i>")));
}

void tst_HomeWindow::aSavedPresetIsShownAtOnce()
{
    Program program;
    program.launch();
    program.defaults.setObject(QVariantMap{{QStringLiteral("title"), QStringLiteral("Rice")}},
                               QStringLiteral("Preset 3"));
    NotificationCenter::defaultCenter().postNotificationName(
        QStringLiteral("presetsChangedNotification"), nullptr);
    QCOMPARE(presets().at(2)->text(), QStringLiteral("Rice - 0h 0m 0s"));
}

void tst_HomeWindow::itHasTheMenus()
{
    Program program;
    program.launch();
    QCOMPARE(home()->menuBar()->actions().size(), 5);
    QVERIFY(QTest::qWaitForWindowActive(home()));
    QTest::keyClick(home(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(1));
}

WUFFER_TEST(tst_HomeWindow)
#include "tst_HomeWindow.moc"
