#include "controls/Drawer.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

namespace
{
/// A timer with an active window and an open drawer.
class Fixture : public TimerFixture
{
public:
    Fixture()
    {
        timer.window()->show();
        timer.showHideAdvanced();
        timer.window()->activateWindow();
        if (!QTest::qWaitForWindowActive(timer.window()))
            qFatal("the window does not become active");
    }

    void focus(const char *control) const { part<QWidget>(control).setFocus(); }
    [[nodiscard]] QString focused() const
    {
        const QWidget *widget = timer.window()->focusWidget();
        return widget ? widget->objectName() : QString();
    }
};
} // namespace

/// Where the focus goes when the control that has it is disabled or hidden.
class tst_FocusMoves final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void mutingMovesTheFocusOn_data();
    void mutingMovesTheFocusOn();
    void mutingMovesTheFocusOfAWindowBehindToo();
    void mutingARunningTimerMovesTheFocusToItsButton();
    void theFocusNeverFallsIntoTheName_data();
    void theFocusNeverFallsIntoTheName();
    void closingTheDrawerMovesTheFocusOutOfIt();
    void beingChainedMovesTheFocusOffTheButton();
    void theTabKeyStillReachesTheName();
};

void tst_FocusMoves::mutingMovesTheFocusOn_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    const auto row = [](const char *from, const char *to) {
        QTest::newRow(from) << QString::fromLatin1(from) << QString::fromLatin1(to);
    };
    row("_keepWuffingBox", "_fullScreenBox");
    row("_alarmSoundCombo", "_hoursField");
    row("_alarmPlayButton", "_hoursField");
    row("_countdownSoundCombo", "_hoursField");
    row("_countdownPlayButton", "_hoursField");
    row("_titleField", "_titleField");
    row("_secondsField", "_secondsField");
}

void tst_FocusMoves::mutingMovesTheFocusOn()
{
    QFETCH(const QString, from);
    Fixture t;
    t.focus(qPrintable(from));
    t.set("soundOff", 1);
    QTEST(t.focused(), "to");
}

void tst_FocusMoves::mutingMovesTheFocusOfAWindowBehindToo()
{
    Fixture t;
    t.focus("_alarmSoundCombo");
    TimerUser other;
    other.timer.window()->show();
    other.timer.window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(other.timer.window()));
    t.set("soundOff", 1);
    QCOMPARE(t.focused(), QStringLiteral("_hoursField"));
}

void tst_FocusMoves::mutingARunningTimerMovesTheFocusToItsButton()
{
    Fixture t;
    t.startCountdown(60);
    t.focus("_alarmSoundCombo");
    t.set("soundOff", 1);
    QCOMPARE(t.focused(), QStringLiteral("_goButton"));
}

void tst_FocusMoves::theFocusNeverFallsIntoTheName_data()
{
    QTest::addColumn<QString>("control");
    for (const char *control : {"_goButton", "_keepWuffingBox", "_fullScreenBox", "_soundOffImage",
                                "_finishedDrawerButton", "_finishedCombo", "_helpButton",
                                "_alarmSoundCombo", "_countdownSoundCombo", "_countdownPlayButton"})
        QTest::newRow(control) << QString::fromLatin1(control);
}

void tst_FocusMoves::theFocusNeverFallsIntoTheName()
{
    QFETCH(const QString, control);
    for (const bool hidden : {false, true}) {
        Fixture t;
        auto &widget = t.part<QWidget>(qPrintable(control));
        widget.setFocus();
        if (hidden)
            widget.hide();
        else
            widget.setEnabled(false);
        QVERIFY(t.focused() != QStringLiteral("_titleField"));
        QVERIFY(t.focused() != control);
        QVERIFY(t.timer.window()->focusWidget()->isEnabled());
    }
}

void tst_FocusMoves::closingTheDrawerMovesTheFocusOutOfIt()
{
    Fixture t;
    const auto &drawer = t.part<Drawer>("_drawer");
    QTRY_COMPARE(drawer.state(), Drawer::State::Open);
    t.focus("_countdownSoundCombo");
    t.timer.showHideAdvanced();
    QTRY_COMPARE(drawer.state(), Drawer::State::Closed);
    QCOMPARE(t.focused(), QStringLiteral("_hoursField"));
}

void tst_FocusMoves::beingChainedMovesTheFocusOffTheButton()
{
    Fixture t;
    t.focus("_goButton");
    const TimerUser first;
    first.timer.setTargetWuffer(&t.timer);
    QVERIFY(!t.goButton().isEnabled());
    QCOMPARE(t.focused(), QStringLiteral("_keepWuffingBox"));
}

void tst_FocusMoves::theTabKeyStillReachesTheName()
{
    Fixture t;
    t.focus("_countdownPlayButton");
    QTest::keyClick(t.timer.window()->focusWidget(), Qt::Key_Tab);
    QCOMPARE(t.focused(), QStringLiteral("_titleField"));
}

WUFFER_TEST(tst_FocusMoves)
#include "tst_FocusMoves.moc"
