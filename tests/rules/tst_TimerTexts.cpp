#include "rules/TimerTexts.h"
#include "support/TestMain.h"

/// Texts with the name of a timer.
class tst_TimerTexts final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNameDoesNotDisorderTheTime_data();
    void aNameDoesNotDisorderTheTime();
};

void tst_TimerTexts::aNameDoesNotDisorderTheTime_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("Latin") << QStringLiteral("Tea") << QStringLiteral("Tea");
    QTest::newRow("Japanese") << QStringLiteral("お茶") << QStringLiteral("お茶");
    QTest::newRow("digits and signs") << QStringLiteral("3 (x)!") << QStringLiteral("3 (x)!");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("Hebrew") << QStringLiteral("תה") << QStringLiteral("\u2068תה\u2069");
    QTest::newRow("Arabic") << QStringLiteral("شاي") << QStringLiteral("\u2068شاي\u2069");
    QTest::newRow("beyond 16 bits")
        << QStringLiteral("\U0001E900") << QStringLiteral("\u2068\U0001E900\u2069");
    QTest::newRow("mixed") << QStringLiteral("Tea תה") << QStringLiteral("\u2068Tea תה\u2069");
}

void tst_TimerTexts::aNameDoesNotDisorderTheTime()
{
    QFETCH(const QString, name);
    QFETCH(const QString, shown);
    const auto time = QStringLiteral("0h 5m 0s");
    QCOMPARE(TimerTexts::nameAndTime(name, time), shown + QStringLiteral(" - 0h 5m 0s"));
    QCOMPARE(TimerTexts::description(name, time), name + QStringLiteral(" - 0h 5m 0s"));
    QCOMPARE(NameText::isolatedIn(TimerTexts::description(name, time), name),
             TimerTexts::nameAndTime(name, time));
    QCOMPARE(TimerTexts::nameAndStatus(name, time), shown + QStringLiteral(": 0h 5m 0s"));
}

WUFFER_TEST(tst_TimerTexts)
#include "tst_TimerTexts.moc"
