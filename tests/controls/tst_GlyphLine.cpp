#include "controls/GlyphLine.h"
#include "support/TestMain.h"

#include <QFontMetricsF>

/// Texts set without shaping.
class tst_GlyphLine final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void plainTextsCanBeSet_data();
    void plainTextsCanBeSet();
    void aTextIsAsWideAsItsCharacters();
    void everyCharacterHasItsPlace();
};

void tst_GlyphLine::plainTextsCanBeSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("can");
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("a time") << QStringLiteral("1h 2m 5s ") << true;
    QTest::newRow("the last of them") << QStringLiteral("~") << true;
    QTest::newRow("a tabulator") << QStringLiteral("1\t2") << false;
    QTest::newRow("an umlaut") << QStringLiteral("Tür") << false;
    QTest::newRow("another script") << QStringLiteral("茶") << false;
}

void tst_GlyphLine::plainTextsCanBeSet()
{
    QFETCH(const QString, text);
    QTEST(GlyphLine(QFont(QStringLiteral("Courier"), 12)).canSet(text), "can");
}

void tst_GlyphLine::aTextIsAsWideAsItsCharacters()
{
    const QFont font(QStringLiteral("Courier"), 27);
    const GlyphLine line(font);
    const QString text = QStringLiteral("23h 59m 59s");
    QVERIFY(qAbs(line.width(text) - QFontMetricsF(font).horizontalAdvance(text)) < 1.0);
    QCOMPARE(line.width(u""), 0.0);
    QCOMPARE(line.width(u"1234"), 2 * line.width(u"12"));
}

void tst_GlyphLine::everyCharacterHasItsPlace()
{
    const GlyphLine line(QFont(QStringLiteral("Courier"), 27));
    const QGlyphRun run = line.run(u"10s");
    QCOMPARE(run.glyphIndexes().size(), 3);
    QCOMPARE(run.positions().at(0), QPointF(0, 0));
    QCOMPARE(run.positions().at(1), QPointF(line.width(u"1"), 0));
    QCOMPARE(run.positions().at(2), QPointF(line.width(u"10"), 0));
    QVERIFY(run.glyphIndexes().at(0) != run.glyphIndexes().at(1));
}

WUFFER_TEST(tst_GlyphLine)
#include "tst_GlyphLine.moc"
