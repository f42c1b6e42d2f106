#include "controls/ClickableImageView.h"
#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

#include <array>

namespace
{
const QStringList kLaunchChoices{QStringLiteral("Open a Wuffer"), QStringLiteral("Do Nothing"),
                                 QStringLiteral("Open Preset \u23181"),
                                 QStringLiteral("Open and Start Preset \u23181")};
const QStringList kKeys{QStringLiteral("autoStartPresets"), QStringLiteral("energySaverMode"),
                        QStringLiteral("finishedText"),     QStringLiteral("growlDisabled"),
                        QStringLiteral("launchBehavior"),   QStringLiteral("noStatusBar"),
                        QStringLiteral("soundOff"),         QStringLiteral("suppressCountdown")};
const auto kChanged = QStringLiteral("prefsChangedNotification");

struct Box
{
    const char *name;
    const char *key;
};
constexpr std::array<Box, 6> kBoxes{{{"_energySaverCheckbox", "energySaverMode"},
                                     {"_turnOffSoundCheckbox", "soundOff"},
                                     {"_autoStartPresetsCheckbox", "autoStartPresets"},
                                     {"_disableGrowlCheckbox", "growlDisabled"},
                                     {"_disableMenuBarCheckbox", "noStatusBar"},
                                     {"_suppressCountdownCheckbox", "suppressCountdown"}}};

ClickableImageView &speaker(const Wuffer &timer)
{
    return child<ClickableImageView>(*timer.window(), "_soundOffImage");
}
} // namespace

/// The options: what is shown, stored and announced, and when.
class tst_Preferences final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyStoreShowsTheDefaults();
    void loadingWritesEveryOptionBack();
    void loadingAnnouncesItselfOnce();
    void theLaunchChoicesStandInOrder();
    void aStoredBoxIsShown_data();
    void aStoredBoxIsShown();
    void theLaunchChoiceIsShown_data();
    void theLaunchChoiceIsShown();
    void theFinishedTextIsShown_data();
    void theFinishedTextIsShown();
    void loadingAgainShowsValuesStoredElsewhere();
    void aClickedBoxIsStoredAndAnnouncedAtOnce_data();
    void aClickedBoxIsStoredAndAnnouncedAtOnce();
    void aChosenLaunchIsStoredAndAnnouncedAtOnce_data();
    void aChosenLaunchIsStoredAndAnnouncedAtOnce();
    void everyKeystrokeIsStoredAndAnnounced();
    void anEmptiedTextIsStoredEmptyAndReadsAsWuff();
    void everySaveWritesEveryOptionAndNoSound();
    void muteGovernsTheControls_data();
    void muteGovernsTheControls();
    void suppressedCountdownsStayDisabledThroughMute();
    void theMenuItemIsNamedAfterWhatItDoes();
    void togglingSwitchesBetweenOnAndOff();
    void aClickOnTheSpeakerOfAnyTimerMutesAll();
    void theSpaceBarOnTheSpeakerMutesToo();
    void everyTimerIsUpToDateWhenSavingReturns();
    void keepWuffingIsSwitchedOffByMuteAndOnlyEnabledAfterIt();
    void closingTheWindowSavesOnceMore();
    void theSoundTabComesToTheFront();
    void theWindowOfTheSoundTabIsAProperty();
    void aDestroyedControllerNoLongerListens();
    void theWindowIsNotShownAndHasNoHandle();
    void everyControlHasANameAndAKeyOfItsOwn();
};

void tst_Preferences::anEmptyStoreShowsTheDefaults()
{
    PreferencesFixture p;
    p.open();
    for (const auto &[box, key] : kBoxes)
        QVERIFY2(!p.part<QCheckBox>(box).isChecked(), box);
    QCOMPARE(p.part<QComboBox>("_launchCombobox").currentText(), QStringLiteral("Open a Wuffer"));
    QCOMPARE(p.part<QLineEdit>("_finishedText").text(), QStringLiteral("Wuff!"));
    QCOMPARE(p.muteMenu.text(), QStringLiteral("Mute All"));
}

void tst_Preferences::loadingWritesEveryOptionBack()
{
    PreferencesFixture p;
    p.open();
    const QJsonObject stored = p.stored();
    QCOMPARE(stored.keys(), kKeys);
    for (const auto &[box, key] : kBoxes)
        QCOMPARE(stored.value(QString::fromLatin1(key)), QJsonValue(0));
    QCOMPARE(stored.value(QStringLiteral("launchBehavior")),
             QJsonValue(QStringLiteral("Open a Wuffer")));
    QCOMPARE(stored.value(QStringLiteral("finishedText")), QJsonValue(QStringLiteral("Wuff!")));
}

void tst_Preferences::loadingAnnouncesItselfOnce()
{
    PreferencesFixture p;
    const NoticeCounter changes(kChanged);
    const Preferences &preferences = p.open();
    QCOMPARE(changes.count, 1);
    QCOMPARE(changes.lastObject, &preferences);
}

void tst_Preferences::theLaunchChoicesStandInOrder()
{
    PreferencesFixture p;
    p.open();
    QCOMPARE(p.entries("_launchCombobox"), kLaunchChoices);
    QCOMPARE(p.part<QComboBox>("_launchCombobox").metaObject(), &WebbyComboBox::staticMetaObject);
}

void tst_Preferences::aStoredBoxIsShown_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("checked");
    const std::initializer_list<std::tuple<const char *, QVariant, bool>> values = {
        {"on", 1, true},
        {"off", 0, false},
        {"another number", -7, true},
        {"true", true, true},
        {"a text", QStringLiteral("on"), false},
        {"a list", QStringList{QStringLiteral("1")}, false},
    };
    for (const auto &[box, key] : kBoxes) {
        for (const auto &[name, value, checked] : values)
            QTest::addRow("%s is %s", key, name)
                << QString::fromLatin1(box) << QString::fromLatin1(key) << value << checked;
    }
}

void tst_Preferences::aStoredBoxIsShown()
{
    QFETCH(const QString, box);
    QFETCH(const QString, key);
    QFETCH(const QVariant, value);
    QFETCH(const bool, checked);
    PreferencesFixture p;
    p.defaults.setObject(value, key);
    p.open();
    for (const Box &each : kBoxes)
        QCOMPARE(p.part<QCheckBox>(each.name).isChecked(),
                 checked && box == QLatin1String(each.name));
    QCOMPARE(p.stored().value(key), QJsonValue(checked ? 1 : 0));
}

void tst_Preferences::theLaunchChoiceIsShown_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");
    for (const QString &choice : kLaunchChoices)
        QTest::newRow(qUtf8Printable(choice)) << QVariant(choice) << choice;
    const QString &first = kLaunchChoices.first();
    QTest::newRow("without the sign") << QVariant(QStringLiteral("Open Preset 1")) << first;
    QTest::newRow("in another case") << QVariant(QStringLiteral("do nothing")) << first;
    QTest::newRow("with a space behind") << QVariant(QStringLiteral("Do Nothing ")) << first;
    QTest::newRow("empty") << QVariant(QString()) << first;
    QTest::newRow("a number") << QVariant(2) << first;
}

void tst_Preferences::theLaunchChoiceIsShown()
{
    QFETCH(const QVariant, stored);
    QFETCH(const QString, shown);
    PreferencesFixture p;
    p.set("launchBehavior", stored);
    p.open();
    QCOMPARE(p.part<QComboBox>("_launchCombobox").currentText(), shown);
    QCOMPARE(p.stored().value(QStringLiteral("launchBehavior")), QJsonValue(shown));
}

void tst_Preferences::theFinishedTextIsShown_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");
    const auto standard = QStringLiteral("Wuff!");
    QTest::newRow("a text") << QVariant(QStringLiteral("Tea & <cake>")) << "Tea & <cake>";
    QTest::newRow("spaces") << QVariant(QStringLiteral("  ")) << "  ";
    QTest::newRow("empty") << QVariant(QString()) << standard;
    QTest::newRow("a number") << QVariant(5) << standard;
}

void tst_Preferences::theFinishedTextIsShown()
{
    QFETCH(const QVariant, stored);
    QFETCH(const QString, shown);
    PreferencesFixture p;
    p.set("finishedText", stored);
    p.open();
    QCOMPARE(p.part<QLineEdit>("_finishedText").text(), shown);
    QCOMPARE(p.stored().value(QStringLiteral("finishedText")), QJsonValue(shown));
}

void tst_Preferences::loadingAgainShowsValuesStoredElsewhere()
{
    PreferencesFixture p;
    Preferences &preferences = p.open();
    p.set("energySaverMode", 1);
    p.set("soundOff", 1);
    p.set("finishedText", QStringLiteral("Tea!"));
    p.set("launchBehavior", QStringLiteral("Do Nothing"));
    preferences.loadPreferences();
    QVERIFY(p.part<QCheckBox>("_energySaverCheckbox").isChecked());
    QCOMPARE(p.part<QLineEdit>("_finishedText").text(), QStringLiteral("Tea!"));
    QCOMPARE(p.part<QComboBox>("_launchCombobox").currentText(), QStringLiteral("Do Nothing"));
    QCOMPARE(p.muteMenu.text(), QStringLiteral("Unmute All"));
    QCOMPARE(p.entries("_launchCombobox").size(), 4);
}

void tst_Preferences::aClickedBoxIsStoredAndAnnouncedAtOnce_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("key");
    for (const auto &[box, key] : kBoxes)
        QTest::newRow(key) << QString::fromLatin1(box) << QString::fromLatin1(key);
}

void tst_Preferences::aClickedBoxIsStoredAndAnnouncedAtOnce()
{
    QFETCH(const QString, box);
    QFETCH(const QString, key);
    PreferencesFixture p;
    const Preferences &preferences = p.open();
    const NoticeCounter changes(kChanged);
    for (const int value : {1, 0}) {
        p.click(qPrintable(box));
        QCOMPARE(p.defaults.integerForKey(key), value);
        // Stored as a number, for code that reads a number.
        QCOMPARE(p.stored().value(key), QJsonValue(value));
    }
    QCOMPARE(changes.count, 2);
    QCOMPARE(changes.lastObject, &preferences);
}

void tst_Preferences::aChosenLaunchIsStoredAndAnnouncedAtOnce_data()
{
    QTest::addColumn<QString>("choice");
    for (const QString &choice : kLaunchChoices)
        QTest::newRow(qUtf8Printable(choice)) << choice;
}

void tst_Preferences::aChosenLaunchIsStoredAndAnnouncedAtOnce()
{
    QFETCH(const QString, choice);
    PreferencesFixture p;
    p.open();
    const NoticeCounter changes(kChanged);
    p.choose("_launchCombobox", choice);
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("launchBehavior")), choice);
    QCOMPARE(changes.count, 1);
}

void tst_Preferences::everyKeystrokeIsStoredAndAnnounced()
{
    PreferencesFixture p;
    p.open();
    const NoticeCounter changes(kChanged);
    QStringList texts;
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(observer, kChanged, [&](QObject *) {
        texts << p.defaults.stringForKey(QStringLiteral("finishedText")).value_or(QString());
    });
    p.type(QStringLiteral("Tea"));
    const QStringList expected{QStringLiteral("T"), QStringLiteral("Te"), QStringLiteral("Tea")};
    QCOMPARE(texts, expected);
    QCOMPARE(changes.count, 3);
}

void tst_Preferences::anEmptiedTextIsStoredEmptyAndReadsAsWuff()
{
    PreferencesFixture p;
    p.set("finishedText", QStringLiteral("T"));
    p.open();
    Wuffer &timer = p.openTimer();
    auto &field = p.part<QLineEdit>("_finishedText");
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QString());
    QCOMPARE(p.stored().value(QStringLiteral("finishedText")), QJsonValue(QString()));
    timer.setFieldsWithTimeLeft(1);
    timer.goPressed();
    p.clock.advance(1.1);
    QCOMPARE(timer.statusString(), QStringLiteral("Wuff!"));
}

void tst_Preferences::everySaveWritesEveryOptionAndNoSound()
{
    PreferencesFixture p;
    Preferences &preferences = p.open();
    for (const QString &key : kKeys)
        p.defaults.removeObjectForKey(key);
    preferences.savePreferences();
    QCOMPARE(p.stored().keys(), kKeys);
}

void tst_Preferences::muteGovernsTheControls_data()
{
    QTest::addColumn<bool>("mute");
    QTest::addColumn<bool>("suppress");
    QTest::addColumn<bool>("suppressBox");
    QTest::addColumn<bool>("alarm");
    QTest::addColumn<bool>("countdown");
    QTest::newRow("everything is heard") << false << false << true << true << true;
    QTest::newRow("no countdown") << false << true << true << true << false;
    QTest::newRow("muted") << true << false << false << false << false;
    QTest::newRow("muted, no countdown") << true << true << false << false << false;
}

void tst_Preferences::muteGovernsTheControls()
{
    QFETCH(const bool, mute);
    QFETCH(const bool, suppress);
    for (const bool byLoading : {true, false}) {
        PreferencesFixture p;
        if (byLoading) {
            p.set("soundOff", int(mute));
            p.set("suppressCountdown", int(suppress));
        }
        p.open();
        if (!byLoading && suppress)
            p.click("_suppressCountdownCheckbox");
        if (!byLoading && mute)
            p.click("_turnOffSoundCheckbox");
        QTEST(p.isEnabled("_suppressCountdownCheckbox"), "suppressBox");
        QTEST(p.isEnabled("_alarmCombo"), "alarm");
        QTEST(p.isEnabled("_alarmPlayButton"), "alarm");
        QTEST(p.isEnabled("_countdownCombo"), "countdown");
        QTEST(p.isEnabled("_countdownPlayButton"), "countdown");
        QVERIFY(p.isEnabled("_turnOffSoundCheckbox"));
    }
}

void tst_Preferences::suppressedCountdownsStayDisabledThroughMute()
{
    PreferencesFixture p;
    p.set("suppressCountdown", 1);
    p.set("soundOff", 1);
    p.open();
    for (int i = 0; i < 2; ++i) {
        p.click("_turnOffSoundCheckbox");
        QVERIFY(!p.isEnabled("_countdownCombo"));
    }
    QCOMPARE(p.defaults.integerForKey(QStringLiteral("suppressCountdown")), 1);
}

void tst_Preferences::theMenuItemIsNamedAfterWhatItDoes()
{
    PreferencesFixture p;
    p.open();
    p.click("_turnOffSoundCheckbox");
    QCOMPARE(p.muteMenu.text(), QStringLiteral("Unmute All"));
    p.click("_turnOffSoundCheckbox");
    QCOMPARE(p.muteMenu.text(), QStringLiteral("Mute All"));
}

void tst_Preferences::togglingSwitchesBetweenOnAndOff()
{
    PreferencesFixture p;
    Preferences &preferences = p.open();
    const NoticeCounter changes(kChanged);
    for (const int value : {1, 0, 1}) {
        preferences.toggleMute();
        QCOMPARE(p.part<QCheckBox>("_turnOffSoundCheckbox").isChecked(), value == 1);
        QCOMPARE(p.defaults.integerForKey(QStringLiteral("soundOff")), value);
        QCOMPARE(p.isEnabled("_alarmCombo"), value == 0);
    }
    QCOMPARE(changes.count, 3);
}

void tst_Preferences::aClickOnTheSpeakerOfAnyTimerMutesAll()
{
    PreferencesFixture p;
    p.open();
    const std::array timers{&p.openTimer(), &p.openTimer()};
    for (Wuffer *timer : timers)
        timer->playDone();
    timers[0]->playBeep();
    QTest::mouseClick(&speaker(*timers[1]), Qt::LeftButton);
    QVERIFY(p.part<QCheckBox>("_turnOffSoundCheckbox").isChecked());
    QCOMPARE(p.stored().value(QStringLiteral("soundOff")), QJsonValue(1));
    QCOMPARE(p.muteMenu.text(), QStringLiteral("Unmute All"));
    for (const Wuffer *timer : timers)
        QCOMPARE(speaker(*timer).imageName(), QStringLiteral("sound_mute.png"));
    QCOMPARE(p.sounds.diary(QStringLiteral("stop")).size(), 3);
    QVERIFY(!p.sounds.isPlaying(QStringLiteral("wolvesWuff.wav")));

    QTest::mouseClick(&speaker(*timers[0]), Qt::LeftButton);
    QVERIFY(!p.part<QCheckBox>("_turnOffSoundCheckbox").isChecked());
    QCOMPARE(p.stored().value(QStringLiteral("soundOff")), QJsonValue(0));
    QCOMPARE(p.muteMenu.text(), QStringLiteral("Mute All"));
    for (const Wuffer *timer : timers)
        QCOMPARE(speaker(*timer).imageName(), QStringLiteral("sound_high.png"));
}

void tst_Preferences::theSpaceBarOnTheSpeakerMutesToo()
{
    PreferencesFixture p;
    p.open();
    const Wuffer &timer = p.openTimer();
    QTest::keyClick(&speaker(timer), Qt::Key_Space);
    QCOMPARE(p.defaults.integerForKey(QStringLiteral("soundOff")), 1);
}

void tst_Preferences::everyTimerIsUpToDateWhenSavingReturns()
{
    PreferencesFixture p;
    Preferences &preferences = p.open();
    const std::array timers{&p.openTimer(), &p.openTimer(), &p.openTimer()};
    p.part<QCheckBox>("_turnOffSoundCheckbox").setChecked(true);
    p.part<QLineEdit>("_finishedText").setText(QStringLiteral("Tea!"));
    preferences.savePreferences();
    for (Wuffer *timer : timers) {
        QCOMPARE(speaker(*timer).imageName(), QStringLiteral("sound_mute.png"));
        timer->setFieldsWithTimeLeft(0);
        timer->goPressed();
    }
    p.clock.advance(0.1);
    for (const Wuffer *timer : timers)
        QCOMPARE(timer->statusString(), QStringLiteral("Tea!"));
}

void tst_Preferences::keepWuffingIsSwitchedOffByMuteAndOnlyEnabledAfterIt()
{
    PreferencesFixture p;
    Preferences &preferences = p.open();
    auto &box = child<QCheckBox>(*p.openTimer().window(), "_keepWuffingBox");
    box.setChecked(true);
    preferences.toggleMute();
    QVERIFY(!box.isEnabled());
    QVERIFY(!box.isChecked());
    preferences.toggleMute();
    QVERIFY(box.isEnabled());
    QVERIFY(!box.isChecked());
}

void tst_Preferences::closingTheWindowSavesOnceMore()
{
    PreferencesFixture p;
    p.open();
    p.window.show();
    p.defaults.removeObjectForKey(QStringLiteral("finishedText"));
    const NoticeCounter changes(kChanged);
    p.openTimer().window()->close();
    QCOMPARE(changes.count, 0);
    p.window.close();
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("finishedText")), QStringLiteral("Wuff!"));
    QCOMPARE(changes.count, 1);
}

void tst_Preferences::theSoundTabComesToTheFront()
{
    PreferencesFixture p;
    p.open();
    auto &tabs = p.part<QTabWidget>("_tabView");
    QVERIFY(tabs.currentWidget()->objectName() != QStringLiteral("soundTab"));
    for (int i = 0; i < 2; ++i) {
        NotificationCenter::defaultCenter().postNotificationName(
            QStringLiteral("manageSoundsNotification"));
        QVERIFY(p.window.isVisible());
        QVERIFY(!p.window.isMinimized());
        QTRY_VERIFY(p.window.isActiveWindow());
        QCOMPARE(tabs.currentWidget()->objectName(), QStringLiteral("soundTab"));
        tabs.setCurrentIndex(0);
        p.window.showMinimized();
    }
}

void tst_Preferences::theWindowOfTheSoundTabIsAProperty()
{
    PreferencesFixture p;
    Preferences &preferences = p.open();
    QCOMPARE(preferences.property("_window").value<QWidget *>(), &p.window);
    QWidget other;
    QVERIFY(preferences.setProperty("_window", QVariant::fromValue(&other)));
    preferences.showSoundTab();
    QVERIFY(other.isVisible());
    QVERIFY(!p.window.isVisible());
}

void tst_Preferences::aDestroyedControllerNoLongerListens()
{
    PreferencesFixture p;
    p.open();
    const Wuffer &timer = p.openTimer();
    p.preferences.reset();
    QTest::mouseClick(&speaker(timer), Qt::LeftButton);
    NotificationCenter::defaultCenter().postNotificationName(
        QStringLiteral("manageSoundsNotification"));
    p.window.close();
    QCOMPARE(p.defaults.integerForKey(QStringLiteral("soundOff")), 0);
    QVERIFY(!p.window.isVisible());
}

void tst_Preferences::theWindowIsNotShownAndHasNoHandle()
{
    PreferencesFixture p;
    p.open();
    QVERIFY(!p.window.isVisible());
    QVERIFY(!p.window.testAttribute(Qt::WA_WState_Created));
    QVERIFY(p.clock.isIdle());
    QCOMPARE(p.sounds.diary(), QStringList());
}

void tst_Preferences::everyControlHasANameAndAKeyOfItsOwn()
{
    PreferencesFixture p;
    p.open();
    for (const char *name : {"_launchCombobox", "_finishedText", "_alarmCombo", "_countdownCombo",
                             "_alarmPlayButton", "_countdownPlayButton"})
        QVERIFY2(!p.part<QWidget>(name).accessibleName().isEmpty(), name);
    QStringList texts;
    for (const auto *label : p.window.findChildren<QLabel *>())
        texts << label->text();
    for (const auto *box : p.window.findChildren<QCheckBox *>())
        texts << box->text();
    const auto &tabs = p.part<QTabWidget>("_tabView");
    texts << tabs.tabText(0) << tabs.tabText(1);
    // The mnemonics of the menus.
    QSet<QString> keys{QStringLiteral("Alt+F"), QStringLiteral("Alt+T"), QStringLiteral("Alt+P"),
                       QStringLiteral("Alt+W"), QStringLiteral("Alt+H")};
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(text));
        keys << key;
    }
    QVERIFY(keys.size() > 14);
}

WUFFER_TEST(tst_Preferences)
#include "tst_Preferences.moc"
