#include "app/Translation.h"
#include "rules/Preset.h"
#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

#include <QDir>
#include <QJsonArray>

namespace
{
const char *const kTimerCombos[] = {"_finishedCombo", "_alarmSoundCombo", "_countdownSoundCombo"};

/// Chooses the entry in this place, as a click in the open list does.
void choose(QComboBox &combo, int place)
{
    combo.setCurrentIndex(place);
    Q_EMIT combo.activated(place);
}

/// The settings file without the places of windows, which depend on the size of texts.
QJsonObject storedBy(PreferencesFixture &preferences)
{
    QJsonObject stored = preferences.stored();
    stored.remove(Keys::kWindowFrames.text());
    return stored;
}

/// Saves a preset for every finish action, and chooses everything that may open at launch, each by
/// its place in the list. Returns what the settings file holds after each step.
QJsonArray settingsMadeIn(const QString &language)
{
    const Translation translation({language}, {});
    QJsonArray steps;
    PreferencesFixture preferences;
    preferences.open();
    Wuffer &timer = preferences.openTimer();
    auto &finish = child<QComboBox>(*timer.window(), "_finishedCombo");
    for (int place = 0; place < finish.count(); ++place) {
        choose(finish, place);
        timer.storeSettingsInDefaultsWithKey(Preset::key(static_cast<quint32>(place)));
        steps << storedBy(preferences);
    }
    static_cast<void>(Wuffer::stringForPreset(7));
    timer.saveSettingsToDefaultKey();
    auto &launch = preferences.part<QComboBox>("_launchCombobox");
    for (int place = 0; place < launch.count(); ++place) {
        choose(launch, place);
        steps << storedBy(preferences);
    }
    return steps;
}

/// The places of the entries that a timer and the preferences select for these settings.
QList<int> placesReadIn(const QString &language, const QJsonObject &settings)
{
    const Translation translation({language}, {});
    PreferencesFixture preferences;
    for (auto each = settings.begin(); each != settings.end(); ++each)
        preferences.defaults.setObject(each.value().toVariant(), each.key());
    preferences.open();
    QList<int> places{preferences.part<QComboBox>("_launchCombobox").currentIndex()};
    Wuffer &timer = preferences.openTimer();
    for (const quint32 number : {0U, 1U, 2U, 7U}) {
        timer.loadSettingsFromDefaultsWithKey(Preset::key(number), false);
        for (const char *combo : kTimerCombos)
            places << child<QComboBox>(*timer.window(), combo).currentIndex();
    }
    return places;
}
} // namespace

/// Settings are the same in every language: what one language has stored, another reads.
class tst_LanguageOfSettings final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aLanguageStoresTheSameAsEnglish_data() { languages(); }
    void aLanguageStoresTheSameAsEnglish();
    void aLanguageReadsTheSameAsEnglish_data() { languages(); }
    void aLanguageReadsTheSameAsEnglish();

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        const QDir files(QStringLiteral(":/translations"));
        for (const QString &file : files.entryList()) {
            const QString language = file.section(u'.', 0, 0).section(u'_', 1);
            QTest::newRow(qPrintable(language)) << language;
        }
    }
};

void tst_LanguageOfSettings::aLanguageStoresTheSameAsEnglish()
{
    QFETCH(const QString, language);
    const QJsonArray english = settingsMadeIn(QStringLiteral("en"));
    QCOMPARE(english.size(), 8);
    QCOMPARE(english.last().toObject().value(Keys::kLaunchBehavior.text()).toString(),
             QStringLiteral("Open and Start Preset ⌘1"));
    QCOMPARE(settingsMadeIn(language), english);
}

void tst_LanguageOfSettings::aLanguageReadsTheSameAsEnglish()
{
    QFETCH(const QString, language);
    const QJsonObject settings = settingsMadeIn(language).last().toObject();
    const QList<int> places = placesReadIn(QStringLiteral("en"), settings);
    QCOMPARE(places.first(), 3);
    QCOMPARE(places.at(4), 1);
    QCOMPARE(placesReadIn(language, settings), places);
}

WUFFER_TEST(tst_LanguageOfSettings)
#include "tst_LanguageOfSettings.moc"
