#include "rules/OneLine.h"
#include "support/TestMain.h"

/// Texts of users as a single line.
class tst_OneLine final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void whatBreaksALineBecomesASpace_data();
    void whatBreaksALineBecomesASpace();
    void noCharacterIsCutThrough();
};

void tst_OneLine::whatBreaksALineBecomesASpace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("plain") << QStringLiteral(" Tea  & milk ") << QStringLiteral(" Tea  & milk ");
    QTest::newRow("each by itself")
        << QStringLiteral("Tea\r\n\tMilk\v") << QStringLiteral("Tea   Milk ");
    QTest::newRow("a zero") << QStringLiteral("Tea") + QChar(0) + QStringLiteral("Milk")
                            << QStringLiteral("Tea Milk");
    QTest::newRow("lines and paragraphs")
        << QStringLiteral("Tea\u2028Milk\u2029") << QStringLiteral("Tea Milk ");
    QTest::newRow("a control of eight bits")
        << QStringLiteral("Tea\u0085Milk") << QStringLiteral("Tea Milk");
}

void tst_OneLine::whatBreaksALineBecomesASpace()
{
    QFETCH(const QString, text);
    QTEST(OneLine::of(text), "line");
}

void tst_OneLine::noCharacterIsCutThrough()
{
    const QString bells = QStringLiteral("a🔔b🔔c");
    QCOMPARE(OneLine::beginning(bells, 1), QStringLiteral("a"));
    QCOMPARE(OneLine::beginning(bells, 2), QStringLiteral("a"));
    QCOMPARE(OneLine::beginning(bells, 3), QStringLiteral("a🔔"));
    QCOMPARE(OneLine::beginning(bells, bells.size()), bells);
    QCOMPARE(OneLine::ending(bells, 1), QStringLiteral("c"));
    QCOMPARE(OneLine::ending(bells, 2), QStringLiteral("c"));
    QCOMPARE(OneLine::ending(bells, 3), QStringLiteral("🔔c"));
    QCOMPARE(OneLine::ending(bells, bells.size()), bells);
}

WUFFER_TEST(tst_OneLine)
#include "tst_OneLine.moc"
