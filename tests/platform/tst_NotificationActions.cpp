#include "platform/linux/FreedesktopNotifications.h"
#include "support/NotificationTest.h"

namespace
{
const QString kActions = QStringLiteral("actions");
const QString kShow = QStringLiteral("show");
const QString kStop = QStringLiteral("stop");
} // namespace

/// The buttons of a notification, and how it is closed. Runs on a private session bus, where the
/// test plays the notification server.
class tst_NotificationActions final : public NotificationTest
{
    Q_OBJECT

public:
    explicit tst_NotificationActions(const OnPrivateBus &surroundings) :
        NotificationTest(surroundings)
    {}

private Q_SLOTS:
    void init()
    {
        Test::init();
        _diary.clear();
    }

    void buttonsAreOfferedWhereThereAreSome();
    void noButtonIsDrawnTwice_data();
    void noButtonIsDrawnTwice();
    void noButtonsAreOfferedWhereThereAreNone();
    void aNotificationWithoutActionsOffersNone();
    void aPressDoesWhatTheButtonSays_data();
    void aPressDoesWhatTheButtonSays();
    void aPressOnAnotherNotificationDoesNothing();
    void aPressReportedByAnotherProgramDoesNothing();
    void aPressOnAWithdrawnNotificationDoesNothing();
    void aPressOnADestroyedSendersNotificationDoesNothing();
    void nonsenseDoesNothing();
    void anActionMayDestroyTheSender();
    void itIsWithdrawn();
    void itGoesWithItsSender();
    void itIsNotWithdrawnTwice();
    void aNotificationWithdrawnBeforeItIsSentIsNeverShown();
    void aNotificationWithoutAnIdYetIsWithdrawnWhenItHasOne();
    void aNotificationShownAgainBeforeItHasAnIdStays();
    void aRestartedServerIsNotAskedToCloseOldNotifications();
    void howItWasClosedIsReported_data();
    void howItWasClosedIsReported();
    void aDismissedOneIsReportedAndForgotten();
    void theNextAfterADismissedOneReplacesNothing();
    void anInvalidIdFromTheServerIsIgnored();

private:
    [[nodiscard]] NotificationServer &serve(const QStringList &capabilities = {kActions})
    {
        return _server.emplace(_address, capabilities);
    }
};

void tst_NotificationActions::buttonsAreOfferedWhereThereAreSome()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.shown.size(), 1U);
    const QStringList expected{
        QStringLiteral("default"), QStringLiteral("Show"), kShow, QStringLiteral("Show"), kStop,
        QStringLiteral("Stop")};
    QCOMPARE(server.shown.front().actions, expected);
}

void tst_NotificationActions::noButtonIsDrawnTwice_data()
{
    QTest::addColumn<QString>("server");
    QTest::newRow("Xfce") << QStringLiteral("Xfce Notify Daemon");
    QTest::newRow("LXQt") << QStringLiteral("lxqt-notificationd");
}

void tst_NotificationActions::noButtonIsDrawnTwice()
{
    // These servers draw a button for a click, too.
    QFETCH(const QString, server);
    _server.emplace(_address, QStringList{kActions}, server);
    FreedesktopNotifications notifications;
    const QObject sender;
    notifications.notify(sender, withActions());
    QTRY_COMPARE(_server->shown.size(), 1U);
    const QStringList expected{QStringLiteral("default"), QStringLiteral("Show"), kStop,
                               QStringLiteral("Stop")};
    QCOMPARE(_server->shown.front().actions, expected);
}

void tst_NotificationActions::noButtonsAreOfferedWhereThereAreNone()
{
    const NotificationServer &server = serve({QStringLiteral("body")});
    FreedesktopNotifications notifications;
    const QObject sender;
    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.shown.size(), 1U);
    QCOMPARE(server.shown.front().actions, QStringList());
}

void tst_NotificationActions::aNotificationWithoutActionsOffersNone()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    notifications.notify(sender, {QStringLiteral("Tea"), {}, QStringLiteral("wuff")});
    QTRY_COMPARE(server.shown.size(), 1U);
    QCOMPARE(server.shown.front().actions, QStringList());
}

void tst_NotificationActions::aPressDoesWhatTheButtonSays_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("diary");
    QTest::newRow("a click") << QStringLiteral("default") << QStringList{QStringLiteral("shown")};
    QTest::newRow("show") << kShow << QStringList{QStringLiteral("shown")};
    QTest::newRow("stop") << kStop << QStringList{QStringLiteral("stopped")};
    QTest::newRow("unknown") << QStringLiteral("explode") << QStringList();
    QTest::newRow("nothing") << QString() << QStringList();
}

void tst_NotificationActions::aPressDoesWhatTheButtonSays()
{
    QFETCH(const QString, key);
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    server.press(100, key);
    settle();
    QTEST(_diary, "diary");
}

void tst_NotificationActions::aPressOnAnotherNotificationDoesNothing()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    for (const uint id : {0U, 1U, 99U, 101U, 4'294'967'295U}) {
        server.press(id, kStop);
        server.dismiss(id);
    }
    settle();
    QCOMPARE(_diary, QStringList());
}

void tst_NotificationActions::aPressReportedByAnotherProgramDoesNothing()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    QDBusConnection other = QDBusConnection::connectToBus(_address, QStringLiteral("other"));
    QDBusMessage signal = QDBusMessage::createSignal(
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("ActionInvoked"));
    signal.setArguments({100U, kStop});
    QVERIFY(other.send(signal));
    settleWith(other.baseService());
    QDBusConnection::disconnectFromBus(QStringLiteral("other"));
    QCOMPARE(_diary, QStringList());
    QVERIFY(server.closed.empty());
}

void tst_NotificationActions::aPressOnAWithdrawnNotificationDoesNothing()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    notifications.withdraw(sender);
    server.press(100, kStop);
    server.dismiss(100);
    settle();
    QCOMPARE(_diary, QStringList());
}

void tst_NotificationActions::aPressOnADestroyedSendersNotificationDoesNothing()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    {
        const QObject sender;
        show(notifications, sender);
    }
    server.press(100, kStop);
    settle();
    QCOMPARE(_diary, QStringList());
}

void tst_NotificationActions::nonsenseDoesNothing()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    const QString invoked = QStringLiteral("ActionInvoked");
    server.say(invoked, {});
    server.say(invoked, {100U});
    server.say(invoked, {kStop, 100U});
    server.say(invoked, {100, kStop});
    server.say(invoked, {100U, 7});
    server.say(invoked, {100U, kStop, kStop});
    server.say(QStringLiteral("NotificationClosed"), {100U});
    server.say(QStringLiteral("SomethingElse"), {100U, kStop});
    settle();
    QCOMPARE(_diary, QStringList());
}

void tst_NotificationActions::anActionMayDestroyTheSender()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    std::optional<QObject> sender;
    sender.emplace();
    DesktopNotification notification = withActions();
    notification.stop = [&] { sender.reset(); };
    notifications.notify(*sender, notification);
    QTRY_COMPARE(server.shown.size(), 1U);
    settle();
    server.press(100, kStop);
    QTRY_VERIFY(!sender);
    QTRY_COMPARE(server.closed, std::vector<uint>{100});
}

void tst_NotificationActions::itIsWithdrawn()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    notifications.withdraw(sender);
    QTRY_COMPARE(server.closed, std::vector<uint>{100});
}

void tst_NotificationActions::itGoesWithItsSender()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    {
        const QObject sender;
        show(notifications, sender);
    }
    QTRY_COMPARE(server.closed, std::vector<uint>{100});
}

void tst_NotificationActions::itIsNotWithdrawnTwice()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    const QObject stranger;
    notifications.withdraw(stranger);
    show(notifications, sender);
    notifications.withdraw(sender);
    notifications.withdraw(sender);
    settle();
    QCOMPARE(server.closed, std::vector<uint>{100});
}

void tst_NotificationActions::aNotificationWithdrawnBeforeItIsSentIsNeverShown()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    server.stopAnswering();
    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.heldBack(), 1U);
    notifications.withdraw(sender);
    server.answerAgain();
    settle();
    QCOMPARE(server.shown.size(), 0U);

    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.shown.size(), 1U);
}

void tst_NotificationActions::aNotificationWithoutAnIdYetIsWithdrawnWhenItHasOne()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    server.stopAnswering();
    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.heldBack(), 1U);
    server.answerAgain();
    server.stopAnswering();
    QTRY_COMPARE(server.shown.size(), 1U);
    notifications.withdraw(sender);
    settle();
    QVERIFY(server.closed.empty());
    server.answerAgain();
    QTRY_COMPARE(server.closed, std::vector<uint>{100});
}

void tst_NotificationActions::aNotificationShownAgainBeforeItHasAnIdStays()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    server.stopAnswering();
    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.heldBack(), 1U);
    server.answerAgain();
    server.stopAnswering();
    QTRY_COMPARE(server.shown.size(), 1U);
    notifications.withdraw(sender);
    notifications.notify(sender, withActions());
    server.answerAgain();
    QTRY_COMPARE(server.shown.size(), 2U);
    settle();
    QCOMPARE(server.shown.back().replacedId, 100U);
    QVERIFY(server.closed.empty());
}

void tst_NotificationActions::aRestartedServerIsNotAskedToCloseOldNotifications()
{
    static_cast<void>(serve());
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    _server.reset();
    NotificationServer &after = serve();
    after.press(100, kStop);
    settle();
    notifications.withdraw(sender);
    settle();
    QCOMPARE(_diary, QStringList());
    QVERIFY(after.closed.empty());
}

void tst_NotificationActions::howItWasClosedIsReported_data()
{
    QTest::addColumn<QVariant>("reason");
    QTest::addColumn<QString>("end");
    QTest::newRow("it has timed out") << QVariant(1U) << QStringLiteral("expired");
    QTest::newRow("by the user") << QVariant(2U) << QStringLiteral("closed");
    QTest::newRow("by another program") << QVariant(3U) << QStringLiteral("closed");
    QTest::newRow("not known") << QVariant(4U) << QStringLiteral("closed");
    QTest::newRow("out of order") << QVariant(0U) << QStringLiteral("closed");
    QTest::newRow("nonsense") << QVariant(QStringLiteral("1")) << QStringLiteral("closed");
}

void tst_NotificationActions::howItWasClosedIsReported()
{
    QFETCH(const QVariant, reason);
    QFETCH(const QString, end);
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    server.say(QStringLiteral("NotificationClosed"), {100U, reason});
    QTRY_COMPARE(_diary, QStringList{end});
}

void tst_NotificationActions::aDismissedOneIsReportedAndForgotten()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    server.dismiss(100);
    server.dismiss(100);
    server.press(100, kShow);
    settle();
    QCOMPARE(_diary, QStringList{QStringLiteral("closed")});
    notifications.withdraw(sender);
    settle();
    QVERIFY(server.closed.empty());
}

void tst_NotificationActions::theNextAfterADismissedOneReplacesNothing()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    server.dismiss(100);
    settle();
    notifications.notify(sender, withActions());
    QTRY_COMPARE(server.shown.size(), 2U);
    QCOMPARE(server.shown.back().replacedId, 0U);
}

void tst_NotificationActions::anInvalidIdFromTheServerIsIgnored()
{
    NotificationServer &server = serve();
    server.lastId = 4'294'967'295U; // The next id is 0, which is not a valid one.
    FreedesktopNotifications notifications;
    const QObject sender;
    show(notifications, sender);
    notifications.withdraw(sender);
    server.press(0, kStop);
    settle();
    QVERIFY(server.closed.empty());
    QCOMPARE(_diary, QStringList());
}

WUFFER_TEST(tst_NotificationActions, OnPrivateBus)
#include "tst_NotificationActions.moc"
