#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
const QString kWuff = QStringLiteral("wolvesWuff.wav");
const QString kCrow = QStringLiteral("crow.wav");
const QString kBell = QStringLiteral("/home/somebody/Bell.aiff");
const QString kMissing = QStringLiteral("/no/such.wav");
} // namespace

/// What a timer plays if the chosen sound cannot be played.
class tst_UnusableSounds final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anUnusableFileKeepsTheLastGoodAlarm();
    void anUnusableFileAloneIsReplacedByTheBuiltInAlarm();
    void anUnusableFileAloneIsReplacedByTheBuiltInBeep();
    void anAlarmFileIsTriedAgainEachTime();
    void withoutAnySoundTheAlarmEndsAtOnce();
    void theBuiltInSoundsStandInForTheirKind();
    void anUnusableFileKeepsTheLastGoodBeep();
    void anAlarmFileThatHasNotAnsweredIsPlayed();
    void anAlarmFileThatTurnsOutUnusableGivesTheLastGoodOneBack();
    void anAlarmFileThatHasNotAnsweredIsNotMadeAgain();
    void theLastGoodAlarmIsKeptThroughSeveralFilesWithoutAnAnswer();
    void aFileThatHasAnsweredIsTheLastGoodAlarm();
    void aFirstFileThatTurnsOutUnusableIsReplacedByTheBuiltInAlarm();
    void theLastGoodBeepComesBackAtTheVolumeOfTheMoment();
};

void tst_UnusableSounds::anUnusableFileKeepsTheLastGoodAlarm()
{
    TimerFixture t;
    t.timer.playDone();
    t.chooseAlarm(kMissing);
    t.sounds.clearDiary();
    t.timer.playDone();
    QCOMPARE(t.sounds.diary(QStringLiteral("play")),
             QStringList{QStringLiteral("play wolvesWuff.wav at 1")});
}

void tst_UnusableSounds::anUnusableFileAloneIsReplacedByTheBuiltInAlarm()
{
    TimerFixture t;
    t.chooseAlarm(kMissing);
    t.startCountdown(1);
    t.pass(1.05);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QCOMPARE(t.sounds.diary(QStringLiteral("play wolves")),
             QStringList{QStringLiteral("play wolvesWuff.wav at 1")});
    t.pass(1);
    QVERIFY(t.timer.isRunning());
    // The choice stays, because the file may come back.
    QCOMPARE(t.part<WebbyComboBox>("_alarmSoundCombo").dataObjectOfSelectedItem(), kMissing);
}

void tst_UnusableSounds::anUnusableFileAloneIsReplacedByTheBuiltInBeep()
{
    TimerFixture t;
    t.chooseBeep(kMissing);
    t.startCountdown(12);
    t.pass(1.5);
    const QStringList beeps = t.sounds.diary(QStringLiteral("play crow.wav at 0"));
    QCOMPARE(beeps.size(), 2);
    QCOMPARE(beeps.first(), QStringLiteral("play crow.wav at 0"));
    QVERIFY(beeps.last().startsWith(QStringLiteral("play crow.wav at 0.03")));
}

void tst_UnusableSounds::anAlarmFileIsTriedAgainEachTime()
{
    TimerFixture t;
    t.chooseAlarm(kMissing);
    t.timer.playDone();
    t.sounds.setFileDuration(kMissing, 1.5);
    t.timer.playDone();
    QVERIFY(t.sounds.isPlaying(kMissing));
    QVERIFY(!t.sounds.sound(kWuff));
}

void tst_UnusableSounds::withoutAnySoundTheAlarmEndsAtOnce()
{
    TimerFixture t;
    t.sounds.opensFiles = false;
    t.startCountdown(1);
    t.pass(1.05);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    t.pass(0.21);
    QVERIFY(!t.timer.isRunning());
}

void tst_UnusableSounds::theBuiltInSoundsStandInForTheirKind()
{
    TimerFixture t;
    const QString chime = QStringLiteral("/home/somebody/Chime.wav");
    t.sounds.setFileDuration(kBell, 1.5);
    t.sounds.setFileDuration(chime, 0.5);
    t.chooseAlarm(kBell);
    t.chooseBeep(chime);
    t.timer.playDone();
    t.timer.playBeep();
    QCOMPARE(t.sounds.sound(kBell)->standIn(), kWuff);
    QCOMPARE(t.sounds.sound(chime)->standIn(), kCrow);
}

void tst_UnusableSounds::anUnusableFileKeepsTheLastGoodBeep()
{
    TimerFixture t;
    t.timer.playBeep();
    t.chooseBeep(kMissing);
    t.timer.playBeep();
    QCOMPARE(t.sounds.diary(QStringLiteral("play crow.wav")).size(), 2);
}

void tst_UnusableSounds::anAlarmFileThatHasNotAnsweredIsPlayed()
{
    TimerFixture t;
    t.sounds.holdFile(kBell);
    t.chooseAlarm(kBell);
    t.startCountdown(1);
    t.pass(1.05);
    QCOMPARE(t.display(), QStringLiteral("Wuff!"));
    QVERIFY(t.sounds.isPlaying(kBell));
    QCOMPARE(t.sounds.sound(kBell)->standIn(), kWuff);
    t.sounds.answer(kBell, 1.5);
    t.pass(1);
    QVERIFY(t.timer.isRunning());
    t.sounds.endAll();
    t.pass(0.21);
    QVERIFY(!t.timer.isRunning());
}

void tst_UnusableSounds::anAlarmFileThatTurnsOutUnusableGivesTheLastGoodOneBack()
{
    TimerFixture t;
    t.sounds.setFileDuration(kBell, 1.5);
    t.chooseAlarm(kBell);
    t.timer.playDone();
    t.sounds.holdFile(kMissing);
    t.chooseAlarm(kMissing);
    t.timer.playDone();
    // The last good alarm waits within the new one, which plays it if its file is unusable.
    QVERIFY(t.sounds.sound(kBell));
    QVERIFY(t.sounds.isPlaying(kMissing));
    t.sounds.answer(kMissing, 0);
    t.sounds.clearDiary();
    t.timer.playDone();
    const QStringList tried{QStringLiteral("stop /no/such.wav"),
                            QStringLiteral("make /no/such.wav"),
                            QStringLiteral("play /home/somebody/Bell.aiff at 1")};
    QCOMPARE(t.sounds.diary(), tried);
}

void tst_UnusableSounds::anAlarmFileThatHasNotAnsweredIsNotMadeAgain()
{
    TimerFixture t;
    t.sounds.holdFile(kBell);
    t.chooseAlarm(kBell);
    t.timer.playDone();
    t.timer.playDone();
    QCOMPARE(t.sounds.diary(QStringLiteral("make ") + kBell).size(), 1);
    QVERIFY(t.sounds.isPlaying(kBell));
}

void tst_UnusableSounds::theLastGoodAlarmIsKeptThroughSeveralFilesWithoutAnAnswer()
{
    TimerFixture t;
    t.timer.playDone();
    for (const QString &path : {kBell, kMissing}) {
        t.sounds.holdFile(path);
        t.chooseAlarm(path);
        t.timer.playDone();
    }
    QVERIFY(!t.sounds.sound(kBell));
    t.sounds.answer(kMissing, 0);
    t.timer.playDone();
    QVERIFY(t.sounds.isPlaying(kWuff));
}

void tst_UnusableSounds::aFileThatHasAnsweredIsTheLastGoodAlarm()
{
    TimerFixture t;
    t.timer.playDone();
    t.sounds.holdFile(kBell);
    t.chooseAlarm(kBell);
    t.timer.playDone();
    t.sounds.answer(kBell, 1.5);
    t.timer.playDone();
    QVERIFY(!t.sounds.sound(kWuff));
    t.chooseAlarm(kMissing);
    t.timer.playDone();
    QVERIFY(t.sounds.isPlaying(kBell));
}

void tst_UnusableSounds::aFirstFileThatTurnsOutUnusableIsReplacedByTheBuiltInAlarm()
{
    TimerFixture t;
    t.sounds.holdFile(kMissing);
    t.chooseAlarm(kMissing);
    t.timer.playDone();
    t.sounds.answer(kMissing, 0);
    t.timer.playDone();
    QVERIFY(t.sounds.isPlaying(kWuff));
}

void tst_UnusableSounds::theLastGoodBeepComesBackAtTheVolumeOfTheMoment()
{
    TimerFixture t;
    t.sounds.setFileDuration(kBell, 0.5);
    t.chooseBeep(kBell);
    t.timer.playBeep();
    t.sounds.holdFile(kMissing);
    t.chooseBeep(kMissing);
    t.timer.playBeep();
    t.sounds.sound(kMissing)->setVolume(0.5F);
    t.sounds.answer(kMissing, 0);
    t.sounds.clearDiary();
    t.timer.playBeep();
    QCOMPARE(t.sounds.diary(QStringLiteral("play")),
             QStringList{QStringLiteral("play /home/somebody/Bell.aiff at 0.5")});
}

WUFFER_TEST(tst_UnusableSounds)
#include "tst_UnusableSounds.moc"
