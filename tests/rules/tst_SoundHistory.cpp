#include "rules/SoundHistory.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{
const auto kBell = QStringLiteral("/sounds/Bell.aiff");
const auto kChime = QStringLiteral("/sounds/Chime.wav");
const auto kGong = QStringLiteral("/other/Gong.ogg");
} // namespace

class tst_SoundHistory final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewHistoryIsEmpty();
    void aNewPathEntersInFront();
    void aKnownPathKeepsItsPlace();
    void pathsAreComparedAsTheyAreWritten();
    void thereIsNoLimit();
    void aRemovedPathIsGoneHoweverOftenItWasThere();
    void removingAnUnknownPathChangesNothing();
    void theTitleIsTheNameWithoutItsExtension_data();
    void theTitleIsTheNameWithoutItsExtension();
};

void tst_SoundHistory::aNewHistoryIsEmpty()
{
    QCOMPARE(SoundHistory().paths(), QStringList());
    QVERIFY(!SoundHistory().contains(kBell));
}

void tst_SoundHistory::aNewPathEntersInFront()
{
    SoundHistory history;
    history.add(kBell);
    history.add(kChime);
    QCOMPARE(history.paths(), QStringList({kChime, kBell}));
    QVERIFY(history.contains(kBell));
    QVERIFY(history.contains(kChime));
}

void tst_SoundHistory::aKnownPathKeepsItsPlace()
{
    SoundHistory history({kChime, kBell, kGong});
    history.add(kGong);
    history.add(kBell);
    QCOMPARE(history.paths(), QStringList({kChime, kBell, kGong}));
}

void tst_SoundHistory::pathsAreComparedAsTheyAreWritten()
{
    SoundHistory history({kBell});
    QVERIFY(!history.contains(QStringLiteral("/sounds/bell.aiff")));
    QVERIFY(!history.contains(QStringLiteral("/sounds//Bell.aiff")));
    QVERIFY(!history.contains(QStringLiteral("/sounds/Bell.aiff ")));
    history.remove(QStringLiteral("/sounds/BELL.aiff"));
    QCOMPARE(history.paths(), QStringList{kBell});
}

void tst_SoundHistory::thereIsNoLimit()
{
    SoundHistory history;
    for (int i = 0; i < 1000; ++i)
        history.add(QString::number(i));
    QCOMPARE(history.paths().size(), 1000);
    QCOMPARE(history.paths().first(), QStringLiteral("999"));
    QCOMPARE(history.paths().last(), QStringLiteral("0"));
}

void tst_SoundHistory::aRemovedPathIsGoneHoweverOftenItWasThere()
{
    SoundHistory history({kBell, kChime, kBell});
    history.remove(kBell);
    QCOMPARE(history.paths(), QStringList{kChime});
}

void tst_SoundHistory::removingAnUnknownPathChangesNothing()
{
    SoundHistory history({kBell, kChime});
    history.remove(kGong);
    QCOMPARE(history.paths(), QStringList({kBell, kChime}));
}

void tst_SoundHistory::theTitleIsTheNameWithoutItsExtension_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("title");
    QTest::newRow("a file") << "/Users/a/Sounds/Bell.aiff"
                            << "Bell";
    QTest::newRow("no extension") << "/sounds/Bell"
                                  << "Bell";
    QTest::newRow("two extensions") << "/sounds/Bell.tar.gz"
                                    << "Bell.tar";
    QTest::newRow("a dot in the folder") << "/my.sounds/Bell"
                                         << "Bell";
    QTest::newRow("a dot in front") << "/sounds/.bell"
                                    << ".bell";
    QTest::newRow("a dot in front and an extension") << "/sounds/.bell.wav"
                                                     << ".bell";
    QTest::newRow("a dot at the end") << "/sounds/Bell."
                                      << "Bell";
    QTest::newRow("spaces") << "/my sounds/big  bell .wav"
                            << "big  bell ";
    QTest::newRow("quotes") << "/s/\"it's\" `mine`.wav"
                            << "\"it's\" `mine`";
    QTest::newRow("other letters")
        << QStringLiteral("/s/будильник 目覚まし.wav") << QStringLiteral("будильник 目覚まし");
    QTest::newRow("an ampersand") << "/s/Salt & Pepper.wav"
                                  << "Salt & Pepper";
    QTest::newRow("a name alone") << "Bell.wav"
                                  << "Bell";
    QTest::newRow("a slash behind") << "/sounds/Bell.wav/"
                                    << "Bell";
    QTest::newRow("the root") << "/"
                              << "/";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_SoundHistory::theTitleIsTheNameWithoutItsExtension()
{
    QFETCH(const QString, path);
    QTEST(SoundHistory::displayTitle(path), "title");
}

WUFFER_TEST(tst_SoundHistory, WithoutWindows)
#include "tst_SoundHistory.moc"
