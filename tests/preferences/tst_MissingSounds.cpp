#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

#include <QTextDocumentFragment>

namespace
{
const auto kBell = QStringLiteral("/sounds/Bell.aiff");
const auto kChime = QStringLiteral("/sounds/Chime.wav");
const auto kGone = QStringLiteral("/sounds/Gone & <b>lost.wav");

/// The preferences, with two playable files, and a missing file in the settings.
class Fixture : public PreferencesFixture
{
public:
    Fixture()
    {
        sounds.setFileDuration(kBell, 1.5);
        sounds.setFileDuration(kChime, 0.5);
        set("soundHistory", QStringList{kGone, kBell, kChime});
    }

    /// The page's hint about a missing file, such as “Missing: Gone.wav”; empty without one.
    [[nodiscard]] QString missing(const char *kind) const
    {
        const auto name = [kind](const char *what) {
            return QByteArray("_").append(kind).append(what);
        };
        const auto &word = part<QLabel>(name("MissingWord"));
        const auto &label = part<QLabel>(name("MissingLabel"));
        if (word.isHidden() || label.isHidden())
            return word.isHidden() && label.isHidden() ? QString() : QStringLiteral("half");
        return word.text() + QLatin1Char(' ') + label.text();
    }
};
} // namespace

/// Hints in the preferences about stored sounds that are missing.
class tst_MissingSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSaidOfSoundsThatAreThere();
    void aMissingFileIsNamedInItsRow_data();
    void aMissingFileIsNamedInItsRow();
    void bothRowsMayShowAHint();
    void aFileThatIsThereAndNoSoundIsSaidToBeUnplayable();
    void thePreferencesComeForwardOnThePageOfTheSounds();
    void anotherSoundRemovesTheHint_data();
    void anotherSoundRemovesTheHint();
    void anotherSoundOfTheOtherKindKeepsTheHint();
    void clearingRemovesTheHint();
};

void tst_MissingSounds::nothingIsSaidOfSoundsThatAreThere()
{
    Fixture p;
    p.set("alarmPath", kBell);
    p.open();
    QCOMPARE(p.missing("alarm"), QString());
    QCOMPARE(p.missing("countdown"), QString());
}

void tst_MissingSounds::aMissingFileIsNamedInItsRow_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("other");
    QTest::newRow("alarm") << QStringLiteral("alarm") << QStringLiteral("countdown");
    QTest::newRow("countdown") << QStringLiteral("countdown") << QStringLiteral("alarm");
}

void tst_MissingSounds::aMissingFileIsNamedInItsRow()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, other);
    Fixture p;
    p.set(qPrintable(kind + QStringLiteral("Path")), kGone);
    p.open();
    QCOMPARE(p.missing(qPrintable(kind)), QStringLiteral("Missing: Gone & <b>lost.wav"));
    QCOMPARE(p.missing(qPrintable(other)), QString());
    const QByteArray label = QStringLiteral("_%1MissingLabel").arg(kind).toLatin1();
    const QString tip = p.part<QLabel>(label).toolTip();
    QCOMPARE(
        QTextDocumentFragment::fromHtml(tip).toPlainText().replace(QChar::Nbsp, QLatin1Char(' ')),
        kGone);
}

void tst_MissingSounds::bothRowsMayShowAHint()
{
    Fixture p;
    p.set("alarmPath", kGone);
    p.set("countdownPath", kGone);
    p.open();
    QVERIFY(!p.missing("alarm").isEmpty());
    QVERIFY(!p.missing("countdown").isEmpty());
}

void tst_MissingSounds::aFileThatIsThereAndNoSoundIsSaidToBeUnplayable()
{
    Fixture p;
    // The settings file exists and is not a sound.
    p.defaults.synchronize();
    p.set("alarmPath", p.settingsPath());
    p.open();
    QCOMPARE(p.missing("alarm"), QStringLiteral("Unplayable: settings.json"));
}

void tst_MissingSounds::thePreferencesComeForwardOnThePageOfTheSounds()
{
    Fixture p;
    p.set("alarmPath", kGone);
    p.open();
    QVERIFY(p.window.isVisible());
    QCOMPARE(p.part<QTabWidget>("_tabView").currentWidget(), &p.part<QWidget>("soundTab"));
    // As for any missing file: removed from the list, still stored as the choice, and a beep.
    const QStringList kept{kBell, kChime};
    QCOMPARE(p.defaults.stringArrayForKey(QStringLiteral("soundHistory")), kept);
    QCOMPARE(p.defaults.stringForKey(QStringLiteral("alarmPath")), kGone);
    QCOMPARE(p.desktop.beeps, 1);
}

void tst_MissingSounds::anotherSoundRemovesTheHint_data()
{
    QTest::addColumn<QString>("choice");
    QTest::newRow("one of the list") << QStringLiteral("Bell");
    QTest::newRow("the built-in one") << QStringLiteral("Wuff (Default)");
    QTest::newRow("another") << QStringLiteral("Select another sound...");
}

void tst_MissingSounds::anotherSoundRemovesTheHint()
{
    QFETCH(const QString, choice);
    Fixture p;
    p.set("alarmPath", kGone);
    p.open();
    p.openPanel.choose(kChime);
    p.choose("_alarmCombo", choice);
    QCOMPARE(p.missing("alarm"), QString());
}

void tst_MissingSounds::anotherSoundOfTheOtherKindKeepsTheHint()
{
    Fixture p;
    p.set("alarmPath", kGone);
    p.open();
    p.choose("_countdownCombo", QStringLiteral("Bell"));
    QVERIFY(p.missing("alarm").startsWith(QStringLiteral("Missing: ")));
}

void tst_MissingSounds::clearingRemovesTheHint()
{
    Fixture p;
    p.set("alarmPath", kGone);
    p.set("countdownPath", kGone);
    p.open();
    p.choose("_countdownCombo", QStringLiteral("Clear custom sounds"));
    QCOMPARE(p.missing("alarm"), QString());
    QCOMPARE(p.missing("countdown"), QString());
}

WUFFER_TEST(tst_MissingSounds)
#include "tst_MissingSounds.moc"
