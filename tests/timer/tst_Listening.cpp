#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QAccessible>

namespace
{
/// A timer, and how assistive programs see its controls.
struct Fixture : TimerFixture
{
    template<class Class> [[nodiscard]] QAccessibleInterface &seen(const char *name) const
    {
        return *QAccessible::queryAccessibleInterface(&part<Class>(name));
    }
    template<class Class> [[nodiscard]] bool giveFocus(const char *name) const
    {
        auto &control = part<Class>(name);
        control.window()->show();
        control.window()->activateWindow();
        control.setFocus();
        return QTest::qWaitFor([&control] { return control.hasFocus(); });
    }
    [[nodiscard]] QAccessibleInterface &speaker() const { return seen<QWidget>("_soundOffImage"); }
    [[nodiscard]] QAccessibleInterface &moreOptions() const
    {
        return seen<QPushButton>("_finishedDrawerButton");
    }
};

const QString kSound = QStringLiteral("wolvesWuff.wav");
const QString kAlarm = QStringLiteral("Tea: Wuff!");
const QString kEnd = QStringLiteral("Tea: Alarm ended");
} // namespace

/// What a timer tells users of screen readers.
class tst_Listening final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anAlarmIsAnnouncedOnceWhenItStartsAndOnceWhenItEnds();
    void theUsersResetEndsTheAlarm();
    void aTimerWithoutANameIsAnnouncedByTheProgramsName();
    void theUsersFinishedTextIsAnnouncedInOneLine();
    void anotherFocusedWindowChangesNothing();
    void stoppingACountdownAnnouncesNothing();
    void everyPassOfALoopIsAnnounced();
    void theSpeakerIsAButtonThatStaysPressed();
    void pressingTheSpeakerClicksIt();
    void theFocusStaysWhereALinkIsChosen();
    void aSavedPresetIsAnnounced();
    void aRefusedPresetIsNotAnnounced();
    void theButtonOfTheDrawerSaysWhetherItIsOpen();
    void everyChoiceHasALabel();
};

void tst_Listening::anAlarmIsAnnouncedOnceWhenItStartsAndOnceWhenItEnds()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.startCountdown(5);
    t.pass(4.9);
    QCOMPARE(t.desktop.announced, QStringList());
    t.pass(0.2);
    QCOMPARE(t.desktop.announced, QStringList{kAlarm});

    t.sounds.sound(kSound)->reachEnd();
    t.pass(1);

    QCOMPARE(t.go(), QStringLiteral("Start"));
    QCOMPARE(t.desktop.announced, QStringList({kAlarm, kEnd}));
}

void tst_Listening::theUsersResetEndsTheAlarm()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.startCountdown(5);
    t.pass(5.1);

    t.pressGo();
    t.pass(60);

    QCOMPARE(t.desktop.announced, QStringList({kAlarm, kEnd}));
}

void tst_Listening::aTimerWithoutANameIsAnnouncedByTheProgramsName()
{
    Fixture t;
    t.startCountdown(5);

    t.pass(5.1);

    QCOMPARE(t.desktop.announced, QStringList{QStringLiteral("Wuffer: Wuff!")});
}

void tst_Listening::theUsersFinishedTextIsAnnouncedInOneLine()
{
    Fixture t;
    t.set("finishedText", QStringLiteral("Pour\nit"));
    t.startCountdown(5);

    t.pass(5.1);

    QCOMPARE(t.desktop.announced, QStringList{QStringLiteral("Wuffer: Pour it")});
}

void tst_Listening::anotherFocusedWindowChangesNothing()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.startCountdown(5);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    t.pass(5.1);
    t.sounds.sound(kSound)->reachEnd();
    t.pass(1);

    QCOMPARE(t.desktop.announced, QStringList({kAlarm, kEnd}));
}

void tst_Listening::stoppingACountdownAnnouncesNothing()
{
    Fixture t;
    t.startCountdown(5);
    t.pass(2);

    t.pressGo();

    QCOMPARE(t.desktop.announced, QStringList());
}

void tst_Listening::everyPassOfALoopIsAnnounced()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    t.startCountdown(30);

    for (int pass = 1; pass <= 2; ++pass) {
        t.pass(31);
        t.sounds.sound(kSound)->reachEnd();
        t.pass(1);
    }

    QCOMPARE(t.desktop.announced, QStringList({kAlarm, kEnd, kAlarm, kEnd}));
}

void tst_Listening::theSpeakerIsAButtonThatStaysPressed()
{
    Fixture t;
    QCOMPARE(t.speaker().role(), QAccessible::Button);
    QCOMPARE(t.speaker().text(QAccessible::Name), QStringLiteral("Mute all timers"));
    QCOMPARE(t.speaker().text(QAccessible::Description), QStringLiteral("Sound is on"));
    QVERIFY(t.speaker().state().checkable);
    QVERIFY(!t.speaker().state().checked);

    t.set("soundOff", true);

    QCOMPARE(t.speaker().text(QAccessible::Name), QStringLiteral("Let all timers be heard again"));
    QCOMPARE(t.speaker().text(QAccessible::Description), QStringLiteral("Sound is off"));
    QCOMPARE(t.speaker().textInterface()->text(0, -1), QStringLiteral("Sound is off"));
    QVERIFY(t.speaker().state().checked);
}

void tst_Listening::pressingTheSpeakerClicksIt()
{
    Fixture t;
    const NoticeCounter clicks{QStringLiteral("ClickableImageViewClicked")};
    QAccessibleActionInterface *actions = t.speaker().actionInterface();
    QCOMPARE(actions->actionNames().constFirst(), QAccessibleActionInterface::pressAction());

    actions->doAction(QAccessibleActionInterface::pressAction());

    QCOMPARE(clicks.count, 1);
    QCOMPARE(clicks.lastObject, &t.part<QWidget>("_soundOffImage"));
}

void tst_Listening::theFocusStaysWhereALinkIsChosen()
{
    Fixture t;
    const TimerUser eggs;
    t.chooseFinish(QStringLiteral("Start other open Wuffer"));
    t.timer.showHideAdvanced();
    QVERIFY(t.giveFocus<QWidget>("_linkButton"));

    t.timer.setTargetWuffer(&eggs.timer);
    QVERIFY(t.part<QWidget>("_linkButton").hasFocus());
    QCOMPARE(t.seen<QWidget>("_linkButton").text(QAccessible::Description),
             QStringLiteral("When finished, this timer starts “Wuffer - 0h 0m 0s”"));

    // Without a link there is no button.
    t.timer.setTargetWuffer(nullptr);
    QVERIFY(t.part<QWidget>("_finishedCombo").hasFocus());
}

void tst_Listening::aSavedPresetIsAnnounced()
{
    Fixture t;
    t.typeName(QStringLiteral("Tea"));

    t.timer.setPreset(3);

    QCOMPARE(t.desktop.announced, QStringList{QStringLiteral("Tea: Saved to Preset 3")});
}

void tst_Listening::aRefusedPresetIsNotAnnounced()
{
    Fixture t;
    t.startCountdown(5);

    t.timer.setPreset(3);

    QCOMPARE(t.desktop.announced, QStringList());
}

void tst_Listening::theButtonOfTheDrawerSaysWhetherItIsOpen()
{
    Fixture t;
    QVERIFY(t.moreOptions().state().collapsed);

    t.timer.showHideAdvanced();
    QVERIFY(t.moreOptions().state().expanded);
    QCOMPARE(t.moreOptions().text(QAccessible::Name), QStringLiteral("Hide Options"));

    t.timer.showHideAdvanced();
    QVERIFY(t.moreOptions().state().collapsed);
}

void tst_Listening::everyChoiceHasALabel()
{
    const Fixture t;
    // Under Linux the name of a combo box is its selected entry; a label tells what is chosen.
    for (QComboBox *choice : t.timer.window()->findChildren<QComboBox *>()) {
        const auto labels =
            QAccessible::queryAccessibleInterface(choice)->relations(QAccessible::Label);
        QVERIFY2(!labels.isEmpty(), qPrintable(choice->objectName()));
        QVERIFY(!labels.constFirst().first->text(QAccessible::Name).isEmpty());
    }
    const auto labels = QAccessible::queryAccessibleInterface(&t.picker())->relations();
    QCOMPARE(labels.constFirst().first->text(QAccessible::Name),
             QStringLiteral("What the finish action starts"));
}

WUFFER_TEST(tst_Listening)
#include "tst_Listening.moc"
