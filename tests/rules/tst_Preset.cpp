#include "rules/Preset.h"
#include "support/FakeTranslator.h"
#include "support/TestMain.h"

/// The marks by which a timer shows its preset.
class tst_Preset final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theMarksNameTheNumber();
    void otherLinesAreNoMarks_data();
    void otherLinesAreNoMarks();
    void theMarksAreRecognizedInAnyLanguage();
};

void tst_Preset::theMarksNameTheNumber()
{
    QCOMPARE(Preset::openedMark(Preset::key(3)), QStringLiteral("Preset 3"));
    QCOMPARE(Preset::savedMark(0), QStringLiteral("Saved to Preset 0"));
    QVERIFY(Preset::isMark(QStringLiteral("Preset 3")));
    QVERIFY(Preset::isMark(QStringLiteral("Saved to Preset 0")));
}

void tst_Preset::otherLinesAreNoMarks_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << QString();
    QTest::newRow("idle") << QStringLiteral("Ready when you are");
    QTest::newRow("elapsed") << QStringLiteral("Elapsed: 5s");
    QTest::newRow("chain") << QStringLiteral("Wuffer Chain - 1 of 2");
}

void tst_Preset::otherLinesAreNoMarks()
{
    QFETCH(const QString, line);
    QVERIFY(!Preset::isMark(line));
}

void tst_Preset::theMarksAreRecognizedInAnyLanguage()
{
    const FakeTranslator language(
        {{QStringLiteral("Preset %1"), QStringLiteral("%1. Vorlage")},
         {QStringLiteral("Saved to Preset %1"), QStringLiteral("In Vorlage %1 gesichert")}});
    QCOMPARE(Preset::openedMark(Preset::key(3)), QStringLiteral("3. Vorlage"));
    QCOMPARE(Preset::savedMark(7), QStringLiteral("In Vorlage 7 gesichert"));
    QVERIFY(Preset::isMark(QStringLiteral("3. Vorlage")));
    QVERIFY(Preset::isMark(QStringLiteral("In Vorlage 7 gesichert")));
    QVERIFY(!Preset::isMark(QStringLiteral("In Vorlage 7")));
    // The key and the default name of a preset are the same in every language.
    QCOMPARE(Preset::key(3), QStringLiteral("Preset 3"));
    QCOMPARE(Preset::defaultRecord(3).value(QStringLiteral("title")).toString(),
             QStringLiteral("Preset 3"));
}

WUFFER_TEST(tst_Preset, WithoutWindows)
#include "tst_Preset.moc"
