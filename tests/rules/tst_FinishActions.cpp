#include "rules/FinishActions.h"
#include "support/TestMain.h"

class tst_FinishActions final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aRowHasAllPropertiesOfAnAction_data();
    void aRowHasAllPropertiesOfAnAction();
    void theListKeepsTheOrderOfTheTable();
    void whatIsStoredReadsAsTheAction();
    void anyOtherTextIsNoAction();
    void noActionAllowsAndRunsNothing();
};

void tst_FinishActions::aRowHasAllPropertiesOfAnAction_data()
{
    using FinishActions::Picker;
    using FinishActions::Runs;
    QTest::addColumn<FinishAction>("action");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("picker");
    QTest::addColumn<bool>("allowsKeepWuffing");
    QTest::addColumn<bool>("isStored");
    QTest::addColumn<int>("runs");
    const auto add = [](FinishAction action, const char *text, Picker picker, bool keep,
                        bool stored, Runs runs) {
        QTest::newRow(text) << action << QString::fromLatin1(text) << int(picker) << keep << stored
                            << int(runs);
    };
    add(FinishAction::Nothing, "Do Nothing", Picker::None, true, true, Runs::Nothing);
    add(FinishAction::Restart, "Loop this Wuffer", Picker::None, false, true, Runs::ThisTimer);
    add(FinishAction::Preset, "Start a Preset", Picker::Presets, false, true, Runs::ChosenPreset);
    add(FinishAction::Wuffer, "Start other open Wuffer", Picker::Target, false, false,
        Runs::TargetTimer);
}

void tst_FinishActions::aRowHasAllPropertiesOfAnAction()
{
    QFETCH(const FinishAction, action);
    QFETCH(const QString, stored);
    const FinishActions::Row &row = FinishActions::row(action);
    QVERIFY(row.action == action);
    QCOMPARE(row.stored.toString(), stored);
    QCOMPARE(FinishActions::shownText(row), stored);
    QTEST(int(row.picker), "picker");
    QTEST(row.allowsKeepWuffing, "allowsKeepWuffing");
    QTEST(row.isStored, "isStored");
    QTEST(int(row.runs), "runs");
}

void tst_FinishActions::theListKeepsTheOrderOfTheTable()
{
    QStringList texts;
    for (const FinishActions::Row &row : FinishActions::rows())
        texts << FinishActions::shownText(row);
    QCOMPARE(texts, QStringList({QStringLiteral("Do Nothing"), QStringLiteral("Loop this Wuffer"),
                                 QStringLiteral("Start a Preset"),
                                 QStringLiteral("Start other open Wuffer")}));
}

void tst_FinishActions::whatIsStoredReadsAsTheAction()
{
    for (const FinishActions::Row &row : FinishActions::rows())
        QVERIFY(FinishActions::fromStored(row.stored) == row.action);
}

void tst_FinishActions::anyOtherTextIsNoAction()
{
    for (const char16_t *text : {u"", u"do nothing", u"Do Nothing ", u"Start"})
        QVERIFY(FinishActions::fromStored(text) == FinishAction::None);
}

void tst_FinishActions::noActionAllowsAndRunsNothing()
{
    const FinishActions::Row &row = FinishActions::row(FinishAction::None);
    QVERIFY(row.action == FinishAction::None);
    QVERIFY(row.stored.isEmpty());
    QVERIFY(row.picker == FinishActions::Picker::None);
    QVERIFY(!row.allowsKeepWuffing);
    QVERIFY(!row.isStored);
    QVERIFY(row.runs == FinishActions::Runs::Nothing);
}

WUFFER_TEST(tst_FinishActions)
#include "tst_FinishActions.moc"
