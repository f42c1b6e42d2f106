#include "rules/NotificationText.h"
#include "support/TestMain.h"

class tst_NotificationText final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsMadeOfAnyText_data();
    void aLineIsMadeOfAnyText();
    void aLongTextIsCutAndSaysSo();
    void noCharacterIsCutThrough();
    void aCharacterWithoutEndIsCut();
};

void tst_NotificationText::aLineIsMadeOfAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("plain") << QStringLiteral("Grüner Tee") << QStringLiteral("Grüner Tee");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("markup is text")
        << QStringLiteral("<b>a & b</b>") << QStringLiteral("<b>a & b</b>");
    QTest::newRow("line breaks") << QStringLiteral("a\nb\r\nc\u2028d\u2029e\tf")
                                 << QStringLiteral("a b  c d e f");
    QTest::newRow("controls") << QStringLiteral("a\u0007b\u0085c") << QStringLiteral("a b c");
    QTest::newRow("only controls") << QStringLiteral("\n\n") << QString();
    QTest::newRow("right to left") << QStringLiteral("שלום") << QStringLiteral("שלום");
    QTest::newRow("turned round") << QStringLiteral("\u202Egnip\u202C \u2067x\u2069")
                                  << QStringLiteral("gnip x");
    QTest::newRow("joined") << QStringLiteral("👩\u200D🍳") << QStringLiteral("👩\u200D🍳");
}

void tst_NotificationText::aLineIsMadeOfAnyText()
{
    QFETCH(const QString, text);
    QTEST(NotificationText::line(text), "line");
}

void tst_NotificationText::aLongTextIsCutAndSaysSo()
{
    const QString line = NotificationText::line(QString(10'000, QLatin1Char('x')));
    QCOMPARE(line, QString(100, QLatin1Char('x')) + QStringLiteral("…"));
    const QString longest(100, QLatin1Char('x'));
    QCOMPARE(NotificationText::line(longest), longest);
}

void tst_NotificationText::noCharacterIsCutThrough()
{
    // A family emoji is eleven UTF-16 units long, and nine of them fit.
    const QString family = QStringLiteral("👨\u200D👩\u200D👧\u200D👦");
    QCOMPARE(family.size(), 11);
    QCOMPARE(NotificationText::line(family.repeated(1'000)),
             family.repeated(9) + QStringLiteral("…"));
}

void tst_NotificationText::aCharacterWithoutEndIsCut()
{
    const QString marks = QLatin1Char('e') + QString(10'000, QChar(0x0301));
    QCOMPARE(NotificationText::line(marks), marks.left(100) + QStringLiteral("…"));
}

WUFFER_TEST(tst_NotificationText)
#include "tst_NotificationText.moc"
