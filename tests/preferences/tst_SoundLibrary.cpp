#include "app/WufferApplication.h"
#include "sounds/SoundCombos.h"
#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

#include <QJsonArray>

namespace
{
const auto kWuff = QStringLiteral("Wuff (Default)");
const auto kCrow = QStringLiteral("Crow (Default)");
const auto kSelect = QStringLiteral("Select another sound...");
const auto kClear = QStringLiteral("Clear custom sounds");
const auto kManage = QStringLiteral("Manage Sounds...");
const auto kBell = QStringLiteral("/sounds/Bell.aiff");
const auto kChime = QStringLiteral("/sounds/Chime.wav");
const auto kText = QStringLiteral("/texts/Letter.txt");
const auto kChanged = QStringLiteral("prefsChangedNotification");

constexpr const char *kAlarm = "_alarmCombo";
constexpr const char *kCountdown = "_countdownCombo";

/// The preferences, with two playable files.
class Fixture : public PreferencesFixture
{
public:
    Fixture()
    {
        sounds.setFileDuration(kBell, 1.5);
        sounds.setFileDuration(kChime, 0.5);
    }

    void addTo(const char *combo, const QString &path)
    {
        openPanel.choose(path);
        choose(combo, kSelect);
    }
    [[nodiscard]] QStringList history() const
    {
        return defaults.stringArrayForKey(QStringLiteral("soundHistory"));
    }
    /// The value stored under the key; "(nothing)" if there is none.
    [[nodiscard]] QString path(const char *key) const
    {
        return defaults.stringForKey(QString::fromLatin1(key))
            .value_or(QStringLiteral("(nothing)"));
    }
};

/// An open panel during which the program is asked to quit.
class PanelAtTheEnd final : public OpenPanel
{
public:
    std::optional<QUrl> runModal(QWidget & /*window*/, const QString & /*title*/) override
    {
        QEvent end(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &end);
        return std::nullopt;
    }
};

const auto kNothing = QStringLiteral("(nothing)");

WebbyComboBox &alarmOf(const Wuffer &timer)
{
    return child<WebbyComboBox>(*timer.window(), "_alarmSoundCombo");
}

WebbyComboBox &countdownOf(const Wuffer &timer)
{
    return child<WebbyComboBox>(*timer.window(), "_countdownSoundCombo");
}

void chooseIn(WebbyComboBox &combo, const QString &text)
{
    combo.setCurrentIndex(combo.findText(text));
    Q_EMIT combo.activated(combo.currentIndex());
}
} // namespace

/// The user's own sounds: adding, listing and removing them.
class tst_SoundLibrary final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void withoutSoundsOnlyTheFixedEntriesAreOffered();
    void aFileIsValidWhenItHasADuration();
    void thePanelAsksForAnyFileOverThePreferences();
    void anAddedSoundBecomesTheSoundOfItsCombo_data();
    void anAddedSoundBecomesTheSoundOfItsCombo();
    void newerSoundsStandBeforeOlderInAllFourCombos();
    void aSoundAddedAgainKeepsItsPlace();
    void aFileThatIsNoSoundBeepsAndIsNotListed();
    void aFileThatIsNotOnThisComputerIsNoSound();
    void aKnownSoundThatHasGoneBadIsNotStored();
    void aCancelledPanelGoesBackToTheBuiltInSound_data();
    void aCancelledPanelGoesBackToTheBuiltInSound();
    void addingStoresTheListEvenUnchanged();
    void aListedSoundIsStoredWhenChosen();
    void aListedSoundThatCannotBePlayedIsNotStored();
    void aBuiltInSoundIsStoredByForgettingThePath();
    void everyChoiceIsAnnounced_data();
    void everyChoiceIsAnnounced();
    void aChoiceOfNothingOrElsewhereIsHarmless();
    void clearingForgetsEverything();
    void clearedSoundsLeaveTheTimersToo();
    void removingTouchesTheStoredListOnly();
    void storedSoundsAreSelectedSilentlyAtLoading();
    void aStalePathIsPrunedWithABeepAndTheWindowInFront();
    void twoStalePathsArePrunedBoth();
    void aDeletedFileStaysListedWhileItIsNotInUse();
    void aStoredPathThatIsNotListedSelectsNothing();
    void theLabelsNameTheSoundsInUse();
    void aFileCalledLikeACommandIsAFile();
    void aListOfWrongTypeIsEmpty();
    void twoFilesOfOneNameAreToldApartByTheirPaths();
    void aTimerOffersTheSoundsAndTheirManagement();
    void aNewTimerBeginsWithTheGlobalSounds();
    void aNewTimerMaySelectASoundThatCannotBePlayed();
    void anOpenTimerKeepsItsOwnChoice();
    void aTimerWithoutASelectionTakesTheGlobalSounds();
    void fillingATimersCombosIsSilent();
    void managingSoundsLeadsToTheSoundTab_data();
    void managingSoundsLeadsToTheSoundTab();
    void anotherEntryOfATimerLeadsNowhere();
    void theTimersCombosFollowTheSwitches_data();
    void theTimersCombosFollowTheSwitches();
    void anAddedSoundRings();
    // Last, because the end of the program cannot be undone.
    void theEndOfTheProgramChoosesNoSound();
};

void tst_SoundLibrary::withoutSoundsOnlyTheFixedEntriesAreOffered()
{
    Fixture p;
    p.open();
    QCOMPARE(p.entries(kAlarm), QStringList({kWuff, kSelect, kClear}));
    QCOMPARE(p.entries(kCountdown), QStringList({kCrow, kSelect, kClear}));
    QCOMPARE(p.selected(kAlarm), kWuff);
    QCOMPARE(p.selected(kCountdown), kCrow);
    for (const char *combo : {kAlarm, kCountdown})
        QCOMPARE(p.part<QComboBox>(combo).metaObject(), &WebbyComboBox::staticMetaObject);
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundLibrary::aFileIsValidWhenItHasADuration()
{
    Fixture p;
    const Preferences &preferences = p.open();
    QVERIFY(preferences.soundFileIsValid(kBell));
    QVERIFY(!preferences.soundFileIsValid(kText));
    QVERIFY(!preferences.soundFileIsValid(QStringLiteral("/no/such/file")));
    QVERIFY(!p.sounds.sound(kBell));
    p.sounds.clearDiary();
    QVERIFY(!preferences.soundFileIsValid(QString()));
    QCOMPARE(p.sounds.diary(), QStringList());
}

void tst_SoundLibrary::thePanelAsksForAnyFileOverThePreferences()
{
    Fixture p;
    Preferences &preferences = p.open();
    p.openPanel.choose(kBell);
    QCOMPARE(preferences.getSoundFileURL(), QUrl::fromLocalFile(kBell));
    QCOMPARE(p.openPanel.titles, QStringList{QStringLiteral("Select a sound file")});
    QCOMPARE(p.openPanel.lastWindow, &p.window);
    QCOMPARE(preferences.getSoundFileURL(), std::nullopt);
    QCOMPARE(p.history(), QStringList());
}

void tst_SoundLibrary::anAddedSoundBecomesTheSoundOfItsCombo_data()
{
    QTest::addColumn<QByteArray>("combo");
    QTest::addColumn<QString>("alarmPath");
    QTest::addColumn<QString>("countdownPath");
    QTest::addColumn<QString>("alarm");
    QTest::addColumn<QString>("countdown");
    QTest::newRow("alarm") << QByteArray(kAlarm) << kBell << kNothing << kBell << kCrow;
    QTest::newRow("countdown") << QByteArray(kCountdown) << kNothing << kBell << kWuff << kBell;
}

void tst_SoundLibrary::anAddedSoundBecomesTheSoundOfItsCombo()
{
    QFETCH(const QByteArray, combo);
    Fixture p;
    p.open();
    p.addTo(combo.constData(), kBell);
    QTEST(p.path("alarmPath"), "alarmPath");
    QTEST(p.path("countdownPath"), "countdownPath");
    QTEST(p.selected(kAlarm), "alarm");
    QTEST(p.selected(kCountdown), "countdown");
    QCOMPARE(p.history(), QStringList{kBell});
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundLibrary::newerSoundsStandBeforeOlderInAllFourCombos()
{
    Fixture p;
    const Wuffer &timer = p.openTimer();
    p.open();
    p.addTo(kAlarm, kBell);
    p.addTo(kCountdown, kChime);
    const QStringList own{QStringLiteral("Chime"), QStringLiteral("Bell")};
    QCOMPARE(p.entries(kAlarm), QStringList({kWuff}) + own + QStringList({kSelect, kClear}));
    QCOMPARE(p.entries(kCountdown), QStringList({kCrow}) + own + QStringList({kSelect, kClear}));
    QCOMPARE(p.entries(alarmOf(timer)), QStringList({kWuff}) + own + QStringList({kManage}));
    QCOMPARE(p.entries(countdownOf(timer)), QStringList({kCrow}) + own + QStringList({kManage}));
    QCOMPARE(p.selected(kAlarm), kBell);
    QCOMPARE(p.selected(kCountdown), kChime);
}

void tst_SoundLibrary::aSoundAddedAgainKeepsItsPlace()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    p.addTo(kAlarm, kChime);
    p.addTo(kAlarm, kBell);
    QCOMPARE(p.history(), QStringList({kChime, kBell}));
    QCOMPARE(p.path("alarmPath"), kBell);
    QCOMPARE(p.selected(kAlarm), kBell);
}

void tst_SoundLibrary::aFileThatIsNoSoundBeepsAndIsNotListed()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    const QStringList before = p.entries(kAlarm);
    p.addTo(kAlarm, kText);
    QCOMPARE(p.desktop.beeps, 1);
    QCOMPARE(p.entries(kAlarm), before);
    QCOMPARE(p.history(), QStringList{kBell});
    // The combo shows the previous choice again.
    QCOMPARE(p.selected(kAlarm), kBell);
    QCOMPARE(p.path("alarmPath"), kBell);
}

void tst_SoundLibrary::aFileThatIsNotOnThisComputerIsNoSound()
{
    Fixture p;
    Preferences &preferences = p.open();
    p.openPanel.choose(QUrl(QStringLiteral("https://example.org/bell.wav")));
    QVERIFY(preferences.addSoundPath().has_value());
    QCOMPARE(p.desktop.beeps, 1);
    QCOMPARE(p.history(), QStringList());
}

void tst_SoundLibrary::aKnownSoundThatHasGoneBadIsNotStored()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    p.addTo(kAlarm, kChime);
    p.sounds.setFileDuration(kBell, 0);
    p.addTo(kAlarm, kBell);
    QCOMPARE(p.desktop.beeps, 1);
    QCOMPARE(p.path("alarmPath"), kChime);
    QCOMPARE(p.history(), QStringList({kChime, kBell}));
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Chime"));
}

void tst_SoundLibrary::aCancelledPanelGoesBackToTheBuiltInSound_data()
{
    QTest::addColumn<QByteArray>("combo");
    QTest::addColumn<QString>("alarm");
    QTest::addColumn<QString>("countdown");
    QTest::addColumn<QString>("alarmPath");
    QTest::addColumn<QString>("countdownPath");
    QTest::newRow("alarm") << QByteArray(kAlarm) << kWuff << kBell << kNothing << kBell;
    QTest::newRow("countdown") << QByteArray(kCountdown) << kBell << kCrow << kBell << kNothing;
}

void tst_SoundLibrary::aCancelledPanelGoesBackToTheBuiltInSound()
{
    QFETCH(const QByteArray, combo);
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    p.addTo(kCountdown, kBell);
    p.choose(combo.constData(), kSelect);
    QTEST(p.selected(kAlarm), "alarm");
    QTEST(p.selected(kCountdown), "countdown");
    QTEST(p.path("alarmPath"), "alarmPath");
    QTEST(p.path("countdownPath"), "countdownPath");
    QCOMPARE(p.history(), QStringList{kBell});
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundLibrary::addingStoresTheListEvenUnchanged()
{
    Fixture p;
    Preferences &preferences = p.open();
    p.set("soundHistory", QVariantList{kBell, 7, kChime});
    p.openPanel.choose(kChime);
    QCOMPARE(preferences.addSoundPath(), kChime);
    const QJsonArray expected{kBell, kChime};
    QCOMPARE(p.stored().value(QStringLiteral("soundHistory")), QJsonValue(expected));
    // The sound is listed but not chosen.
    QCOMPARE(p.path("alarmPath"), kNothing);
}

void tst_SoundLibrary::aListedSoundIsStoredWhenChosen()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell, kChime});
    p.open();
    p.choose(kAlarm, QStringLiteral("Chime"));
    QCOMPARE(p.path("alarmPath"), kChime);
    QCOMPARE(p.path("countdownPath"), kNothing);
    p.choose(kCountdown, QStringLiteral("Bell"));
    QCOMPARE(p.path("alarmPath"), kChime);
    QCOMPARE(p.path("countdownPath"), kBell);
    QCOMPARE(p.history(), QStringList({kBell, kChime}));
}

void tst_SoundLibrary::aListedSoundThatCannotBePlayedIsNotStored()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell, kText});
    p.set("alarmPath", kBell);
    p.open();
    p.choose(kAlarm, QStringLiteral("Letter"));
    QCOMPARE(p.path("alarmPath"), kBell);
    QCOMPARE(p.desktop.beeps, 0);
    QCOMPARE(p.history(), QStringList({kBell, kText}));
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Bell"));
    // A sound that was removed from the stored list is not stored either.
    p.set("soundHistory", QStringList{});
    p.set("alarmPath", kChime);
    p.choose(kAlarm, QStringLiteral("Bell"));
    QCOMPARE(p.path("alarmPath"), kChime);
}

void tst_SoundLibrary::aBuiltInSoundIsStoredByForgettingThePath()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    p.set("alarmPath", kBell);
    p.set("countdownPath", kBell);
    p.open();
    p.choose(kAlarm, kWuff);
    QVERIFY(!p.stored().contains(QStringLiteral("alarmPath")));
    QCOMPARE(p.path("countdownPath"), kBell);
    p.choose(kCountdown, kCrow);
    QVERIFY(!p.stored().contains(QStringLiteral("countdownPath")));
    QCOMPARE(p.history(), QStringList{kBell});
}

void tst_SoundLibrary::everyChoiceIsAnnounced_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("announcements");
    // A selection that follows from another counts as a choice, too.
    QTest::newRow("an added sound") << kSelect << kChime << 2;
    QTest::newRow("a file that is no sound") << kSelect << QStringLiteral("/texts/Other.txt") << 1;
    QTest::newRow("a listed file that is no sound") << kSelect << kText << 2;
    QTest::newRow("a cancel") << kSelect << QString() << 2;
    QTest::newRow("clear") << kClear << QString() << 1;
    QTest::newRow("the built-in sound") << kWuff << QString() << 1;
    QTest::newRow("a listed sound") << QStringLiteral("Bell") << QString() << 1;
    QTest::newRow("a listed sound gone bad") << QStringLiteral("Letter") << QString() << 1;
}

void tst_SoundLibrary::everyChoiceIsAnnounced()
{
    QFETCH(const QString, entry);
    QFETCH(const QString, file);
    Fixture p;
    p.set("soundHistory", QStringList{kBell, kText});
    const Preferences &preferences = p.open();
    if (!file.isEmpty())
        p.openPanel.choose(file);
    const NoticeCounter changes(kChanged);
    p.choose(kAlarm, entry);
    QTEST(changes.count, "announcements");
    QCOMPARE(changes.lastObject, &preferences);
}

void tst_SoundLibrary::aChoiceOfNothingOrElsewhereIsHarmless()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    p.set("alarmPath", kBell);
    Preferences &preferences = p.open();
    const NoticeCounter changes(kChanged);
    WebbyComboBox other;
    other.addItemWithObjectValue(kClear);
    other.setCurrentIndex(0);
    preferences.comboBoxSelectionDidChange(nullptr);
    preferences.comboBoxSelectionDidChange(&other);
    QCOMPARE(changes.count, 0);
    p.part<QComboBox>(kAlarm).setCurrentIndex(-1);
    preferences.comboBoxSelectionDidChange(&p.part<WebbyComboBox>(kAlarm));
    QCOMPARE(changes.count, 1);
    QCOMPARE(p.path("alarmPath"), kBell);
    QCOMPARE(p.history(), QStringList{kBell});
}

void tst_SoundLibrary::clearingForgetsEverything()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    p.addTo(kCountdown, kChime);
    p.choose(kCountdown, kClear);
    QCOMPARE(p.entries(kAlarm), QStringList({kWuff, kSelect, kClear}));
    QCOMPARE(p.entries(kCountdown), QStringList({kCrow, kSelect, kClear}));
    QCOMPARE(p.selected(kAlarm), kWuff);
    QCOMPARE(p.selected(kCountdown), kCrow);
    QCOMPARE(p.label("_alarmLabel"), kWuff);
    QCOMPARE(p.label("_countdownLabel"), kCrow);
    for (const char *key : {"soundHistory", "alarmPath", "countdownPath"})
        QVERIFY2(!p.stored().contains(QLatin1String(key)), key);
}

void tst_SoundLibrary::clearedSoundsLeaveTheTimersToo()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    const Wuffer &timer = p.openTimer();
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), kBell);
    p.choose(kAlarm, kClear);
    QCOMPARE(p.entries(alarmOf(timer)), QStringList({kWuff, kManage}));
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), kWuff);
}

void tst_SoundLibrary::removingTouchesTheStoredListOnly()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell, kChime, kBell});
    Preferences &preferences = p.open();
    const QStringList before = p.entries(kAlarm);
    const NoticeCounter changes(kChanged);
    preferences.removeSound(kBell);
    QCOMPARE(p.history(), QStringList{kChime});
    QCOMPARE(p.entries(kAlarm), before);
    QCOMPARE(changes.count, 0);
}

void tst_SoundLibrary::storedSoundsAreSelectedSilentlyAtLoading()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell, kChime});
    p.set("alarmPath", kChime);
    p.set("countdownPath", kBell);
    const NoticeCounter changes(kChanged);
    p.open();
    QCOMPARE(p.selected(kAlarm), kChime);
    QCOMPARE(p.selected(kCountdown), kBell);
    // Only loading itself is announced.
    QCOMPARE(changes.count, 1);
    QVERIFY(!p.window.isVisible());
}

void tst_SoundLibrary::aStalePathIsPrunedWithABeepAndTheWindowInFront()
{
    Fixture p;
    p.set("soundHistory", QStringList{kText, kBell});
    p.set("alarmPath", kText);
    Preferences &preferences = p.open();
    QCOMPARE(p.desktop.beeps, 1);
    QVERIFY(p.window.isVisible());
    QCOMPARE(p.history(), QStringList{kBell});
    QCOMPARE(p.selected(kAlarm), kWuff);
    // The stored path stays, and its entry stays until the lists are filled again.
    QCOMPARE(p.path("alarmPath"), kText);
    QVERIFY(p.entries(kAlarm).contains(QStringLiteral("Letter")));
    preferences.populateComboBoxes();
    QVERIFY(!p.entries(kAlarm).contains(QStringLiteral("Letter")));
    QCOMPARE(p.desktop.beeps, 2);
}

void tst_SoundLibrary::twoStalePathsArePrunedBoth()
{
    Fixture p;
    p.set("soundHistory", QStringList{kText, kBell});
    p.set("alarmPath", kText);
    p.set("countdownPath", QStringLiteral("/no/such.wav"));
    p.open();
    QCOMPARE(p.desktop.beeps, 2);
    QCOMPARE(p.history(), QStringList{kBell});
    QCOMPARE(p.selected(kCountdown), kCrow);
    QCOMPARE(p.path("countdownPath"), QStringLiteral("/no/such.wav"));
}

void tst_SoundLibrary::aDeletedFileStaysListedWhileItIsNotInUse()
{
    Fixture p;
    p.set("soundHistory", QStringList{kText, kBell});
    Preferences &preferences = p.open();
    preferences.populateComboBoxes();
    QVERIFY(p.entries(kAlarm).contains(QStringLiteral("Letter")));
    QCOMPARE(p.history(), QStringList({kText, kBell}));
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundLibrary::aStoredPathThatIsNotListedSelectsNothing()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.open();
    QCOMPARE(p.selected(kAlarm), kNothing);
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Bell"));
    QCOMPARE(p.path("alarmPath"), kBell);
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundLibrary::theLabelsNameTheSoundsInUse()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    p.set("alarmPath", kBell);
    p.open();
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Bell"));
    QCOMPARE(p.label("_countdownLabel"), kCrow);
    p.addTo(kCountdown, kChime);
    QCOMPARE(p.label("_countdownLabel"), QStringLiteral("Chime"));
    p.choose(kAlarm, kWuff);
    QCOMPARE(p.label("_alarmLabel"), kWuff);
}

void tst_SoundLibrary::aFileCalledLikeACommandIsAFile()
{
    Fixture p;
    const auto file = QStringLiteral("/sounds/Clear custom sounds.wav");
    p.sounds.setFileDuration(file, 1);
    p.set("soundHistory", QStringList{file, kBell});
    p.open();
    p.choose(kAlarm, kClear);
    QCOMPARE(p.path("alarmPath"), file);
    QCOMPARE(p.history(), QStringList({file, kBell}));
}

void tst_SoundLibrary::aListOfWrongTypeIsEmpty()
{
    for (const QVariant &bad : {QVariant(kBell), QVariant(7), QVariant(QVariantMap())}) {
        Fixture p;
        p.set("soundHistory", bad);
        p.set("alarmPath", 42);
        p.open();
        QCOMPARE(p.entries(kAlarm).size(), 3);
        QCOMPARE(p.selected(kAlarm), kWuff);
        QCOMPARE(p.label("_alarmLabel"), kWuff);
        p.addTo(kAlarm, kBell);
        QCOMPARE(p.history(), QStringList{kBell});
    }
}

void tst_SoundLibrary::twoFilesOfOneNameAreToldApartByTheirPaths()
{
    Fixture p;
    const auto other = QStringLiteral("/other/Bell.wav");
    p.sounds.setFileDuration(other, 1);
    p.open();
    p.addTo(kAlarm, kBell);
    p.addTo(kAlarm, other);
    QCOMPARE(p.entries(kAlarm).filter(QStringLiteral("Bell")).size(), 2);
    QCOMPARE(p.selected(kAlarm), other);
    auto &combo = p.part<QComboBox>(kAlarm);
    QCOMPARE(combo.itemData(1, Qt::ToolTipRole).toString(), SoundCombos::toolTip(other));
    QCOMPARE(combo.itemData(2, Qt::ToolTipRole).toString(), SoundCombos::toolTip(kBell));
    QCOMPARE(SoundCombos::toolTip(QStringLiteral("/a & <b>.wav")),
             QStringLiteral("<p>/a\u00A0&amp;\u00A0&lt;b&gt;.wav</p>"));
    QCOMPARE(SoundCombos::toolTip(QString()), QString());
    combo.setCurrentIndex(2);
    Q_EMIT combo.activated(2);
    QCOMPARE(p.path("alarmPath"), kBell);
}

void tst_SoundLibrary::aTimerOffersTheSoundsAndTheirManagement()
{
    Fixture p;
    p.set("soundHistory", QStringList{kChime, kBell});
    const Wuffer &timer = p.openTimer();
    const QStringList own{QStringLiteral("Chime"), QStringLiteral("Bell"), kManage};
    QCOMPARE(p.entries(alarmOf(timer)), QStringList({kWuff}) + own);
    QCOMPARE(p.entries(countdownOf(timer)), QStringList({kCrow}) + own);
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), kWuff);
    QCOMPARE(countdownOf(timer).dataObjectOfSelectedItem(), kCrow);
}

void tst_SoundLibrary::aNewTimerBeginsWithTheGlobalSounds()
{
    Fixture p;
    p.set("soundHistory", QStringList{kChime, kBell});
    p.set("alarmPath", kBell);
    p.set("countdownPath", kChime);
    const Wuffer &timer = p.openTimer();
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), kBell);
    QCOMPARE(countdownOf(timer).dataObjectOfSelectedItem(), kChime);
}

void tst_SoundLibrary::aNewTimerMaySelectASoundThatCannotBePlayed()
{
    Fixture p;
    p.set("soundHistory", QStringList{kText});
    p.set("alarmPath", kText);
    p.set("countdownPath", QStringLiteral("/not/listed.wav"));
    const Wuffer &timer = p.openTimer();
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), kText);
    QCOMPARE(countdownOf(timer).dataObjectOfSelectedItem(), kCrow);
    QCOMPARE(p.desktop.beeps, 0);
    QCOMPARE(p.sounds.diary(), QStringList());
}

void tst_SoundLibrary::anOpenTimerKeepsItsOwnChoice()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    p.open();
    const Wuffer &builtIn = p.openTimer();
    const Wuffer &own = p.openTimer();
    chooseIn(alarmOf(own), QStringLiteral("Bell"));
    p.addTo(kAlarm, kChime);
    p.addTo(kCountdown, kChime);
    QCOMPARE(alarmOf(builtIn).dataObjectOfSelectedItem(), kWuff);
    QCOMPARE(countdownOf(builtIn).dataObjectOfSelectedItem(), kCrow);
    QCOMPARE(alarmOf(own).dataObjectOfSelectedItem(), kBell);
    QCOMPARE(alarmOf(p.openTimer()).dataObjectOfSelectedItem(), kChime);
}

void tst_SoundLibrary::aTimerWithoutASelectionTakesTheGlobalSounds()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    Wuffer &timer = p.openTimer();
    p.set("alarmPath", kBell);
    alarmOf(timer).setCurrentIndex(-1);
    timer.populateSoundCombos();
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), kBell);
}

void tst_SoundLibrary::fillingATimersCombosIsSilent()
{
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    Wuffer &timer = p.openTimer();
    int reports = 0;
    connect(&alarmOf(timer), &QComboBox::currentIndexChanged, this, [&] { ++reports; });
    connect(&alarmOf(timer), &QComboBox::activated, this, [&] { ++reports; });
    timer.populateSoundCombos();
    QCOMPARE(reports, 0);
    alarmOf(timer).setCurrentIndex(1);
    QCOMPARE(reports, 1);
}

void tst_SoundLibrary::managingSoundsLeadsToTheSoundTab_data()
{
    QTest::addColumn<bool>("alarm");
    QTest::newRow("alarm") << true;
    QTest::newRow("countdown") << false;
}

void tst_SoundLibrary::managingSoundsLeadsToTheSoundTab()
{
    QFETCH(const bool, alarm);
    Fixture p;
    p.set("soundHistory", QStringList{kBell});
    p.open();
    const Wuffer &timer = p.openTimer();
    WebbyComboBox &combo = alarm ? alarmOf(timer) : countdownOf(timer);
    chooseIn(combo, QStringLiteral("Bell"));
    const NoticeCounter notices(QStringLiteral("manageSoundsNotification"));
    chooseIn(combo, kManage);
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(combo.dataObjectOfSelectedItem(), alarm ? kWuff : kCrow);
    QCOMPARE(notices.count, 1);
    QCOMPARE(notices.lastObject, nullptr);
    QVERIFY(p.window.isVisible());
    QCOMPARE(p.part<QTabWidget>("_tabView").currentWidget()->objectName(),
             QStringLiteral("soundTab"));
}

void tst_SoundLibrary::anotherEntryOfATimerLeadsNowhere()
{
    Fixture p;
    const auto file = QStringLiteral("/sounds/Manage Sounds....wav");
    p.set("soundHistory", QStringList{file, kBell});
    p.open();
    const Wuffer &timer = p.openTimer();
    const NoticeCounter notices(QStringLiteral("manageSoundsNotification"));
    chooseIn(alarmOf(timer), QStringLiteral("Bell"));
    // A file with the command's name, which is listed before the command.
    chooseIn(alarmOf(timer), kManage);
    QCOMPARE(alarmOf(timer).dataObjectOfSelectedItem(), file);
    QCOMPARE(notices.count, 0);
    QVERIFY(!p.window.isVisible());
}

void tst_SoundLibrary::theTimersCombosFollowTheSwitches_data()
{
    QTest::addColumn<bool>("mute");
    QTest::addColumn<bool>("suppress");
    QTest::addColumn<bool>("stopwatch");
    QTest::addColumn<bool>("alarm");
    QTest::addColumn<bool>("countdown");
    QTest::newRow("everything is heard") << false << false << false << true << true;
    QTest::newRow("no countdown sounds") << false << true << false << true << false;
    QTest::newRow("muted") << true << false << false << false << false;
    QTest::newRow("muted, no countdown sounds") << true << true << false << false << false;
    QTest::newRow("a stopwatch") << false << false << true << false << false;
    QTest::newRow("a stopwatch, no countdown sounds") << false << true << true << false << false;
    QTest::newRow("a muted stopwatch") << true << false << true << false << false;
    QTest::newRow("all of it") << true << true << true << false << false;
}

void tst_SoundLibrary::theTimersCombosFollowTheSwitches()
{
    QFETCH(const bool, mute);
    QFETCH(const bool, suppress);
    QFETCH(const bool, stopwatch);
    Fixture p;
    p.open();
    Wuffer &timer = p.openTimer();
    if (suppress)
        p.click("_suppressCountdownCheckbox");
    if (mute)
        p.click("_turnOffSoundCheckbox");
    if (stopwatch)
        timer.stopwatch();
    QTEST(alarmOf(timer).isEnabled(), "alarm");
    QTEST(countdownOf(timer).isEnabled(), "countdown");
}

void tst_SoundLibrary::anAddedSoundRings()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    Wuffer &timer = p.openTimer();
    timer.setFieldsWithTimeLeft(1);
    timer.goPressed();
    p.clock.advance(1.1);
    QVERIFY(p.sounds.isPlaying(kBell));
}

void tst_SoundLibrary::theEndOfTheProgramChoosesNoSound()
{
    Fixture p;
    p.open();
    p.addTo(kAlarm, kBell);
    PanelAtTheEnd panel;
    const Service<OpenPanel> service(panel);
    p.choose(kAlarm, kSelect);
    QVERIFY(WufferApplication::isQuitting());
    QCOMPARE(p.path("alarmPath"), kBell);
}

WUFFER_TEST(tst_SoundLibrary)
#include "tst_SoundLibrary.moc"
