#include "controls/Drawer.h"
#include "rules/Preset.h"
#include "rules/TimerSettings.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QAbstractItemView>

#include <functional>

namespace
{
const QString kChanged = QStringLiteral("presetsChangedNotification");

/// Something that the user or the program does to a timer.
using Act = std::function<void(TimerFixture &)>;
} // namespace

Q_DECLARE_METATYPE(Act)

/// The ten presets: their records, saving a timer to one, and the mark of an unchanged preset.
class tst_Presets final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyNumberHasAKey_data();
    void everyNumberHasAKey();
    void listingAPresetMakesIt_data();
    void listingAPresetMakesIt();
    void listingAPresetChangesNothingInOneThatIsThere();
    void anEmptyRecordIsReplacedWhenListed();
    void aPresetWithoutATitleIsListedAsWuffer();
    void absurdNumbersAreListedAsTheyAre();
    void savingReplacesTheRecordWhole();
    void savingKeepsThePlaceOfTheWindow();
    void savingNamesAnUnnamedTimer();
    void savingShowsWhereItWent();
    void savingPostsANotice();
    void aRunningTimerIsNotSaved();
    void aTimerInItsAlarmIsNotSaved();
    void aStopwatchIsNotSaved();
    void savingATimerWithALinkForgetsTheLink();
    void theMarkIsLostByAnEdit_data();
    void theMarkIsLostByAnEdit();
    void theMarkStays_data();
    void theMarkStays();
    void anElapsedLineInAnotherColourKeepsIt();
    void theWordPresetGoesWithoutAMark();
    void anotherLineStays();
    void aStartedPresetIsBlackThenRed();

private:
    static bool isMarked(const TimerUser &user) { return user.color() == QColor(Qt::blue); }
    static QVariantMap preset(const TestServices &services, int number)
    {
        return services.defaults.dictionaryForKey(Wuffer::keyForPreset(quint32(number)));
    }
};

void tst_Presets::everyNumberHasAKey_data()
{
    QTest::addColumn<quint32>("number");
    QTest::addColumn<QString>("key");
    QTest::newRow("zero") << quint32(0) << QStringLiteral("Preset 0");
    QTest::newRow("nine") << quint32(9) << QStringLiteral("Preset 9");
    QTest::newRow("ten") << quint32(10) << QStringLiteral("Preset 10");
    QTest::newRow("the largest") << quint32(4294967295U) << QStringLiteral("Preset 4294967295");
}

void tst_Presets::everyNumberHasAKey()
{
    QFETCH(const quint32, number);
    QTEST(Wuffer::keyForPreset(number), "key");
}

void tst_Presets::listingAPresetMakesIt_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("text");
    for (int number = 0; number < 10; ++number) {
        QTest::addRow("preset %d", number)
            << number << number * 10
            << QStringLiteral("Preset %1 - 0h %2m 0s").arg(number).arg(number * 10);
    }
}

void tst_Presets::listingAPresetMakesIt()
{
    QFETCH(const int, number);
    QFETCH(const int, minutes);
    const TestServices services;
    QTEST(Wuffer::stringForPreset(number), "text");
    const QVariantMap expected{
        {QStringLiteral("hours"), 0},
        {QStringLiteral("minutes"), minutes},
        {QStringLiteral("seconds"), 0},
        {QStringLiteral("finishOption"), QStringLiteral("Do Nothing")},
        {QStringLiteral("title"), QStringLiteral("Preset %1").arg(number)},
    };
    QCOMPARE(preset(services, number), expected);
}

void tst_Presets::listingAPresetChangesNothingInOneThatIsThere()
{
    TestServices services;
    const QVariantMap stored{{QStringLiteral("title"), QStringLiteral("Eggs")},
                             {QStringLiteral("hours"), 1},
                             {QStringLiteral("stranger"), 7}};
    services.defaults.setObject(stored, QStringLiteral("Preset 3"));
    QCOMPARE(Wuffer::stringForPreset(3), QStringLiteral("Eggs - 1h 0m 0s"));
    QCOMPARE(preset(services, 3), stored);
}

void tst_Presets::anEmptyRecordIsReplacedWhenListed()
{
    TestServices services;
    for (const QVariant &stored :
         {QVariant(QVariantMap()), QVariant(5), QVariant(QStringLiteral("x"))}) {
        services.defaults.setObject(stored, QStringLiteral("Preset 3"));
        QCOMPARE(Wuffer::stringForPreset(3), QStringLiteral("Preset 3 - 0h 30m 0s"));
        QCOMPARE(preset(services, 3).size(), 5);
    }
}

void tst_Presets::aPresetWithoutATitleIsListedAsWuffer()
{
    TestServices services;
    services.defaults.setObject(QVariantMap{{QStringLiteral("seconds"), 8}},
                                QStringLiteral("Preset 3"));
    QCOMPARE(Wuffer::stringForPreset(3), QStringLiteral("Wuffer - 0h 0m 8s"));
}

void tst_Presets::absurdNumbersAreListedAsTheyAre()
{
    TestServices services;
    services.defaults.setObject(
        QVariantMap{{QStringLiteral("hours"), 1e99}, {QStringLiteral("minutes"), -5}},
        QStringLiteral("Preset 3"));
    QCOMPARE(Wuffer::stringForPreset(3), QStringLiteral("Wuffer - 2147483647h -5m 0s"));
}

void tst_Presets::savingReplacesTheRecordWhole()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.typeDuration(0, 4, 30);
    t.defaults.setObject(QVariantMap{{QStringLiteral("stranger"), 7}}, QStringLiteral("Preset 4"));
    t.timer.setPreset(4);
    const TimerSettings stored = TimerSettings::fromRecord(preset(t, 4));
    QCOMPARE(stored.title, QStringLiteral("Tea"));
    QCOMPARE(stored.minutes, 4);
    QCOMPARE(stored.seconds, 30);
    QCOMPARE(stored.individualAlarmPath, std::optional(QStringLiteral("Wuff (Default)")));
    QVERIFY(!preset(t, 4).contains(QStringLiteral("stranger")));
}

void tst_Presets::savingKeepsThePlaceOfTheWindow()
{
    TimerFixture t;
    t.timer.window()->move(33, 44);
    t.timer.setPreset(0);
    const QVariantMap places = t.defaults.dictionaryForKey(QStringLiteral("windowFrames"));
    const QVariantMap expected{{QStringLiteral("x"), 33}, {QStringLiteral("y"), 44}};
    QCOMPARE(places.value(QStringLiteral("Preset 0")).toMap(), expected);
}

void tst_Presets::savingNamesAnUnnamedTimer()
{
    const TimerFixture t;
    t.timer.setPreset(5);
    QCOMPARE(t.titleField.text(), QStringLiteral("Wuffer"));
    QCOMPARE(Wuffer::stringForPreset(5), QStringLiteral("Wuffer - 0h 0m 0s"));
}

void tst_Presets::savingShowsWhereItWent()
{
    TimerFixture t;
    t.typeName(QStringLiteral("Tea"));
    t.typeDuration(0, 4, 30);
    t.timer.setPreset(4);
    QCOMPARE(t.display(), QStringLiteral("Tea"));
    QCOMPARE(t.milliseconds(), QStringLiteral("0h 4m 30s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Saved to Preset 4"));
    QVERIFY(isMarked(t));
    QCOMPARE(t.elapsedColor(), QColor(Qt::blue));
    QCOMPARE(t.timer.currentTextColor(), QColor(Qt::blue));
}

void tst_Presets::savingPostsANotice()
{
    const TimerFixture t;
    const NoticeCounter notices(kChanged);
    t.timer.setPreset(4);
    QCOMPARE(notices.count, 1);
    QCOMPARE(notices.lastObject, &t.timer);
}

void tst_Presets::aRunningTimerIsNotSaved()
{
    TimerFixture t;
    const NoticeCounter notices(kChanged);
    t.startCountdown(60);
    t.timer.setPreset(5);
    QCOMPARE(notices.count, 0);
    QVERIFY(preset(t, 5).isEmpty());
    QCOMPARE(t.titleField.text(), QString());
    QCOMPARE(t.display(), QStringLiteral("1m 0s"));
}

void tst_Presets::aTimerInItsAlarmIsNotSaved()
{
    TimerFixture t;
    t.startCountdown(1);
    t.pass(1.1);
    t.timer.setPreset(5);
    QVERIFY(preset(t, 5).isEmpty());
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
}

void tst_Presets::aStopwatchIsNotSaved()
{
    const TimerFixture t;
    const NoticeCounter notices(kChanged);
    t.timer.stopwatch();
    t.timer.setPreset(5);
    QCOMPARE(notices.count, 0);
    QVERIFY(preset(t, 5).isEmpty());
    QCOMPARE(t.display(), QStringLiteral("0s"));
}

void tst_Presets::savingATimerWithALinkForgetsTheLink()
{
    const TimerFixture t;
    const TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    t.timer.setPreset(5);
    QVERIFY(!preset(t, 5).contains(QStringLiteral("finishOption")));
    QCOMPARE(t.timer.getTargetWuffer(), &other.timer);
}

void tst_Presets::theMarkIsLostByAnEdit_data()
{
    QTest::addColumn<Act>("edit");
    for (const char *field : {"_titleField", "_hoursField", "_minutesField", "_secondsField"}) {
        QTest::newRow(field) << Act([field](TimerFixture &t) {
            QTest::keyClicks(&t.part<QLineEdit>(field), QStringLiteral("1"));
        });
    }
    for (const char *name : {"_finishedCombo", "_finishedPicker"}) {
        QTest::newRow(name) << Act([name](TimerFixture &t) {
            auto &combo = t.part<QComboBox>(name);
            QTest::keyClick(&combo, combo.currentIndex() > 0 ? Qt::Key_Home : Qt::Key_Down);
        });
    }
    for (const char *name : {"_alarmSoundCombo", "_countdownSoundCombo"}) {
        QTest::newRow(name) << Act([name](TimerFixture &t) {
            t.timer.window()->show();
            if (t.part<Drawer>("_drawer").state() == Drawer::State::Closed)
                t.timer.showHideAdvanced();
            auto &combo = t.part<QComboBox>(name);
            combo.showPopup();
            QTest::keyClick(combo.view(), Qt::Key_Home);
            QTest::keyClick(combo.view(), Qt::Key_Return);
        });
    }
    QTest::newRow("_keepWuffingBox") << Act([](TimerFixture &t) {
        t.chooseFinish(QStringLiteral("Do Nothing"));
        t.timer.setPreset(4);
        t.part<QCheckBox>("_keepWuffingBox").click();
    });
    QTest::newRow("the menu item for keeping on")
        << Act([](TimerFixture &t) { t.timer.toggleKeepWuffing(); });
}

void tst_Presets::theMarkIsLostByAnEdit()
{
    QFETCH(const Act, edit);
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    t.chooseAlarm(QStringLiteral("/sounds/bell.wav"));
    t.chooseBeep(QStringLiteral("/sounds/tick.wav"));
    t.timer.setPreset(4);
    t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 4"), false);
    QVERIFY(isMarked(t));
    edit(t);
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
    QCOMPARE(t.elapsed(), QString());
}

void tst_Presets::theMarkStays_data()
{
    QTest::addColumn<Act>("event");
    QTest::newRow("the full-screen box")
        << Act([](TimerFixture &t) { t.part<QCheckBox>("_fullScreenBox").click(); });
    QTest::newRow("a change of the preferences")
        << Act([](TimerFixture &t) { t.set("soundOff", 1); });
    QTest::newRow("the drawer") << Act([](TimerFixture &t) { t.timer.showHideAdvanced(); });
    QTest::newRow("a list that opens") << Act([](TimerFixture &t) {
        t.timer.window()->show();
        t.picker().showPopup();
        t.picker().hidePopup();
    });
    QTest::newRow("another load") << Act([](TimerFixture &t) {
        t.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 4"), false);
    });
}

void tst_Presets::theMarkStays()
{
    QFETCH(const Act, event);
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    t.timer.setPreset(4);
    event(t);
    QVERIFY(isMarked(t));
    QVERIFY(t.elapsed().contains(QStringLiteral("Preset 4")));
}

void tst_Presets::anElapsedLineInAnotherColourKeepsIt()
{
    const TimerFixture t;
    const TimerUser other;
    t.timer.setPreset(4);
    // The line about the chain is red, while the rest still has the mark of a preset.
    t.timer.setTargetWuffer(&other.timer);
    t.timer.setPresetColor();
    t.timer.refreshChainStatus();
    QCOMPARE(t.elapsedColor(), QColor::fromRgbF(0.9F, 0, 0));
    QVERIFY(isMarked(t));
    t.timer.removePresetColor();
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor::fromRgbF(0.9F, 0, 0));
    QCOMPARE(t.elapsed(), QStringLiteral("Wuffer Chain - 1 of 2"));
}

void tst_Presets::theWordPresetGoesWithoutAMark()
{
    const TimerFixture t;
    t.timer.setPreset(4);
    t.timer.setColorForDisplayText(TextColor::Red, true);
    t.timer.removePresetColor();
    QCOMPARE(t.elapsed(), QString());
    QCOMPARE(t.elapsedColor(), QColor::fromRgbF(0.9F, 0, 0));
}

void tst_Presets::anotherLineStays()
{
    const TimerFixture t;
    const QString idle = t.elapsed();
    QVERIFY(!idle.isEmpty());
    t.timer.removePresetColor();
    QCOMPARE(t.elapsed(), idle);
    t.label("_elapsedLabel").setText(QStringLiteral("a preset"));
    t.timer.removePresetColor();
    QCOMPARE(t.elapsed(), QStringLiteral("a preset"));
}

void tst_Presets::aStartedPresetIsBlackThenRed()
{
    TimerFixture t;
    t.typeDuration(0, 0, 13);
    t.timer.setPreset(4);
    t.pressGo();
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
    t.pass(2.1);
    QCOMPARE(t.color(), QColor::fromRgbF(0.9F, 0, 0));
}

WUFFER_TEST(tst_Presets)
#include "tst_Presets.moc"
