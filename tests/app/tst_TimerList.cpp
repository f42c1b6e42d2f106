#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

/// The list of the open timers in the Window menu, and the item that keeps one of them on top.
class tst_TimerList final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itListsTheTimersInTheOrderOfTheirMaking();
    void aRunningTimerShowsItsTime();
    void theActiveOneIsChecked();
    void withoutAnActiveTimerNoneIsChecked();
    void choosingOneBringsItToTheFront();
    void choosingAMinimizedOneBringsItBack();
    void namesAreShownAsTheyAre();
    void itIsFilledAnewWheneverTheMenuOpens();
    void oneThatClosesMeanwhileCannotBeChosen();
    void withoutAWindowManagerNothingIsKeptOnTop();

private:
    /// The items of the Window menu after it has opened.
    static QMenu &opened()
    {
        const WufferWindow &window = *WufferApplication::getWuffers().front()->window();
        QMenu &made = menu(window, QStringLiteral("Window"));
        Q_EMIT made.aboutToShow();
        return made;
    }
    static QList<QAction *> items() { return opened().actions().mid(6); }
    static QString checked()
    {
        QStringList texts;
        for (const QAction *item : items()) {
            if (item->isChecked())
                texts << item->text();
        }
        return texts.join(QLatin1Char('|'));
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
        for (const char *name : {"Tea", "", "Eggs"}) {
            _controller->newWuffer();
            _timers = WufferApplication::getWuffers();
            child<QLineEdit>(*_timers.back()->window(), "_titleField")
                .setText(QString::fromLatin1(name));
        }
        activate(*_timers[0]->window());
    }
    void cleanup()
    {
        _controller.reset();
        _services.reset();
    }
};

void tst_TimerList::itListsTheTimersInTheOrderOfTheirMaking()
{
    activate(*_timers[2]->window());
    const QStringList texts{QStringLiteral("Minimize"),
                            QStringLiteral("Keep on Top"),
                            QStringLiteral("-"),
                            QStringLiteral("Converter"),
                            QStringLiteral("Measurements"),
                            QStringLiteral("-"),
                            QStringLiteral("Tea - 0h 0m 0s"),
                            QStringLiteral("Wuffer - 0h 0m 0s"),
                            QStringLiteral("Eggs - 0h 0m 0s")};
    QCOMPARE(textsOf(opened()), texts);
}

void tst_TimerList::aRunningTimerShowsItsTime()
{
    _timers[0]->setFieldsWithTimeLeft(300);
    _timers[0]->goPressed();
    _timers[1]->stopwatch();
    _timers[1]->goPressed();
    _services->clock.advance(61.1);
    QCOMPARE(items().at(0)->text(), QStringLiteral("Tea - 3m 58s"));
    QCOMPARE(items().at(1)->text(), QStringLiteral("Wuffer - 1m 1s"));
    QCOMPARE(items().at(2)->text(), QStringLiteral("Eggs - 0h 0m 0s"));
}

void tst_TimerList::theActiveOneIsChecked()
{
    QCOMPARE(checked(), QStringLiteral("Tea - 0h 0m 0s"));
    activate(*_timers[1]->window());
    QCOMPARE(checked(), QStringLiteral("Wuffer - 0h 0m 0s"));
}

void tst_TimerList::withoutAnActiveTimerNoneIsChecked()
{
    _controller->showConverter();
    QTRY_VERIFY(!WufferApplication::keyWuffer());
    QCOMPARE(checked(), QString());
}

void tst_TimerList::choosingOneBringsItToTheFront()
{
    items().at(2)->trigger();
    QTRY_COMPARE(WufferApplication::keyWuffer(), _timers[2]);
    QCOMPARE(checked(), QStringLiteral("Eggs - 0h 0m 0s"));
}

void tst_TimerList::choosingAMinimizedOneBringsItBack()
{
    _timers[1]->window()->showMinimized();
    activate(*_timers[0]->window());
    items().at(1)->trigger();
    QTRY_COMPARE(WufferApplication::keyWuffer(), _timers[1]);
    QVERIFY(!_timers[1]->window()->isMinimized());
}

void tst_TimerList::namesAreShownAsTheyAre()
{
    auto &name = child<QLineEdit>(*_timers[0]->window(), "_titleField");
    name.setText(QStringLiteral("Fish & <b>Chips"));
    QCOMPARE(items().at(0)->text(), QStringLiteral("Fish && <b>Chips - 0h 0m 0s"));
    name.setText(QString(1000, QLatin1Char('x')));
    QVERIFY(items().at(0)->text().length() < 100);
    QVERIFY(items().at(0)->text().endsWith(QStringLiteral("x - 0h 0m 0s")));
}

void tst_TimerList::itIsFilledAnewWheneverTheMenuOpens()
{
    QCOMPARE(items().size(), 3);
    _timers[1]->window()->close();
    _controller->newWuffer();
    _controller->newWuffer();
    _timers[2]->setFieldsWithTimeLeft(60);
    QStringList texts;
    for (const QAction *item : items())
        texts << item->text();
    const QStringList expected{QStringLiteral("Tea - 0h 0m 0s"), QStringLiteral("Eggs - 0h 1m 0s"),
                               QStringLiteral("Wuffer - 0h 0m 0s"),
                               QStringLiteral("Wuffer - 0h 0m 0s")};
    QCOMPARE(texts, expected);
}

void tst_TimerList::oneThatClosesMeanwhileCannotBeChosen()
{
    QAction *item = items().at(1);
    const QPointer<WufferWindow> window = _timers[1]->window();
    window->close();
    item->trigger();
    QVERIFY(!item->isEnabled());
    QVERIFY(window && !window->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    item->trigger();
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(2));
}

void tst_TimerList::withoutAWindowManagerNothingIsKeptOnTop()
{
    QAction &item = *opened().actions().at(1);
    QVERIFY(item.isCheckable());
    QVERIFY(!item.isEnabled());
    QVERIFY(!item.isChecked());
    QVERIFY(item.shortcuts().isEmpty());
}

WUFFER_TEST(tst_TimerList)
#include "tst_TimerList.moc"
