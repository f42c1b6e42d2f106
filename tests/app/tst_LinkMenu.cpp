#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QToolButton>

/// The menu that links timers without a mouse.
class tst_LinkMenu final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itListsTheOtherTimers();
    void choosingATimerLinksIt();
    void choosingNoneCutsTheLink();
    void choosingWhatIsChosenChangesNothing();
    void aTimerThatClosedMeanwhileIsNotLinked();
    void itNeedsAnActiveTimer();
    void keysAloneAreEnough();
    void theButtonInTheDrawerOpensTheListOfItsTimer();
    void theListUnderTheButtonGoesWhenItCloses();
    void theListUnderTheButtonGoesWithItsWindow();
    void aTimerAloneIsOfferedNoOther();

private:
    /// Presses the button in the timer's drawer, and returns the list that opens.
    static QMenu &listUnderTheButton(const Wuffer &timer)
    {
        timer.window()->show();
        auto &button = child<QToolButton>(*timer.window(), "_linkButton");
        button.show();
        button.click();
        auto *list = button.findChild<QMenu *>();
        if (!list || !list->isVisible())
            qFatal("the list has not opened");
        return *list;
    }
    static QMenu &links(const WufferWindow &window)
    {
        return menu(window, QStringLiteral("When Finished, Start"));
    }
    static QMenu &opened(const WufferWindow &window)
    {
        activate(const_cast<WufferWindow &>(window));
        QMenu &menu = links(window);
        Q_EMIT menu.aboutToShow();
        return menu;
    }

    std::unique_ptr<TestServices> _services;
    std::unique_ptr<WufferController> _controller;
    std::vector<Wuffer *> _timers;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _services = std::make_unique<TestServices>();
        _controller = std::make_unique<WufferController>();
        for (const char *name : {"A", "B & C", "D"}) {
            _controller->newWuffer();
            _timers = WufferApplication::getWuffers();
            child<QLineEdit>(*_timers.back()->window(), "_titleField")
                .setText(QString::fromLatin1(name));
        }
    }
    void cleanup()
    {
        _controller.reset();
        _services.reset();
    }
};

void tst_LinkMenu::itListsTheOtherTimers()
{
    const QMenu &menu = opened(*_timers[0]->window());
    const QStringList texts{QStringLiteral("None"), QStringLiteral("-"),
                            QStringLiteral("B  C - 0h 0m 0s"), QStringLiteral("D - 0h 0m 0s")};
    QCOMPARE(textsOf(menu), texts);
    QVERIFY(menu.actions().at(2)->text().contains(QStringLiteral("&&")));
    QVERIFY(menu.actions().at(0)->isChecked());
}

void tst_LinkMenu::choosingATimerLinksIt()
{
    opened(*_timers[0]->window()).actions().at(3)->trigger();
    QCOMPARE(_timers[0]->getTargetWuffer(), _timers[2]);
    const QMenu &menu = opened(*_timers[0]->window());
    QVERIFY(menu.actions().at(3)->isChecked());
    QVERIFY(!menu.actions().at(0)->isChecked());
}

void tst_LinkMenu::choosingNoneCutsTheLink()
{
    _timers[0]->setTargetWuffer(_timers[1]);
    opened(*_timers[0]->window()).actions().at(0)->trigger();
    QVERIFY(!_timers[0]->isChained());
}

void tst_LinkMenu::choosingWhatIsChosenChangesNothing()
{
    _timers[0]->setPreset(1);
    opened(*_timers[0]->window()).actions().at(0)->trigger();
    QCOMPARE(_timers[0]->currentTextColor(), QColor(Qt::blue));
}

void tst_LinkMenu::aTimerThatClosedMeanwhileIsNotLinked()
{
    _timers[0]->setTargetWuffer(_timers[1]);
    QMenu &menu = opened(*_timers[0]->window());
    _timers[2]->window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    menu.actions().at(3)->trigger();
    QCOMPARE(_timers[0]->getTargetWuffer(), _timers[1]);
}

void tst_LinkMenu::itNeedsAnActiveTimer()
{
    const WufferWindow &window = *_timers[0]->window();
    activate(*_timers[0]->window());
    QVERIFY(links(window).menuAction()->isEnabled());
    _controller->showConverter();
    QTRY_VERIFY(!links(window).menuAction()->isEnabled());
}

void tst_LinkMenu::keysAloneAreEnough()
{
    activate(*_timers[0]->window());
    QMenu &timerMenu = menu(*_timers[0]->window(), QStringLiteral("Timer"));
    timerMenu.popup({});
    QTest::keyClick(&timerMenu, Qt::Key_I);
    QMenu &menu = links(*_timers[0]->window());
    QTRY_VERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    QCOMPARE(_timers[0]->getTargetWuffer(), _timers[1]);
}

void tst_LinkMenu::theButtonInTheDrawerOpensTheListOfItsTimer()
{
    // The list belongs to the button's timer, even if another timer's window is active.
    activate(*_timers[2]->window());
    QMenu &list = listUnderTheButton(*_timers[0]);
    const QStringList texts{QStringLiteral("None"), QStringLiteral("-"),
                            QStringLiteral("B  C - 0h 0m 0s"), QStringLiteral("D - 0h 0m 0s")};
    QCOMPARE(textsOf(list), texts);
    list.setActiveAction(list.actions().at(2));
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(_timers[0]->getTargetWuffer(), _timers[1]);
    QVERIFY(!_timers[2]->isChained());
}

void tst_LinkMenu::theListUnderTheButtonGoesWhenItCloses()
{
    const QPointer<QMenu> list = &listUnderTheButton(*_timers[0]);
    list->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!list);
    QVERIFY(!_timers[0]->isChained());
}

void tst_LinkMenu::theListUnderTheButtonGoesWithItsWindow()
{
    const QPointer<QMenu> list = &listUnderTheButton(*_timers[0]);
    _timers[0]->window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!list);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(2));
}

void tst_LinkMenu::aTimerAloneIsOfferedNoOther()
{
    _timers[1]->window()->close();
    _timers[2]->window()->close();
    QMenu &list = listUnderTheButton(*_timers[0]);
    const QStringList texts{QStringLiteral("None"), QStringLiteral("-"),
                            QStringLiteral("No Other Timer Is Open")};
    QCOMPARE(textsOf(list), texts);
    QVERIFY(!list.actions().last()->isEnabled());
    list.close();
}

WUFFER_TEST(tst_LinkMenu)
#include "tst_LinkMenu.moc"
