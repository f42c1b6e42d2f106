#include "platform/linux/BusQuestion.h"
#include "support/PrivateBus.h"
#include "support/TestMain.h"

#include <QDBusMessage>

#include <memory>

namespace
{
QDBusMessage questionToTheBus(const char *method)
{
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QString::fromLatin1(method));
}
} // namespace

/// Runs on a private session bus. The bus itself answers the calls.
class tst_BusQuestion final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theBusIsPresent();
    void theAnswerComesLater();
    void anErrorIsAnAnswer();
    void noAnswerIsDeliveredOnceTheContextIsGone();
};

void tst_BusQuestion::theBusIsPresent()
{
    QVERIFY(BusQuestion::isPossible());
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QVERIFY(!BusQuestion::isPossible());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

void tst_BusQuestion::theAnswerComesLater()
{
    QStringList names;
    BusQuestion::ask(
        questionToTheBus("ListNames"), *this, BusQuestion::kDefaultTimeout,
        [&](const QDBusMessage &answer) { names = answer.arguments().value(0).toStringList(); });
    QVERIFY(names.isEmpty());
    QTRY_VERIFY(names.contains(QStringLiteral("org.freedesktop.DBus")));
}

void tst_BusQuestion::anErrorIsAnAnswer()
{
    auto type = QDBusMessage::InvalidMessage;
    BusQuestion::ask(questionToTheBus("Nonsense"), *this, BusQuestion::kNoTimeout,
                     [&](const QDBusMessage &answer) { type = answer.type(); });
    QTRY_COMPARE(type, QDBusMessage::ErrorMessage);
}

void tst_BusQuestion::noAnswerIsDeliveredOnceTheContextIsGone()
{
    int answers = 0;
    auto context = std::make_unique<QObject>();
    const auto count = [&](const QDBusMessage &) { ++answers; };
    BusQuestion::ask(questionToTheBus("ListNames"), *context, BusQuestion::kDefaultTimeout, count);
    context.reset();
    // The bus answers calls in order, so the first answer would come before this one.
    BusQuestion::ask(questionToTheBus("ListNames"), *this, BusQuestion::kDefaultTimeout, count);
    QTRY_VERIFY(answers > 0);
    QCOMPARE(answers, 1);
}

WUFFER_TEST(tst_BusQuestion, OnPrivateBus)
#include "tst_BusQuestion.moc"
