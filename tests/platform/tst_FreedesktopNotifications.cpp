#include "platform/linux/FreedesktopNotifications.h"
#include "support/NotificationServer.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <optional>

namespace
{
const QString kMarkup = QStringLiteral("body-markup");

DesktopNotification saying(const QString &text)
{
    return {QStringLiteral("Tea"), text, QStringLiteral("wuff")};
}

/// Waits until all messages to and from the notification server have arrived.
void settleWithServer()
{
    settleWith(QStringLiteral("org.freedesktop.Notifications"));
}
} // namespace

/// Runs on a private session bus, where the test plays the notification server.
class tst_FreedesktopNotifications final : public Test
{
    Q_OBJECT

public:
    explicit tst_FreedesktopNotifications(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void theServerIsToldWhatToShow();
    void theHintsSayWhoAndWhat();
    void onlyAReminderIsQuiet();
    void theTextIsEscapedForServersThatReadMarkup_data();
    void theTextIsEscapedForServersThatReadMarkup();
    void theNextReplacesTheLastOfTheSameSender();
    void twoSendersDoNotReplaceEachOther();
    void aSenderAtTheAddressOfADestroyedOneBeginsAnew();
    void ofSeveralQuickOnesTheFirstAndTheLatestAreShown();
    void aSenderMayBeDestroyedBeforeTheAnswer();
    void theServiceMayBeDestroyedBeforeTheAnswer();
    void aMissingServerIsHarmlessAndIsFoundWhenItAppears();
    void aServerThatNeverAnswersBlocksNothing();
    void aRestartedServerGetsNoIdsOfTheOldOne();
    void withoutABusNothingIsAskedFor();

private:
    /// Replaces the server by a new one that has shown nothing yet.
    [[nodiscard]] NotificationServer &serve(const QStringList &capabilities = {})
    {
        return _server.emplace(_address, capabilities);
    }

    const QString _address;
    std::optional<NotificationServer> _server;
};

void tst_FreedesktopNotifications::theServerIsToldWhatToShow()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;

    notifications.notify(sender, {QStringLiteral("Grüner <Tee>"), QStringLiteral("Fertig & heiß"),
                                  QStringLiteral("wuff")});
    QTRY_COMPARE(server.shown.size(), 1U);

    const NotificationServer::Shown &shown = server.shown.front();
    QCOMPARE(shown.application, QGuiApplication::applicationDisplayName());
    QCOMPARE(shown.replacedId, 0U);
    QCOMPARE(shown.icon, QStringLiteral("wuffer"));
    QCOMPARE(shown.title, QStringLiteral("Grüner <Tee>"));
    QCOMPARE(shown.text, QStringLiteral("Fertig & heiß"));
    QCOMPARE(shown.actions, QStringList());
    QCOMPARE(shown.timeout, -1);
}

void tst_FreedesktopNotifications::theHintsSayWhoAndWhat()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;

    notifications.notify(sender, saying(QStringLiteral("done")));
    QTRY_COMPARE(server.shown.size(), 1U);

    const QVariantMap expected{
        {QStringLiteral("desktop-entry"), QStringLiteral("org.wuffer.Wuffer")},
        {QStringLiteral("category"), QStringLiteral("x-wuffer.wuff")},
        {QStringLiteral("suppress-sound"), true}};
    QCOMPARE(server.shown.front().hints, expected);
}

void tst_FreedesktopNotifications::onlyAReminderIsQuiet()
{
    using Occasion = DesktopNotification::Occasion;
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    DesktopNotification notification = saying(QStringLiteral("done"));
    for (const Occasion occasion : {Occasion::News, Occasion::Reminder, Occasion::Change}) {
        notification.occasion = occasion;
        const std::size_t count = server.shown.size() + 1;
        notifications.notify(sender, notification);
        QTRY_COMPARE(server.shown.size(), count);
    }

    const QString urgency = QStringLiteral("urgency");
    QVERIFY(!server.shown[0].hints.contains(urgency));
    QCOMPARE(server.shown[1].hints.value(urgency), QVariant::fromValue(uchar(0)));
    QVERIFY(!server.shown[2].hints.contains(urgency));
}

void tst_FreedesktopNotifications::theTextIsEscapedForServersThatReadMarkup_data()
{
    QTest::addColumn<QStringList>("capabilities");
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << QStringList{QStringLiteral("body"), kMarkup}
                            << QStringLiteral("&lt;b&gt;5 &amp; 6&lt;/b&gt; &quot;x&quot;");
    QTest::newRow("plain") << QStringList{QStringLiteral("body")}
                           << QStringLiteral("<b>5 & 6</b> \"x\"");
    QTest::newRow("nothing") << QStringList() << QStringLiteral("<b>5 & 6</b> \"x\"");
}

void tst_FreedesktopNotifications::theTextIsEscapedForServersThatReadMarkup()
{
    QFETCH(const QStringList, capabilities);
    QFETCH(const QString, text);
    const NotificationServer &server = serve(capabilities);
    FreedesktopNotifications notifications;
    const QObject sender;

    notifications.notify(sender, saying(QStringLiteral("<b>5 & 6</b> \"x\"")));

    QTRY_COMPARE(server.shown.size(), 1U);
    QCOMPARE(server.shown.front().text, text);
}

void tst_FreedesktopNotifications::theNextReplacesTheLastOfTheSameSender()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;

    for (std::size_t count = 1; count <= 3; ++count) {
        notifications.notify(sender, saying(QStringLiteral("done")));
        QTRY_COMPARE(server.shown.size(), count);
    }

    QCOMPARE(server.shown[0].replacedId, 0U);
    QCOMPARE(server.shown[1].replacedId, 100U);
    QCOMPARE(server.shown[2].replacedId, 100U);
}

void tst_FreedesktopNotifications::twoSendersDoNotReplaceEachOther()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject tea;
    const QObject eggs;

    notifications.notify(tea, saying(QStringLiteral("tea")));
    notifications.notify(eggs, saying(QStringLiteral("eggs")));
    QTRY_COMPARE(server.shown.size(), 2U);
    notifications.notify(eggs, saying(QStringLiteral("more eggs")));
    QTRY_COMPARE(server.shown.size(), 3U);

    QCOMPARE(server.shown[1].replacedId, 0U);
    QCOMPARE(server.shown[2].replacedId, 101U);
}

void tst_FreedesktopNotifications::aSenderAtTheAddressOfADestroyedOneBeginsAnew()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    std::optional<QObject> sender;

    notifications.notify(sender.emplace(), saying(QStringLiteral("the first")));
    QTRY_COMPARE(server.shown.size(), 1U);
    notifications.notify(sender.emplace(), saying(QStringLiteral("the second")));
    QTRY_COMPARE(server.shown.size(), 2U);

    QCOMPARE(server.shown[1].replacedId, 0U);
}

void tst_FreedesktopNotifications::ofSeveralQuickOnesTheFirstAndTheLatestAreShown()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    server.stopAnswering();

    notifications.notify(sender, saying(QStringLiteral("first")));
    QTRY_COMPARE(server.heldBack(), 1U);
    server.answerAgain();
    server.stopAnswering();
    QTRY_COMPARE(server.shown.size(), 1U);
    for (const char *text : {"second", "third", "fourth"})
        notifications.notify(sender, saying(QString::fromLatin1(text)));
    server.answerAgain();

    QTRY_COMPARE(server.shown.size(), 2U);
    settleWithServer();
    QCOMPARE(server.shown.size(), 2U);
    QCOMPARE(server.shown[0].text, QStringLiteral("first"));
    QCOMPARE(server.shown[1].text, QStringLiteral("fourth"));
    QCOMPARE(server.shown[1].replacedId, 100U);
}

void tst_FreedesktopNotifications::aSenderMayBeDestroyedBeforeTheAnswer()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    server.stopAnswering();
    {
        const QObject sender;
        notifications.notify(sender, saying(QStringLiteral("last words")));
        QTRY_COMPARE(server.heldBack(), 1U);
    }
    server.answerAgain();

    // The destroyed sender's notification is never sent.
    settleWithServer();
    QCOMPARE(server.shown.size(), 0U);
}

void tst_FreedesktopNotifications::theServiceMayBeDestroyedBeforeTheAnswer()
{
    NotificationServer &server = serve();
    const QObject sender;
    server.stopAnswering();
    {
        FreedesktopNotifications notifications;
        notifications.notify(sender, saying(QStringLiteral("done")));
        QTRY_COMPARE(server.heldBack(), 1U);
    }
    server.answerAgain();

    settleWithServer();
    QCOMPARE(server.shown.size(), 0U);
}

void tst_FreedesktopNotifications::aMissingServerIsHarmlessAndIsFoundWhenItAppears()
{
    _server.reset();
    FreedesktopNotifications notifications;
    const QObject sender;
    notifications.notify(sender, saying(QStringLiteral("unheard")));
    // The bus answers that there is no server. A bus that can start one would answer later, and the
    // server would then get the first notification, too.
    settleWithBus();

    const NotificationServer &server = serve();
    notifications.notify(sender, saying(QStringLiteral("heard")));

    QTRY_VERIFY(!server.shown.empty() && server.shown.back().text == QStringLiteral("heard"));
}

void tst_FreedesktopNotifications::aServerThatNeverAnswersBlocksNothing()
{
    NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    const QObject other;
    server.stopAnswering();
    QElapsedTimer elapsed;
    elapsed.start();

    for (int i = 0; i < 100; ++i) {
        notifications.notify(sender, saying(QStringLiteral("done")));
        notifications.notify(other, saying(QStringLiteral("done")));
    }

    QVERIFY(elapsed.elapsed() < 500);
    // One pending call for each sender, however many notifications it has.
    QTRY_COMPARE(server.heldBack(), 2U);
    settleWithServer();
    QCOMPARE(server.heldBack(), 2U);
}

void tst_FreedesktopNotifications::aRestartedServerGetsNoIdsOfTheOldOne()
{
    const NotificationServer &before = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    notifications.notify(sender, saying(QStringLiteral("before")));
    QTRY_COMPARE(before.shown.size(), 1U);

    _server.reset();
    const NotificationServer &after = serve();
    notifications.notify(sender, saying(QStringLiteral("after")));

    QTRY_COMPARE(after.shown.size(), 1U);
    QCOMPARE(after.shown.front().replacedId, 0U);
}

void tst_FreedesktopNotifications::withoutABusNothingIsAskedFor()
{
    const NotificationServer &server = serve();
    FreedesktopNotifications notifications;
    const QObject sender;
    const QTemporaryDir runtimeDir;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", runtimeDir.path().toUtf8());

    notifications.notify(sender, saying(QStringLiteral("done")));
    settleWithServer();

    qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toUtf8());
    QCOMPARE(server.shown.size(), 0U);
    notifications.notify(sender, saying(QStringLiteral("with a bus")));
    QTRY_COMPARE(server.shown.size(), 1U);
    QCOMPARE(server.shown.front().text, QStringLiteral("with a bus"));
}

WUFFER_TEST(tst_FreedesktopNotifications, OnPrivateBus)
#include "tst_FreedesktopNotifications.moc"
