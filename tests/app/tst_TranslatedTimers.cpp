#include "support/TestMain.h"
#include "support/TimerUser.h"
#include "support/TranslatedProgram.h"

#include <QComboBox>
#include <QDateTimeEdit>

/// Each text that a timer shows in any of its states is translated, or is data.
class tst_TranslatedTimers final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aTimerIsTranslated();
    void aRunningTimerIsTranslated();
    void aStopwatchIsTranslated();
    void anAlarmIsTranslated();
    void aLoopIsTranslated();
    void aPresetIsTranslated();
    void aChainIsTranslated();
    void aMutedTimerIsTranslated();
    void theSheetForADateIsTranslated();
    void theReasonForAScreenThatStaysOnIsTranslated();
    void notificationsAreTranslated();
    void theStatusItemIsTranslated();
};

void tst_TranslatedTimers::aTimerIsTranslated()
{
    TranslatedProgram program;
    program.texts.gather();
    TranslatedProgram::timer().showHideAdvanced();
    program.check();
}

void tst_TranslatedTimers::aRunningTimerIsTranslated()
{
    TranslatedProgram program;
    for (const int seconds : {90'000, 4000, 100, 5}) {
        TranslatedProgram::timer().setFieldsWithTimeLeft(seconds);
        TranslatedProgram::timer().goPressed();
        program.clock.advance(0.5);
        program.texts.gather();
        TranslatedProgram::timer().startStopFullScreen();
        program.texts.gather();
        TranslatedProgram::timer().setWindowed();
        TranslatedProgram::timer().goPressed();
    }
    program.check();
}

void tst_TranslatedTimers::aStopwatchIsTranslated()
{
    TranslatedProgram program;
    TranslatedProgram::timer().stopwatch();
    program.texts.gather();
    TranslatedProgram::timer().goPressed();
    for (const int seconds : {1, 100, 4000, 90'000}) {
        program.clock.sleep(seconds);
        program.clock.advance(0.5);
        program.texts.gather();
    }
    program.check();
}

void tst_TranslatedTimers::anAlarmIsTranslated()
{
    TranslatedProgram program;
    TranslatedProgram::timer().setFieldsWithTimeLeft(2);
    TranslatedProgram::timer().goPressed();
    program.clock.advance(2.5);
    QVERIFY(TranslatedProgram::timer().isRunning());
    program.texts.gather();
    TranslatedProgram::timer().goPressed();
    program.check();
}

void tst_TranslatedTimers::aLoopIsTranslated()
{
    TranslatedProgram program;
    const TimerUser user(TranslatedProgram::timer());
    auto &combo = user.part<QComboBox>("_finishedCombo");
    constexpr int loop = 1;
    combo.setCurrentIndex(loop);
    Q_EMIT combo.activated(loop);
    TranslatedProgram::timer().setFieldsWithTimeLeft(2);
    TranslatedProgram::timer().goPressed();
    for (int pass = 0; pass < 2; ++pass) {
        program.clock.advance(2.5);
        program.sounds.endAll();
        program.clock.advance(0.5);
        program.texts.gather();
    }
    program.check();
}

void tst_TranslatedTimers::aPresetIsTranslated()
{
    TranslatedProgram program;
    TranslatedProgram::timer().loadSettingsFromDefaultsWithKey(Wuffer::keyForPreset(1), true);
    program.texts.gather();
    TranslatedProgram::timer().setPreset(2);
    const TimerUser user(TranslatedProgram::timer());
    auto &combo = user.part<QComboBox>("_finishedCombo");
    constexpr int startPreset = 2;
    combo.setCurrentIndex(startPreset);
    Q_EMIT combo.activated(startPreset);
    program.check();
}

void tst_TranslatedTimers::aChainIsTranslated()
{
    TranslatedProgram program;
    program.controller.newWuffer();
    program.controller.newWuffer();
    const std::vector<Wuffer *> timers = WufferApplication::getWuffers();
    timers[0]->setTargetWuffer(timers[1]);
    timers[1]->setTargetWuffer(timers[2]);
    program.texts.gather();
    timers[0]->setFieldsWithTimeLeft(2);
    timers[0]->goPressed();
    program.clock.advance(2.5);
    program.sounds.endAll();
    program.clock.advance(0.5);
    program.check();
}

void tst_TranslatedTimers::aMutedTimerIsTranslated()
{
    TranslatedProgram program;
    program.controller.toggleMute();
    program.texts.gather();
    TranslatedProgram::timer().stopwatch();
    program.check();
}

void tst_TranslatedTimers::theSheetForADateIsTranslated()
{
    TranslatedProgram program;
    TranslatedProgram::timer().targetTime();
    program.texts.gather();
    auto &field = child<QDateTimeEdit>(TranslatedProgram::window(), "_targetDateField");
    field.setDateTime(field.dateTime().addDays(3).addSecs(3725));
    program.check();
}

void tst_TranslatedTimers::theReasonForAScreenThatStaysOnIsTranslated()
{
    TranslatedProgram program;
    TranslatedProgram::timer().setFieldsWithTimeLeft(60);
    TranslatedProgram::timer().goPressed();
    TranslatedProgram::timer().startStopFullScreen();
    QVERIFY(!program.screenBlanking.reason.isEmpty());
    program.texts.add(program.screenBlanking.reason, "reason");
    program.texts.check();
}

void tst_TranslatedTimers::notificationsAreTranslated()
{
    TranslatedProgram program;
    for (int timer = 0; timer < 3; ++timer) {
        program.controller.newWuffer();
        TranslatedProgram::timer().setFieldsWithTimeLeft(2);
        TranslatedProgram::timer().goPressed();
    }
    program.clock.advance(2.5);
    QCOMPARE(program.notifications.shown.size(), std::size_t(3));
    for (const FakeNotifications::Shown &each : program.notifications.shown) {
        program.texts.add(each.notification.title, "title of a notification");
        program.texts.add(each.notification.text, "text of a notification");
        program.texts.add(each.notification.subject, "subject of a notification");
    }
    program.texts.check();
}

void tst_TranslatedTimers::theStatusItemIsTranslated()
{
    TranslatedProgram program;
    for (int timer = 0; timer < 2; ++timer) {
        program.controller.newWuffer();
        TranslatedProgram::timer().setFieldsWithTimeLeft(90000);
        TranslatedProgram::timer().goPressed();
    }
    program.clock.advance(1);
    const QString title = program.statusItem.attributedTitle().text;
    QVERIFY(!title.isEmpty() && program.statusItem.menu());
    program.texts.add(title, "title of the status item");
    program.texts.add(StatusItem::titleWithProgram(title), "tool tip of the status item");
    for (const StatusMenu::Line &line : program.statusItem.menu()->lines())
        program.texts.add(line.text, "line of the status item's menu");
    program.texts.check();
}

WUFFER_TEST(tst_TranslatedTimers)
#include "tst_TranslatedTimers.moc"
