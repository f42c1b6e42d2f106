#include "preferences/SoundDrop.h"
#include "support/PreferencesFixture.h"
#include "support/TestMain.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace
{
const auto kBell = QStringLiteral("/sounds/Bell.aiff");
const auto kChime = QStringLiteral("/sounds/Chime.wav");
const auto kText = QStringLiteral("/texts/Letter.txt");
const auto kWuff = QStringLiteral("Wuff (Default)");
const auto kCrow = QStringLiteral("Crow (Default)");

constexpr const char *kAlarm = "_alarmCombo";
constexpr const char *kCountdown = "_countdownCombo";

/// The open page of the sounds, with two playable files.
class Fixture : public PreferencesFixture
{
public:
    Fixture()
    {
        sounds.setFileDuration(kBell, 1.5);
        sounds.setFileDuration(kChime, 0.5);
        open();
        window.show();
        preferences->showSoundTab();
    }

    [[nodiscard]] QWidget &page() const { return part<QWidget>("soundTab"); }
    /// The middle of a widget on the page.
    [[nodiscard]] QPoint at(const char *name) const
    {
        return part<QWidget>(name).geometry().center();
    }
    /// Whether files that are dragged there are accepted.
    [[nodiscard]] bool takes(QPoint place, const QList<QUrl> &urls,
                             Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction) const
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&page(), &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move(place, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&page(), &move);
        const bool taken = move.isAccepted() && move.dropAction() == Qt::CopyAction;
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&page(), &leave);
        return taken;
    }
    [[nodiscard]] bool takes(const char *name) const
    {
        return takes(at(name), {QUrl::fromLocalFile(kBell)});
    }
    /// Drops files; returns whether they were accepted.
    bool drop(QPoint place, const QStringList &paths) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        // Qt delivers a drop only after an enter event.
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&page(), &enter);
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&page(), &event);
        // The files are opened when the program that they come from has its answer.
        QCoreApplication::sendPostedEvents(preferences.get(), QEvent::MetaCall);
        return event.isAccepted();
    }
    [[nodiscard]] QStringList history() const
    {
        return defaults.stringArrayForKey(QStringLiteral("soundHistory"));
    }
    [[nodiscard]] QString path(const char *key) const
    {
        return defaults.stringForKey(QString::fromLatin1(key)).value_or(QStringLiteral("(none)"));
    }
};
} // namespace

/// Sound files that are dropped onto the preferences.
class tst_SoundDrop final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void onlyFilesOfThisComputerCount();
    void aDragIsAcceptedWithAFileOfThisComputer_data();
    void aDragIsAcceptedWithAFileOfThisComputer();
    void aFileIsNeverMoved();
    void aFileBecomesTheSoundOfItsRow_data();
    void aFileBecomesTheSoundOfItsRow();
    void aDroppedSoundIsAnnouncedAndNamed();
    void aFileThatIsNoSoundBeepsAndIsNotListed();
    void ofSeveralFilesTheFirstPlayableIsTaken();
    void aKnownSoundKeepsItsPlace();
    void disabledRowsAcceptNoFiles();
    void theOtherPageAcceptsNoFiles();
    void aDropStopsWhatPlays();
    void aTimerRefusesFiles();
};

void tst_SoundDrop::onlyFilesOfThisComputerCount()
{
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/Bell.aiff")), QUrl::fromLocalFile(kBell),
                  QUrl(QStringLiteral("trash:/Chime.wav")), QUrl::fromLocalFile(kText)});
    const QStringList expected{kBell, kText};
    QCOMPARE(SoundDrop::localFiles(data), expected);
}

void tst_SoundDrop::aDragIsAcceptedWithAFileOfThisComputer_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<bool>("accepted");
    const QUrl bell = QUrl::fromLocalFile(kBell);
    const QUrl page(QStringLiteral("https://example.org/Bell.aiff"));
    QTest::newRow("a file") << QList<QUrl>{bell} << true;
    QTest::newRow("a page") << QList<QUrl>{page} << false;
    QTest::newRow("both") << QList<QUrl>{page, bell} << true;
    QTest::newRow("nothing") << QList<QUrl>() << false;
}

void tst_SoundDrop::aDragIsAcceptedWithAFileOfThisComputer()
{
    QFETCH(const QList<QUrl>, urls);
    const Fixture p;
    QTEST(p.takes(p.at(kAlarm), urls), "accepted");
}

void tst_SoundDrop::aFileIsNeverMoved()
{
    const Fixture p;
    QVERIFY(p.takes(p.at(kAlarm), {QUrl::fromLocalFile(kBell)}, Qt::MoveAction | Qt::CopyAction));
    QVERIFY(!p.takes(p.at(kAlarm), {QUrl::fromLocalFile(kBell)}, Qt::MoveAction));
}

void tst_SoundDrop::aFileBecomesTheSoundOfItsRow_data()
{
    QTest::addColumn<QString>("onto");
    QTest::addColumn<bool>("countdown");
    for (const char *part : {"_countdownWord", "_countdownCombo", "_countdownPlayButton",
                             "_countdownInUseWord", "_countdownLabel"})
        QTest::newRow(part) << QString::fromLatin1(part) << true;
    for (const char *part : {"_alarmWord", "_alarmCombo", "_alarmPlayButton", "_alarmLabel",
                             "_turnOffSoundCheckbox", "_soundHint"})
        QTest::newRow(part) << QString::fromLatin1(part) << false;
}

void tst_SoundDrop::aFileBecomesTheSoundOfItsRow()
{
    QFETCH(const QString, onto);
    QFETCH(const bool, countdown);
    const Fixture p;
    QVERIFY(p.drop(p.at(qPrintable(onto)), {kBell}));
    QCOMPARE(p.history(), QStringList{kBell});
    QCOMPARE(p.selected(kCountdown), countdown ? kBell : kCrow);
    QCOMPARE(p.selected(kAlarm), countdown ? kWuff : kBell);
    QCOMPARE(p.path("countdownPath"), countdown ? kBell : QStringLiteral("(none)"));
    QCOMPARE(p.path("alarmPath"), countdown ? QStringLiteral("(none)") : kBell);
    QCOMPARE(p.desktop.beeps, 0);
}

void tst_SoundDrop::aDroppedSoundIsAnnouncedAndNamed()
{
    const Fixture p;
    const NoticeCounter notices(QStringLiteral("prefsChangedNotification"));
    p.drop(p.at(kAlarm), {kBell});
    QVERIFY(notices.count > 0);
    QCOMPARE(p.label("_alarmLabel"), QStringLiteral("Bell"));
}

void tst_SoundDrop::aFileThatIsNoSoundBeepsAndIsNotListed()
{
    const Fixture p;
    QVERIFY(p.drop(p.at(kAlarm), {kText}));
    QCOMPARE(p.desktop.beeps, 1);
    QCOMPARE(p.history(), QStringList());
    QCOMPARE(p.selected(kAlarm), kWuff);
    QCOMPARE(p.path("alarmPath"), QStringLiteral("(none)"));
}

void tst_SoundDrop::ofSeveralFilesTheFirstPlayableIsTaken()
{
    const Fixture p;
    QVERIFY(p.drop(p.at(kAlarm), {kText, kBell, kChime}));
    const QStringList inOrder{kBell, kChime};
    QCOMPARE(p.history(), inOrder);
    QCOMPARE(p.selected(kAlarm), kBell);
    QCOMPARE(p.desktop.beeps, 1);
}

void tst_SoundDrop::aKnownSoundKeepsItsPlace()
{
    const Fixture p;
    p.drop(p.at(kAlarm), {kBell});
    p.drop(p.at(kAlarm), {kChime});
    p.drop(p.at(kAlarm), {kBell});
    const QStringList inOrder{kChime, kBell};
    QCOMPARE(p.history(), inOrder);
    QCOMPARE(p.selected(kAlarm), kBell);
}

void tst_SoundDrop::disabledRowsAcceptNoFiles()
{
    const Fixture p;
    p.click("_suppressCountdownCheckbox");
    QVERIFY(p.takes(kAlarm));
    QVERIFY(!p.takes(kCountdown));
    p.preferences->toggleMute();
    QVERIFY(!p.takes(kAlarm));
    QVERIFY(!p.drop(p.at(kAlarm), {kBell}));
    QCOMPARE(p.history(), QStringList());
}

void tst_SoundDrop::theOtherPageAcceptsNoFiles()
{
    const Fixture p;
    QVERIFY(p.page().acceptDrops());
    for (const QWidget *widget = &p.part<QWidget>("generalTab"); widget;
         widget = widget->parentWidget())
        QVERIFY(!widget->acceptDrops());
}

void tst_SoundDrop::aDropStopsWhatPlays()
{
    const Fixture p;
    p.part<PlayButton>("_countdownPlayButton").click();
    QVERIFY(p.sounds.isPlaying(QStringLiteral("crow.wav")));
    p.drop(p.at(kCountdown), {kBell});
    QVERIFY(!p.sounds.isPlaying(QStringLiteral("crow.wav")));
}

void tst_SoundDrop::aTimerRefusesFiles()
{
    Fixture p;
    WufferWindow &timer = *p.openTimer().window();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(kBell)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&timer, &enter);
    QVERIFY(!enter.isAccepted());
}

WUFFER_TEST(tst_SoundDrop)
#include "tst_SoundDrop.moc"
