#include "base/Keys.h"
#include "support/TestMain.h"

#include <QDirIterator>
#include <QSet>

#include <algorithm>

namespace
{
QStringList namesOf(const auto &keys)
{
    QStringList names;
    for (const AnySettingsKey &each : keys)
        names << std::visit([](const auto &key) { return key.text(); }, each);
    return names;
}

QStringList namesOfNotices()
{
    QStringList names;
    for (const Notice &notice : Notices::kAll)
        names << notice;
    return names;
}

QStringList allNames()
{
    return namesOf(Keys::kAll) + namesOf(TimerKeys::kAll) + namesOf(PlaceKeys::kAll) +
           namesOfNotices();
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// All string literals of a source file. Literals of several lines are not supported.
QStringList literalsIn(const QString &path)
{
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\n]|\\\\.)*)\""));
    QStringList found;
    const QString source = textOf(path);
    for (const QRegularExpressionMatch &match : literal.globalMatch(source))
        found << match.captured(1);
    return found;
}

/// All source files of the program by their paths in src.
QStringList sourceFiles(const QString &folder)
{
    QStringList files;
    QDirIterator each(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (each.hasNext())
        files << QDir(folder).relativeFilePath(each.next());
    return files;
}
} // namespace

/// The keys of the settings and the names of the notices.
class tst_Keys final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theSettingsOfUsersAreFoundUnderTheirOldKeys();
    void theNoticesKeepTheirNames();
    void allNamesDiffer();
    void everyNameInTheHeaderIsListed();
    void noOtherFileSpellsAName();

private:
    static QString header() { return QFINDTESTDATA("../src/base/Keys.h"); }
};

void tst_Keys::theSettingsOfUsersAreFoundUnderTheirOldKeys()
{
    QCOMPARE(namesOf(Keys::kAll).join(QLatin1Char(' ')),
             QStringLiteral("soundOff suppressCountdown autoStartPresets growlDisabled "
                            "energySaverMode noStatusBar finishedText launchBehavior soundHistory "
                            "alarmPath countdownPath defaultWufferSettings windowFrames "
                            "fahrenheitValue gramsValue mLValue"));
    QCOMPARE(namesOf(TimerKeys::kAll).join(QLatin1Char(' ')),
             QStringLiteral("title hours minutes seconds keepWuffing fullScreen finishOption "
                            "presetSelection individualAlarmPath individualCountdownPath"));
    QCOMPARE(namesOf(PlaceKeys::kAll).join(QLatin1Char(' ')), QStringLiteral("x y"));
}

void tst_Keys::theNoticesKeepTheirNames()
{
    QCOMPARE(namesOfNotices().join(QLatin1Char(' ')),
             QStringLiteral("statusChanged presetsChangedNotification prefsChangedNotification "
                            "manageSoundsNotification ClickableImageViewClicked"));
}

void tst_Keys::allNamesDiffer()
{
    const QStringList names = allNames();
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
    // Keys with this prefix are those of presets.
    for (const QString &name : names)
        QVERIFY(!name.startsWith(Keys::kPresetPrefix));
}

void tst_Keys::everyNameInTheHeaderIsListed()
{
    QStringList spelled = literalsIn(header());
    spelled.removeAll(Keys::kPresetPrefix);
    QStringList listed = allNames();
    spelled.sort();
    listed.sort();
    QCOMPARE(spelled, listed);
}

void tst_Keys::noOtherFileSpellsAName()
{
    // Words that a user may type into a field for times.
    const QStringList units{QStringLiteral("hours"), QStringLiteral("minutes"),
                            QStringLiteral("seconds")};
    const QString folder = QDir::cleanPath(QFileInfo(header()).path() + QStringLiteral("/.."));
    QStringList files = sourceFiles(folder);
    QVERIFY(files.removeOne(QStringLiteral("base/Keys.h")));
    QVERIFY(files.contains(QStringLiteral("timer/Wuffer.cpp")));
    int literals = 0;
    for (const QString &file : files) {
        for (const QString &literal : literalsIn(folder + QLatin1Char('/') + file)) {
            ++literals;
            const bool isUnit = file == QLatin1String("rules/TimeText.cpp");
            if (allNames().contains(literal) && !(isUnit && units.contains(literal)))
                QFAIL(qPrintable(file + QStringLiteral(" spells ") + literal));
        }
    }
    QVERIFY(literals > 1000);
}

WUFFER_TEST(tst_Keys)
#include "tst_Keys.moc"
