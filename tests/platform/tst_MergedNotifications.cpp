#include "platform/linux/FreedesktopNotifications.h"
#include "support/NotificationTest.h"

#include <array>

namespace
{
const QString kShow = QStringLiteral("show");
const QString kStop = QStringLiteral("stop");
} // namespace

/// A server that merges equal notifications into one. The user sees one notification for several
/// timers, and its buttons must reach all of them. Runs on a private session bus, where the test
/// plays the server.
class tst_MergedNotifications final : public NotificationTest
{
    Q_OBJECT

public:
    explicit tst_MergedNotifications(const OnPrivateBus &surroundings) :
        NotificationTest(surroundings)
    {}

private Q_SLOTS:
    void init()
    {
        Test::init();
        _diary.clear();
    }

    void aMergeByTheServerIsNoAnswerOfTheUser();
    void anAnswerToMergedOnesReachesAllOfThem_data();
    void anAnswerToMergedOnesReachesAllOfThem();
    void anAnswerReachesNoneThatAnotherAnswerHasWithdrawn_data();
    void anAnswerReachesNoneThatAnotherAnswerHasWithdrawn();
    void mergedOnesStayUntilTheLastIsWithdrawn();
    void aMergedOneThatChangesIsSentAnew();

private:
    [[nodiscard]] NotificationServer &serve()
    {
        NotificationServer &server =
            _server.emplace(_address, QStringList{QStringLiteral("actions")});
        server.mergeEqual();
        return server;
    }
};

void tst_MergedNotifications::aMergeByTheServerIsNoAnswerOfTheUser()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject first;
    const QObject second;
    show(notifications, first);
    notifications.notify(second, withActions());
    QTRY_COMPARE(server.shown.size(), 2U);
    settle();
    QCOMPARE(_diary, QStringList());
    QVERIFY(server.closed.empty());
}

void tst_MergedNotifications::anAnswerToMergedOnesReachesAllOfThem_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("deed");
    QTest::newRow("stop") << kStop << QStringLiteral("stopped");
    QTest::newRow("show") << kShow << QStringLiteral("shown");
    QTest::newRow("dismissed") << QString() << QStringLiteral("closed");
}

void tst_MergedNotifications::anAnswerToMergedOnesReachesAllOfThem()
{
    QFETCH(const QString, key);
    QFETCH(const QString, deed);
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const std::array<QObject, 6> senders;
    for (const QObject &sender : senders)
        notifications.notify(sender, withActions());
    QTRY_COMPARE(server.shown.size(), senders.size());
    settle();
    if (key.isEmpty())
        server.dismiss(server.lastId);
    else
        server.press(server.lastId, key);
    settle();
    QCOMPARE(_diary, QStringList(qsizetype(senders.size()), deed));
}

void tst_MergedNotifications::anAnswerReachesNoneThatAnotherAnswerHasWithdrawn_data()
{
    anAnswerToMergedOnesReachesAllOfThem_data();
}

void tst_MergedNotifications::anAnswerReachesNoneThatAnotherAnswerHasWithdrawn()
{
    QFETCH(const QString, key);
    QFETCH(const QString, deed);
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const std::array<QObject, 3> senders;
    const auto withdrawAll = [&](const QString &done) {
        _diary << done;
        for (const QObject &sender : senders)
            notifications.withdraw(sender);
    };
    DesktopNotification notification = withActions();
    notification.show = [&] { withdrawAll(QStringLiteral("shown")); };
    notification.stop = [&] { withdrawAll(QStringLiteral("stopped")); };
    notification.closed = [&](DesktopNotification::End) { withdrawAll(QStringLiteral("closed")); };
    for (const QObject &sender : senders)
        notifications.notify(sender, notification);
    QTRY_COMPARE(server.shown.size(), senders.size());
    settle();
    if (key.isEmpty())
        server.dismiss(server.lastId);
    else
        server.press(server.lastId, key);
    settle();
    QCOMPARE(_diary, QStringList{deed});
}

void tst_MergedNotifications::mergedOnesStayUntilTheLastIsWithdrawn()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject first;
    const QObject second;
    show(notifications, first);
    show(notifications, second);
    QTRY_COMPARE(server.shown.size(), 2U);
    settle();
    notifications.withdraw(second);
    settle();
    QVERIFY(server.closed.empty());
    notifications.withdraw(first);
    QTRY_COMPARE(server.closed, std::vector<uint>{server.lastId});
}

void tst_MergedNotifications::aMergedOneThatChangesIsSentAnew()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject first;
    const QObject second;
    show(notifications, first);
    show(notifications, second);
    QTRY_COMPARE(server.shown.size(), 2U);
    settle();
    DesktopNotification changed = withActions();
    changed.text = QStringLiteral("over");
    notifications.notify(first, changed);
    QTRY_COMPARE(server.shown.size(), 3U);
    settle();
    QCOMPARE(server.shown.back().replacedId, 0U);
    // The other one is still on the screen, and answers.
    server.press(101, kStop);
    settle();
    QCOMPARE(_diary, QStringList{QStringLiteral("stopped")});
}

WUFFER_TEST(tst_MergedNotifications, OnPrivateBus)
#include "tst_MergedNotifications.moc"
