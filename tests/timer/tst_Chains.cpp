#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kNothing = QStringLiteral("Do Nothing");
const QString kWuffer = QStringLiteral("Start other open Wuffer");
const QColor kRed = QColor::fromRgbF(0.9F, 0, 0);
} // namespace

/// Timers that start each other at their ends.
class tst_Chains final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aSingleTimerIsNotChained();
    void aLinkIsKnownOnBothSides();
    void aLinkIsChosenAsTheFinishAction();
    void aLinkedTimerDoesNotKeepWuffing();
    void everyMemberShowsItsPlace();
    void linksMakeTheseChains_data();
    void linksMakeTheseChains();
    void aTimerIsNotLinkedToItself();
    void linkingToNoTimerCutsTheLink();
    void linkingAgainChangesNothing();
    void closingAMemberLeavesTheOthersAlone();
    void closingARunningMemberCutsItsLinksToo();
    void closingAnEndLeavesTheRestChained_data();
    void closingAnEndLeavesTheRestChained();
    void aClosedTimerIsNotLinked();
    void aLinkedTimerStoresNoFinishActionWhenItCloses();
    void aRunningMemberShowsItsTime();
    void aRunningMemberThatIsUnlinkedCanBeStopped();
    void onlyTheHeadCanBeStarted();
    void aChainRunsFromItsHeadToItsTail();
    void theUsersStopShowsStartUntilTheNextRefresh();
    void theUsersResetStartsNoTimer();
    void aTimerThatIsClosedByItsStartStaysClosed();
    void aTimerThatIsClosedByItsEndDoesNothingMore();
    void aNewNameIsShownByTheTimerBefore();
    void aTailInItsAlarmEndsByItselfWhenMuted();
    void unlinkingShowsTheIdleDisplay();

private:
    static QString chain(const TimerUser &user)
    {
        QString names;
        for (const Wuffer *timer : user.timer.chainedWuffers())
            names += timer->title();
        return names;
    }
};

namespace
{
/// Four timers named A to D.
class FourTimers : public TestServices
{
public:
    FourTimers()
    {
        for (std::size_t index = 0; index < users.size(); ++index)
            users.at(index).titleField.setText(QString(QChar(u'A' + char16_t(index))));
    }
    [[nodiscard]] TimerUser &operator[](QChar name)
    {
        return users.at(std::size_t(name.unicode() - u'A'));
    }
    void link(const QString &first, const QString &second)
    {
        (*this)[first.at(0)].timer.setTargetWuffer(&(*this)[second.at(0)].timer);
    }
    /// Makes links in this order: "A>B A>C".
    void make(const QString &links)
    {
        for (const QString &each : links.split(QLatin1Char(' ')))
            link(each.left(1), each.right(1));
    }
    /// The names of each chain's members, single timers included: "AB C D".
    [[nodiscard]] QString chains() const
    {
        QStringList all;
        for (const TimerUser &user : users) {
            if (user.timer.getTargetingWuffer())
                continue;
            QString names;
            for (const Wuffer *timer : user.timer.chainedWuffers())
                names += timer->title();
            all << names;
        }
        return all.join(QLatin1Char(' '));
    }
    void endAlarm()
    {
        sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
        clock.advance(0.3);
    }

    std::array<TimerUser, 4> users;
    TimerUser &a = users[0];
    TimerUser &b = users[1];
    TimerUser &c = users[2];
};
} // namespace

void tst_Chains::aSingleTimerIsNotChained()
{
    const TimerFixture t;
    QVERIFY(!t.timer.isChained());
    QCOMPARE(t.timer.chainString(), QString());
    QCOMPARE(t.timer.chainedWuffers(), std::vector<Wuffer *>{&t.timer});
    QCOMPARE(t.timer.getTargetWuffer(), nullptr);
    QCOMPARE(t.timer.getTargetingWuffer(), nullptr);
}

void tst_Chains::aLinkIsKnownOnBothSides()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    QCOMPARE(t.a.timer.getTargetWuffer(), &t.b.timer);
    QCOMPARE(t.b.timer.getTargetingWuffer(), &t.a.timer);
    QVERIFY(t.a.timer.isChained());
    QVERIFY(t.b.timer.isChained());
    QVERIFY(!t.c.timer.isChained());
}

void tst_Chains::aLinkIsChosenAsTheFinishAction()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    QCOMPARE(t.a.finish(), kWuffer);
    QCOMPARE(t.b.finish(), kNothing);
    QCOMPARE(t.a.picker().currentText(), QStringLiteral("B - 0h 0m 0s"));
}

void tst_Chains::aLinkedTimerDoesNotKeepWuffing()
{
    FourTimers t;
    t.a.tick("_keepWuffingBox");
    t.b.tick("_keepWuffingBox");
    t.make(QStringLiteral("A>B"));
    QVERIFY(!t.a.part<QCheckBox>("_keepWuffingBox").isChecked());
    QVERIFY(!t.a.part<QCheckBox>("_keepWuffingBox").isEnabled());
    QVERIFY(t.b.part<QCheckBox>("_keepWuffingBox").isChecked());
    t.a.timer.setTargetWuffer(nullptr);
    QVERIFY(t.a.part<QCheckBox>("_keepWuffingBox").isEnabled());
}

void tst_Chains::everyMemberShowsItsPlace()
{
    FourTimers t;
    t.make(QStringLiteral("A>B B>C"));
    const QStringList buttons{QStringLiteral("Start Chain"), QStringLiteral("Chained"),
                              QStringLiteral("Chained")};
    for (int index = 0; index < 3; ++index) {
        const TimerUser &user = t.users.at(std::size_t(index));
        const QString text = QStringLiteral("Wuffer Chain - %1 of 3").arg(index + 1);
        QCOMPARE(user.timer.chainString(), text);
        QCOMPARE(user.elapsed(), text);
        QCOMPARE(user.elapsedColor(), kRed);
        QCOMPARE(user.go(), buttons.at(index));
        QCOMPARE(user.goButton().isEnabled(), index == 0);
        QCOMPARE(chain(user), QStringLiteral("ABC"));
    }
}

void tst_Chains::linksMakeTheseChains_data()
{
    QTest::addColumn<QString>("links");
    QTest::addColumn<QString>("chains");
    QTest::addColumn<QString>("linked");
    const auto row = [](const char *links, const char *chains, const char *linked) {
        QTest::newRow(links) << QString::fromLatin1(links) << QString::fromLatin1(chains)
                             << QString::fromLatin1(linked);
    };
    // The last column names the timers whose finish action is to start another timer.
    row("A>B", "AB C D", "A");
    row("A>B B>A", "BA C D", "B");
    row("A>B B>C", "ABC D", "AB");
    row("A>B B>C C>A", "CAB D", "AC");
    row("A>B B>C B>A", "BA C D", "B");
    row("A>B B>C C>D C>A", "CAB D", "AC");
    row("A>B B>C C>D D>A", "DABC", "ABD");
    row("A>B C>B", "A CB D", "C");
    row("A>B A>C", "AC B D", "A");
    row("A>B C>D A>C", "ACD B", "AC");
    row("A>B C>D B>C", "ABCD", "ABC");
    row("A>B C>D B>D", "ABD C", "AB");
}

void tst_Chains::linksMakeTheseChains()
{
    QFETCH(const QString, links);
    QFETCH(const QString, chains);
    FourTimers t;
    t.make(links);
    // The chains may come in any order.
    QStringList found = t.chains().split(QLatin1Char(' '));
    QStringList expected = chains.split(QLatin1Char(' '));
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
    QString linked;
    for (const TimerUser &user : t.users) {
        const bool starts = user.finish() == kWuffer;
        QVERIFY(starts || user.finish() == kNothing);
        QCOMPARE(user.timer.getTargetWuffer() != nullptr, starts);
        if (starts)
            linked += user.timer.title();
        if (!user.timer.isChained())
            QCOMPARE(user.go(), QStringLiteral("Start"));
        QCOMPARE(user.goButton().isEnabled(), user.timer.getTargetingWuffer() == nullptr);
    }
    QTEST(linked, "linked");
}

void tst_Chains::aTimerIsNotLinkedToItself()
{
    FourTimers t;
    t.make(QStringLiteral("A>A"));
    QVERIFY(!t.a.timer.isChained());
    QCOMPARE(t.a.finish(), kNothing);
    t.make(QStringLiteral("A>B B>B"));
    QCOMPARE(chain(t.a), QStringLiteral("AB"));
}

void tst_Chains::linkingToNoTimerCutsTheLink()
{
    FourTimers t;
    t.make(QStringLiteral("A>B B>C"));
    t.b.timer.setTargetWuffer(nullptr);
    QCOMPARE(chain(t.a), QStringLiteral("AB"));
    QCOMPARE(t.b.finish(), kNothing);
    QCOMPARE(t.c.go(), QStringLiteral("Start"));
    QVERIFY(t.c.goButton().isEnabled());
    QCOMPARE(t.b.elapsed(), QStringLiteral("Wuffer Chain - 2 of 2"));
}

void tst_Chains::linkingAgainChangesNothing()
{
    FourTimers t;
    t.make(QStringLiteral("A>B B>C A>B"));
    QCOMPARE(t.chains(), QStringLiteral("ABC D"));
    QCOMPARE(t.a.finish(), kWuffer);
}

void tst_Chains::closingAMemberLeavesTheOthersAlone()
{
    FourTimers t;
    t.make(QStringLiteral("A>B B>C"));
    const TimerUser &a = t.a;
    const TimerUser &c = t.c;
    t.b.timer.window()->close();
    for (const TimerUser *user : {&a, &c}) {
        QVERIFY(!user->timer.isChained());
        QCOMPARE(user->finish(), kNothing);
        QCOMPARE(user->go(), QStringLiteral("Start"));
        QVERIFY(user->goButton().isEnabled());
    }
    QVERIFY(!t.b.timer.isChained());
}

void tst_Chains::closingARunningMemberCutsItsLinksToo()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.a.startCountdown(60);
    t.a.timer.window()->close();
    QVERIFY(!t.b.timer.isChained());
    QVERIFY(t.b.goButton().isEnabled());
}

void tst_Chains::closingAnEndLeavesTheRestChained_data()
{
    QTest::addColumn<QString>("closed");
    QTest::addColumn<QString>("rest");
    QTest::newRow("the head") << QStringLiteral("A") << QStringLiteral("BC");
    QTest::newRow("the tail") << QStringLiteral("C") << QStringLiteral("AB");
}

void tst_Chains::closingAnEndLeavesTheRestChained()
{
    QFETCH(const QString, closed);
    QFETCH(const QString, rest);
    FourTimers t;
    t.make(QStringLiteral("A>B B>C"));
    t[closed.at(0)].timer.window()->close();
    const TimerUser &head = t[rest.at(0)];
    const TimerUser &tail = t[rest.at(1)];
    QCOMPARE(chain(head), rest);
    QCOMPARE(head.go(), QStringLiteral("Start Chain"));
    QCOMPARE(head.elapsed(), QStringLiteral("Wuffer Chain - 1 of 2"));
    QCOMPARE(tail.go(), QStringLiteral("Chained"));
    QCOMPARE(tail.finish(), kNothing);
}

void tst_Chains::aClosedTimerIsNotLinked()
{
    FourTimers t;
    t.b.timer.window()->close();
    t.make(QStringLiteral("A>B B>C"));
    for (const TimerUser *user : {&t.a, &t.b, &t.c})
        QVERIFY(!user->timer.isChained());
    QCOMPARE(t.a.finish(), kNothing);
}

void tst_Chains::aLinkedTimerStoresNoFinishActionWhenItCloses()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.a.timer.window()->close();
    const QVariantMap stored = t.defaults.dictionaryForKey(QStringLiteral("defaultWufferSettings"));
    QCOMPARE(stored.value(QStringLiteral("title")), QVariant(QStringLiteral("A")));
    QVERIFY(!stored.contains(QStringLiteral("finishOption")));
}

void tst_Chains::aRunningMemberShowsItsTime()
{
    FourTimers t;
    t.a.startCountdown(60);
    t.clock.advance(1);
    const QString elapsed = t.a.elapsed();
    t.make(QStringLiteral("A>B"));
    QCOMPARE(t.a.elapsed(), elapsed);
    QCOMPARE(t.a.go(), QStringLiteral("Stop"));
    QCOMPARE(t.b.elapsed(), QStringLiteral("Wuffer Chain - 2 of 2"));
}

void tst_Chains::aRunningMemberThatIsUnlinkedCanBeStopped()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.b.timer.goPressed();
    t.a.timer.setTargetWuffer(nullptr);
    QVERIFY(t.b.goButton().isEnabled());
    QCOMPARE(t.b.go(), QStringLiteral("Stop"));
}

void tst_Chains::onlyTheHeadCanBeStarted()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.b.timer.showWufferWindow();
    QVERIFY(QTest::qWaitForWindowActive(t.b.timer.window()));
    QTest::keyClick(t.b.timer.window(), Qt::Key_Return);
    t.b.goButton().click();
    QVERIFY(!t.b.timer.isRunning());
    t.a.goButton().click();
    QVERIFY(t.a.timer.isRunning());
}

void tst_Chains::aChainRunsFromItsHeadToItsTail()
{
    FourTimers t;
    for (TimerUser &user : t.users)
        user.typeDuration(0, 0, 5);
    t.make(QStringLiteral("A>B B>C"));
    t.a.goButton().click();
    for (const TimerUser *running : {&t.a, &t.b, &t.c}) {
        for (const TimerUser &user : t.users)
            QCOMPARE(user.timer.isRunning(), &user == running);
        QCOMPARE(running->go(), QStringLiteral("Stop"));
        QVERIFY(running->goButton().isEnabled());
        t.clock.advance(5.1);
        QCOMPARE(running->display(), QStringLiteral("Wuff!"));
        t.endAlarm();
        QCOMPARE(running->elapsed(), running->timer.chainString());
    }
    QVERIFY(t.clock.isIdle());
    QCOMPARE(t.notifications.shown.size(), std::size_t(3));
    QCOMPARE(t.a.go(), QStringLiteral("Start Chain"));
    QCOMPARE(t.c.go(), QStringLiteral("Chained"));
    QCOMPARE(t.chains(), QStringLiteral("ABC D"));
}

void tst_Chains::theUsersStopShowsStartUntilTheNextRefresh()
{
    FourTimers t;
    t.make(QStringLiteral("A>B B>C"));
    t.b.typeDuration(0, 1, 0);
    t.b.timer.goPressed();
    t.b.timer.goPressed();
    QCOMPARE(t.b.go(), QStringLiteral("Start"));
    QVERIFY(t.b.goButton().isEnabled());
    t.a.timer.refreshChainStatusForAllChainedWuffers();
    QCOMPARE(t.b.go(), QStringLiteral("Chained"));
    QVERIFY(!t.b.goButton().isEnabled());
}

void tst_Chains::theUsersResetStartsNoTimer()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.a.startCountdown(1);
    t.clock.advance(1.1);
    QCOMPARE(t.a.go(), QStringLiteral("Reset"));
    t.a.goButton().click();
    t.clock.advance(5);
    QCOMPARE(t.a.go(), QStringLiteral("Start"));
    QVERIFY(!t.b.timer.isRunning());
    QCOMPARE(t.a.timer.getTargetWuffer(), &t.b.timer);
}

void tst_Chains::aTimerThatIsClosedByItsStartStaysClosed()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(observer, QStringLiteral("statusChanged"),
                                                    [&](QObject *timer) {
                                                        if (timer == &t.b.timer)
                                                            t.b.timer.window()->close();
                                                    });
    t.a.timer.handleFinishedBehaviour();
    QVERIFY(!t.b.timer.window()->isVisible());
    QVERIFY(!t.a.timer.isChained());
}

void tst_Chains::aTimerThatIsClosedByItsEndDoesNothingMore()
{
    FourTimers t;
    t.a.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.a.startCountdown(1);
    t.clock.advance(1.1);
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(
        observer, QStringLiteral("statusChanged"), [&](QObject *) { t.a.timer.window()->close(); });
    t.endAlarm();
    QVERIFY(!t.a.timer.isRunning());
    QVERIFY(t.clock.isIdle());
}

void tst_Chains::aNewNameIsShownByTheTimerBefore()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.b.typeName(QStringLiteral("Eggs"));
    QCOMPARE(t.a.picker().currentText(), QStringLiteral("Eggs - 0h 0m 0s"));
    auto &minutes = t.b.part<QLineEdit>("_minutesField");
    minutes.selectAll();
    QTest::keyClicks(&minutes, QStringLiteral("7"));
    QCOMPARE(t.a.picker().currentText(), QStringLiteral("Eggs - 0h 7m 0s"));
}

void tst_Chains::aTailInItsAlarmEndsByItselfWhenMuted()
{
    FourTimers t;
    t.defaults.setObject(1, QStringLiteral("soundOff"));
    NotificationCenter::defaultCenter().postNotificationName(
        QStringLiteral("prefsChangedNotification"));
    t.make(QStringLiteral("A>B"));
    t.b.startCountdown(1);
    t.clock.advance(5.5);
    QVERIFY(t.b.timer.isRunning());
    t.clock.advance(1);
    QVERIFY(!t.b.timer.isRunning());
    QCOMPARE(t.b.go(), QStringLiteral("Chained"));
}

void tst_Chains::unlinkingShowsTheIdleDisplay()
{
    FourTimers t;
    t.make(QStringLiteral("A>B"));
    t.a.timer.removeTargetWuffer();
    for (const TimerUser *user : {&t.a, &t.b}) {
        QCOMPARE(user->display(), QStringLiteral("Wuffer"));
        QCOMPARE(user->elapsed(), QStringLiteral("Ready when you are"));
        QCOMPARE(user->elapsedColor(), QColor(Qt::black));
    }
}

WUFFER_TEST(tst_Chains)
#include "tst_Chains.moc"
