#include "support/PreferencesFixture.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QTextDocumentFragment>

namespace
{
/// The text of the control's tool tip.
QString tip(const TimerUser &user, const char *name)
{
    return QTextDocumentFragment::fromHtml(user.part<QWidget>(name).toolTip()).toPlainText();
}

/// The text about links in the tool tips of the elapsed line and the button; “differ” if the two
/// are not equal.
QString links(const TimerUser &user)
{
    const QString text = tip(user, "_elapsedLabel");
    return text == tip(user, "_goButton") ? text : QStringLiteral("differ");
}
} // namespace

/// The tool tips of a timer's controls.
class tst_ToolTips final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theSpeakerSaysWhatAClickDoes();
    void keepWuffingSaysWhyItCannotBeTicked();
    void keepWuffingOfALinkedTimerSaysSo();
    void thePickerExplainsItself();
    void thePickerGivesALongNameInFull();
    void aTimerAloneNamesNoOther();
    void eachOfAChainNamesItsNeighbours();
    void namesInToolTipsFollowTheirTimers();
    void namesFollowWhatIsLoaded();
    void aLinkThatIsCutIsNoLongerNamed();
    void aRunningTimerNamesItsNeighboursToo();
    void markupInANameIsShownAsItIs();
    void theEnergySaverSaysWhatItCosts();
};

void tst_ToolTips::theSpeakerSaysWhatAClickDoes()
{
    TimerFixture t;
    QCOMPARE(tip(t, "_soundOffImage"), QStringLiteral("Mute all timers"));
    t.set("soundOff", 1);
    QCOMPARE(tip(t, "_soundOffImage"), QStringLiteral("Let all timers be heard again"));
    t.set("soundOff", 0);
    QCOMPARE(tip(t, "_soundOffImage"), QStringLiteral("Mute all timers"));
}

void tst_ToolTips::keepWuffingSaysWhyItCannotBeTicked()
{
    TimerFixture t;
    const auto box = [&t] { return tip(t, "_keepWuffingBox"); };
    const auto may = QStringLiteral("Repeat the alarm sound until you press Reset");
    QCOMPARE(box(), may);
    t.chooseFinish(QStringLiteral("Loop this Wuffer"));
    QVERIFY(box().startsWith(QStringLiteral("Only a timer that is to “Do Nothing” when finished")));
    t.chooseFinish(QStringLiteral("Do Nothing"));
    t.set("soundOff", 1);
    QCOMPARE(box(), QStringLiteral("The sound of all timers is off"));
    t.timer.stopwatch();
    QVERIFY(box().startsWith(QStringLiteral("A stopwatch has no alarm")));
    t.set("soundOff", 0);
    t.timer.stopwatch();
    QCOMPARE(box(), may);
}

void tst_ToolTips::keepWuffingOfALinkedTimerSaysSo()
{
    const TimerFixture t;
    const TimerUser other;
    t.timer.setTargetWuffer(&other.timer);
    QVERIFY(tip(t, "_keepWuffingBox")
                .startsWith(QStringLiteral("Only a timer that is to “Do Nothing”")));
    t.timer.setTargetWuffer(nullptr);
    QVERIFY(tip(t, "_keepWuffingBox").startsWith(QStringLiteral("Repeat the alarm")));
}

void tst_ToolTips::thePickerExplainsItself()
{
    TimerFixture t;
    t.chooseFinish(QStringLiteral("Start a Preset"));
    QVERIFY(tip(t, "_finishedPicker").startsWith(QStringLiteral("The preset")));
    t.chooseFinish(QStringLiteral("Start other open Wuffer"));
    QVERIFY(tip(t, "_finishedPicker").startsWith(QStringLiteral("Hold Control and drag")));
}

void tst_ToolTips::thePickerGivesALongNameInFull()
{
    const TimerFixture t;
    TimerUser other;
    other.typeName(QStringLiteral("A name that is far too long for its narrow box"));
    t.timer.setTargetWuffer(&other.timer);
    QCOMPARE(tip(t, "_finishedPicker"),
             QStringLiteral("When finished, this timer starts “A name that is far too long for its "
                            "narrow box - 0h 0m 0s”"));
}

void tst_ToolTips::aTimerAloneNamesNoOther()
{
    const TimerFixture t;
    QCOMPARE(links(t), QString());
}

namespace
{
/// Three linked timers: Eggs starts Tea, and Tea starts Bath.
class Chain : public TestServices
{
public:
    Chain()
    {
        eggs.typeName(QStringLiteral("Eggs"));
        tea.typeName(QStringLiteral("Tea"));
        bath.typeName(QStringLiteral("Bath"));
        eggs.timer.setTargetWuffer(&tea.timer);
        tea.timer.setTargetWuffer(&bath.timer);
    }

    TimerUser eggs;
    TimerUser tea;
    TimerUser bath;
};
} // namespace

void tst_ToolTips::eachOfAChainNamesItsNeighbours()
{
    const Chain c;
    QCOMPARE(links(c.eggs), QStringLiteral("Starts “Tea”"));
    QCOMPARE(links(c.tea), QStringLiteral("Started by “Eggs”; starts “Bath”"));
    QCOMPARE(links(c.bath), QStringLiteral("Started by “Tea”"));
}

void tst_ToolTips::namesInToolTipsFollowTheirTimers()
{
    Chain c;
    c.tea.typeName(QStringLiteral("Coffee"));
    QCOMPARE(links(c.eggs), QStringLiteral("Starts “Coffee”"));
    QCOMPARE(links(c.bath), QStringLiteral("Started by “Coffee”"));
    c.tea.titleField.clear();
    QCOMPARE(links(c.eggs), QStringLiteral("Starts “Wuffer”"));
}

void tst_ToolTips::namesFollowWhatIsLoaded()
{
    Chain c;
    c.defaults.setObject(QVariantMap{{QStringLiteral("title"), QStringLiteral("Soup")}},
                         QStringLiteral("Preset 3"));
    c.bath.timer.loadSettingsFromDefaultsWithKey(QStringLiteral("Preset 3"), false);
    QCOMPARE(links(c.tea), QStringLiteral("Started by “Eggs”; starts “Soup”"));
}

void tst_ToolTips::aLinkThatIsCutIsNoLongerNamed()
{
    const Chain c;
    c.bath.timer.window()->close();
    QCOMPARE(links(c.tea), QStringLiteral("Started by “Eggs”"));
    c.eggs.timer.setTargetWuffer(nullptr);
    QCOMPARE(links(c.eggs), QString());
    QCOMPARE(links(c.tea), QString());
}

void tst_ToolTips::aRunningTimerNamesItsNeighboursToo()
{
    Chain c;
    c.tea.startCountdown(60);
    QCOMPARE(links(c.tea), QStringLiteral("Started by “Eggs”; starts “Bath”"));
    c.eggs.timer.window()->close();
    QCOMPARE(links(c.tea), QStringLiteral("Starts “Bath”"));
}

void tst_ToolTips::markupInANameIsShownAsItIs()
{
    Chain c;
    c.bath.titleField.setText(QStringLiteral("<b>Bath</b> & <img src=x>"));
    QCOMPARE(links(c.tea), QStringLiteral("Started by “Eggs”; starts “<b>Bath</b> & <img src=x>”"));
    QVERIFY(!c.tea.goButton().toolTip().contains(QStringLiteral("<img")));
}

void tst_ToolTips::theEnergySaverSaysWhatItCosts()
{
    PreferencesFixture p;
    p.open();
    const QString text = p.part<QCheckBox>("_energySaverCheckbox").toolTip();
    for (const char *part : {"no milliseconds", "0.2 seconds late"})
        QVERIFY2(text.contains(QString::fromLatin1(part)), part);
}

WUFFER_TEST(tst_ToolTips)
#include "tst_ToolTips.moc"
