#include "rules/LaunchChoices.h"
#include "support/TestMain.h"

class tst_LaunchChoices final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aRowSaysWhatTheLaunchOpens_data();
    void aRowSaysWhatTheLaunchOpens();
    void theListKeepsTheOrderOfTheTable();
    void anythingElseOpensATimer();
};

void tst_LaunchChoices::aRowSaysWhatTheLaunchOpens_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("opensTimer");
    QTest::addColumn<bool>("takesPreset");
    QTest::addColumn<bool>("starts");
    QTest::newRow("a timer") << QStringLiteral("Open a Wuffer") << true << false << false;
    QTest::newRow("nothing") << QStringLiteral("Do Nothing") << false << false << false;
    QTest::newRow("a preset") << QStringLiteral("Open Preset ⌘1") << true << true << false;
    QTest::newRow("a preset that starts")
        << QStringLiteral("Open and Start Preset ⌘1") << true << true << true;
}

void tst_LaunchChoices::aRowSaysWhatTheLaunchOpens()
{
    QFETCH(const QString, stored);
    const LaunchChoices::Row &row = LaunchChoices::fromStored(stored);
    QCOMPARE(row.stored.toString(), stored);
    QCOMPARE(LaunchChoices::shownText(row), stored);
    QTEST(row.opensTimer, "opensTimer");
    QTEST(row.takesPreset, "takesPreset");
    QTEST(row.starts, "starts");
}

void tst_LaunchChoices::theListKeepsTheOrderOfTheTable()
{
    QStringList texts;
    for (const LaunchChoices::Row &row : LaunchChoices::rows())
        texts << row.stored.toString();
    QCOMPARE(texts, QStringList({QStringLiteral("Open a Wuffer"), QStringLiteral("Do Nothing"),
                                 QStringLiteral("Open Preset ⌘1"),
                                 QStringLiteral("Open and Start Preset ⌘1")}));
}

void tst_LaunchChoices::anythingElseOpensATimer()
{
    for (const char16_t *text : {u"", u"Open Preset 1", u"open a wuffer", u"Do Nothing "})
        QCOMPARE(LaunchChoices::fromStored(text).stored.toString(),
                 QStringLiteral("Open a Wuffer"));
}

WUFFER_TEST(tst_LaunchChoices)
#include "tst_LaunchChoices.moc"
