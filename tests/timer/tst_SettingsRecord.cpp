#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kDefault = QStringLiteral("defaultWufferSettings");
const QString kPreset = QStringLiteral("Preset 3");
const QString kBell = QStringLiteral("/sounds/bell.wav");
const QString kTick = QStringLiteral("/sounds/tick.wav");

QVariant value(const TestServices &services, const QString &key, const char *name)
{
    return services.defaults.dictionaryForKey(key).value(QString::fromLatin1(name));
}

QVariantMap record(std::initializer_list<std::pair<QString, QVariant>> values)
{
    return QVariantMap(values);
}
} // namespace

/// What a timer stores in its record, and what it loads from one.
class tst_SettingsRecord final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsStored();
    void soundsAreKeptInPresetsOnly();
    void aTimerWithoutASelectedSoundStoresNone();
    void thePlaceInTheListIsStoredWhereAPresetFollows();
    void thePlaceIsNotStoredWhereNoPresetFollows();
    void aLinkIsNeverStored();
    void aRecordIsReplacedWhole();
    void theSettingsForTheNextLaunchAreStored_data();
    void theSettingsForTheNextLaunchAreStored();
    void everyControlIsLoaded();
    void missingKeysEmptyTheControls();
    void anEmptyTitleLeavesTheTitleOfTheWindow();
    void nothingStoredChangesNothing();
    void anUnknownOptionSelectsNothing();
    void nothingSelectedIsNotStored();
    void aHandWrittenLinkLeadsToNoTimer();
    void aMutedTimerDoesNotTakeOverKeepWuffing();
    void whatWasSavedWithALinkDoesNothing();
    void aPlaceOutsideTheListIsPassedOn();
    void thePlaceIsTheFirstWhenItIsMissing();
    void theOptionDecidesOnKeepWuffing();
    void aPresetShowsThatItIsOne();
    void aPresetBringsItsSounds();
    void anUnknownSoundLeavesTheSelection();
    void theSettingsOfTheLastTimeShowNothing();
    void aRunningStateIsNotRestored();
};

void tst_SettingsRecord::everyControlIsStored()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.typeDuration(1, 2, 3);
    t.part<QLineEdit>("_secondsField").setText(QStringLiteral("3.9"));
    t.tick("_keepWuffingBox");
    t.tick("_fullScreenBox");
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    QCOMPARE(t.defaults.dictionaryForKey(kDefault),
             record({{QStringLiteral("title"), QStringLiteral("Tea")},
                     {QStringLiteral("hours"), 1},
                     {QStringLiteral("minutes"), 2},
                     {QStringLiteral("seconds"), 3},
                     {QStringLiteral("keepWuffing"), 1},
                     {QStringLiteral("fullScreen"), 1},
                     {QStringLiteral("finishOption"), QStringLiteral("Do Nothing")}}));
}

void tst_SettingsRecord::soundsAreKeptInPresetsOnly()
{
    TimerFixture t;
    t.chooseAlarm(kBell);
    t.chooseBeep(kTick);
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    QVERIFY(!value(t, kDefault, "individualAlarmPath").isValid());
    QVERIFY(!value(t, kDefault, "individualCountdownPath").isValid());
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    QCOMPARE(value(t, kPreset, "individualAlarmPath"), QVariant(kBell));
    QCOMPARE(value(t, kPreset, "individualCountdownPath"), QVariant(kTick));
}

void tst_SettingsRecord::aTimerWithoutASelectedSoundStoresNone()
{
    TimerFixture t;
    t.part<QComboBox>("_alarmSoundCombo").setCurrentIndex(-1);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    QVERIFY(!value(t, kPreset, "individualAlarmPath").isValid());
    QCOMPARE(value(t, kPreset, "individualCountdownPath"),
             QVariant(QStringLiteral("Crow (Default)")));
}

void tst_SettingsRecord::thePlaceInTheListIsStoredWhereAPresetFollows()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    t.pick(9);
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    QCOMPARE(value(t, kDefault, "finishOption"), QVariant(QStringLiteral("Start a Preset")));
    QCOMPARE(value(t, kDefault, "presetSelection"), QVariant(9));
}

void tst_SettingsRecord::thePlaceIsNotStoredWhereNoPresetFollows()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    QCOMPARE(value(t, kDefault, "finishOption"), QVariant(QStringLiteral("Loop this Wuffer")));
    QVERIFY(!value(t, kDefault, "presetSelection").isValid());
}

void tst_SettingsRecord::aLinkIsNeverStored()
{
    TimerFixture t;
    const TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    for (const QString &key : {kDefault, kPreset}) {
        t.timer.storeSettingsInDefaultsWithKey(key);
        QVERIFY(!value(t, key, "finishOption").isValid());
        QVERIFY(!value(t, key, "presetSelection").isValid());
        QVERIFY(value(t, key, "title").isValid());
    }
}

void tst_SettingsRecord::aRecordIsReplacedWhole()
{
    TimerFixture t;
    t.defaults.setObject(record({{QStringLiteral("stranger"), 1}}), kPreset);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    QVERIFY(!value(t, kPreset, "stranger").isValid());
}

void tst_SettingsRecord::theSettingsForTheNextLaunchAreStored_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<int>("minutes");
    QTest::newRow("start") << QStringLiteral("start") << 5;
    QTest::newRow("stop") << QStringLiteral("stop") << 4;
    QTest::newRow("close") << QStringLiteral("close") << 5;
    QTest::newRow("close while running") << QStringLiteral("close while running") << 6;
}

void tst_SettingsRecord::theSettingsForTheNextLaunchAreStored()
{
    QFETCH(const QString, event);
    TimerFixture t;
    t.typeDuration(0, 5, 0);
    if (event == QStringLiteral("close")) {
        t.timer.window()->close();
    } else {
        t.pressGo();
        if (event == QStringLiteral("stop")) {
            t.pass(30);
            t.pressGo();
        } else if (event == QStringLiteral("close while running")) {
            t.defaults.setObject(record({{QStringLiteral("minutes"), 6}}), kDefault);
            t.timer.window()->close();
        }
    }
    QTEST(value(t, kDefault, "minutes").toInt(), "minutes");
}

void tst_SettingsRecord::everyControlIsLoaded()
{
    TimerFixture t;
    t.defaults.setObject(record({{QStringLiteral("title"), QStringLiteral("Tea")},
                                 {QStringLiteral("hours"), 1},
                                 {QStringLiteral("minutes"), 2},
                                 {QStringLiteral("seconds"), 3},
                                 {QStringLiteral("keepWuffing"), 1},
                                 {QStringLiteral("fullScreen"), 1},
                                 {QStringLiteral("finishOption"), QStringLiteral("Do Nothing")}}),
                         kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, true);
    QCOMPARE(t.titleField.text(), QStringLiteral("Tea"));
    QCOMPARE(t.timer.window()->windowTitle(), QStringLiteral("Tea"));
    QCOMPARE(t.fields(), QStringLiteral("1 2 3"));
    QVERIFY(t.part<QCheckBox>("_keepWuffingBox").isChecked());
    QVERIFY(t.part<QCheckBox>("_fullScreenBox").isChecked());
    QCOMPARE(t.finish(), QStringLiteral("Do Nothing"));
}

void tst_SettingsRecord::missingKeysEmptyTheControls()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.typeDuration(1, 2, 3);
    t.tick("_keepWuffingBox");
    t.tick("_fullScreenBox");
    t.defaults.setObject(record({{QStringLiteral("stranger"), 1}}), kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
    QCOMPARE(t.titleField.text(), QString());
    QCOMPARE(t.fields(), QStringLiteral("0 0 0"));
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
    QVERIFY(!t.part<QCheckBox>("_fullScreenBox").isChecked());
    QCOMPARE(t.part<QComboBox>("_finishedCombo").currentIndex(), -1);
    // Without a selection there is no finish action, and the alarm is not repeated.
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
    t.startCountdown(1);
    t.pass(1.1);
    t.sounds.sound(QStringLiteral("wolvesWuff.wav"))->reachEnd();
    t.pass(1);
    QVERIFY(!t.timer.isRunning());
}

void tst_SettingsRecord::anEmptyTitleLeavesTheTitleOfTheWindow()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.defaults.setObject(record({{QStringLiteral("title"), QString()}}), kPreset);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, false);
    QCOMPARE(t.timer.window()->windowTitle(), QStringLiteral("Tea"));
    QCOMPARE(t.titleField.text(), QString());
    QCOMPARE(t.display(), QString());
}

void tst_SettingsRecord::nothingStoredChangesNothing()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.typeDuration(1, 2, 3);
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    for (const QVariant &stored : {QVariant(), QVariant(QVariantMap()), QVariant(7),
                                   QVariant(QStringLiteral("Tea")), QVariant(QVariantList{1})}) {
        t.defaults.setObject(stored, kPreset);
        t.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
        QCOMPARE(t.titleField.text(), QStringLiteral("Tea"));
        QCOMPARE(t.fields(), QStringLiteral("1 2 3"));
        QCOMPARE(t.finish(), QStringLiteral("Loop this Wuffer"));
        QCOMPARE(t.display(), QStringLiteral("Wuffer"));
        QCOMPARE(t.color(), QColor(Qt::black));
    }
}

void tst_SettingsRecord::anUnknownOptionSelectsNothing()
{
    TimerFixture t;
    for (const char *text : {"Dance", "do nothing", "", "Do Nothing "}) {
        t.defaults.setObject(record({{QStringLiteral("finishOption"), QString::fromLatin1(text)}}),
                             kDefault);
        t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
        QCOMPARE(t.part<QComboBox>("_finishedCombo").currentIndex(), -1);
    }
}

void tst_SettingsRecord::nothingSelectedIsNotStored()
{
    TimerFixture t;
    t.part<QComboBox>("_finishedCombo").setCurrentIndex(-1);
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    QVERIFY(!value(t, kDefault, "finishOption").isValid());
}

void tst_SettingsRecord::aHandWrittenLinkLeadsToNoTimer()
{
    TimerFixture t;
    t.defaults.setObject(
        record({{QStringLiteral("finishOption"), QStringLiteral("Start other open Wuffer")}}),
        kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
    QCOMPARE(t.finish(), QStringLiteral("Start other open Wuffer"));
    QCOMPARE(t.picker().currentText(), QStringLiteral("Control-Drag a Wuffer"));
    QVERIFY(!t.timer.isChained());
}

void tst_SettingsRecord::aMutedTimerDoesNotTakeOverKeepWuffing()
{
    TimerFixture t;
    t.set("soundOff", 1);
    t.defaults.setObject(record({{QStringLiteral("keepWuffing"), 1},
                                 {QStringLiteral("finishOption"), QStringLiteral("Do Nothing")}}),
                         kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
}

void tst_SettingsRecord::whatWasSavedWithALinkDoesNothing()
{
    TimerFixture t;
    const TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
    QCOMPARE(t.part<QComboBox>("_finishedCombo").currentIndex(), -1);
    QCOMPARE(t.timer.getTargetWuffer(), nullptr);
    t.timer.handleFinishedBehaviour();
    QVERIFY(!t.timer.isRunning());
    QVERIFY(!other.timer.isRunning());
}

void tst_SettingsRecord::aPlaceOutsideTheListIsPassedOn()
{
    TimerFixture t;
    for (const int place : {-3, 10, 2147483647}) {
        t.defaults.setObject(
            record({{QStringLiteral("finishOption"), QStringLiteral("Start a Preset")},
                    {QStringLiteral("presetSelection"), place}}),
            kDefault);
        t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
        QCOMPARE(t.picker().count(), 10);
        QCOMPARE(t.picker().currentIndex(), -1);
    }
}

void tst_SettingsRecord::thePlaceIsTheFirstWhenItIsMissing()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    t.pick(4);
    t.defaults.setObject(
        record({{QStringLiteral("finishOption"), QStringLiteral("Start a Preset")}}), kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
    QCOMPARE(t.picker().currentIndex(), 0);
}

void tst_SettingsRecord::theOptionDecidesOnKeepWuffing()
{
    TimerFixture t;
    t.defaults.setObject(
        record({{QStringLiteral("keepWuffing"), 1},
                {QStringLiteral("finishOption"), QStringLiteral("Loop this Wuffer")}}),
        kDefault);
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, false);
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isChecked());
    QVERIFY(!t.part<QCheckBox>("_keepWuffingBox").isEnabled());
}

void tst_SettingsRecord::aPresetShowsThatItIsOne()
{
    TimerFixture t;
    t.defaults.setObject(
        record({{QStringLiteral("title"), QStringLiteral("Tea")}, {QStringLiteral("minutes"), 4}}),
        kPreset);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, false);
    QCOMPARE(t.display(), QStringLiteral("Tea"));
    QCOMPARE(t.milliseconds(), QStringLiteral("0h 4m 0s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Preset 3"));
    QCOMPARE(t.color(), QColor(Qt::blue));
    QCOMPARE(t.elapsedColor(), QColor(Qt::blue));
    QCOMPARE(t.titleField.palette().color(QPalette::Text), QColor(Qt::blue));
}

void tst_SettingsRecord::aPresetBringsItsSounds()
{
    TimerFixture t;
    t.chooseAlarm(kBell);
    t.chooseBeep(kTick);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    auto &alarm = t.part<WebbyComboBox>("_alarmSoundCombo");
    auto &beep = t.part<WebbyComboBox>("_countdownSoundCombo");
    alarm.setCurrentIndex(0);
    beep.setCurrentIndex(0);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, false);
    QCOMPARE(alarm.dataObjectOfSelectedItem(), std::optional(kBell));
    QCOMPARE(beep.dataObjectOfSelectedItem(), std::optional(kTick));
}

void tst_SettingsRecord::anUnknownSoundLeavesTheSelection()
{
    TimerFixture t;
    t.chooseAlarm(kBell);
    t.defaults.setObject(record({{QStringLiteral("individualAlarmPath"), QStringLiteral("/gone")}}),
                         kPreset);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, false);
    QCOMPARE(t.part<WebbyComboBox>("_alarmSoundCombo").dataObjectOfSelectedItem(),
             std::optional(kBell));
}

void tst_SettingsRecord::theSettingsOfTheLastTimeShowNothing()
{
    TimerFixture t;
    t.chooseAlarm(kBell);
    t.defaults.setObject(
        record({{QStringLiteral("title"), QStringLiteral("Tea")},
                {QStringLiteral("individualAlarmPath"), QStringLiteral("Wuff (Default)")}}),
        kDefault);
    const QString elapsed = t.elapsed();
    t.timer.loadSettingsFromDefaultsWithKey(kDefault, true);
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    QCOMPARE(t.elapsed(), elapsed);
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.part<WebbyComboBox>("_alarmSoundCombo").dataObjectOfSelectedItem(),
             std::optional(kBell));
}

void tst_SettingsRecord::aRunningStateIsNotRestored()
{
    TimerFixture t;
    t.startCountdown(60);
    TimerUser other;
    other.timer.stopwatch();
    other.timer.loadSettingsFromDefaultsWithKey(kDefault, true);
    QVERIFY(!other.timer.isRunning());
    // Loading has not changed the stopwatch mode.
    QVERIFY(!other.part<QComboBox>("_finishedCombo").isEnabled());
}

WUFFER_TEST(tst_SettingsRecord)
#include "tst_SettingsRecord.moc"
