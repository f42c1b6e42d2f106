#include "controls/Drawer.h"
#include "support/TestMain.h"

#include <QCheckBox>
#include <QProxyStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace
{
using State = Drawer::State;

constexpr int kContentHeight = 120;

/// A style whose animations take the given number of milliseconds.
class TimedStyle final : public QProxyStyle
{
public:
    explicit TimedStyle(int milliseconds) : _milliseconds(milliseconds) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? _milliseconds
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    const int _milliseconds;
};

/// A content for drawers that asks for a height and takes the focus.
class Panel final : public QWidget
{
public:
    explicit Panel(QWidget *parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }

    void askForHeight(int height)
    {
        _height = height;
        updateGeometry();
    }
    [[nodiscard]] QSize sizeHint() const override { return {80, _height}; }

private:
    int _height = kContentHeight;
};

/// A window with a field above a drawer.
struct Fixture : QWidget
{
    explicit Fixture(int milliseconds, bool withContent = true) : style(milliseconds)
    {
        drawer.setStyle(&style);
        layout.addWidget(&above);
        layout.addWidget(&drawer);
        layout.setSizeConstraint(QLayout::SetFixedSize);
        QObject::connect(&drawer, &Drawer::stateChanged, this,
                         [this] { states << drawer.state(); });
        if (withContent)
            addContent();
        show();
        closedHeight = height();
    }

    void addContent()
    {
        content = new Panel(&drawer);
        content->show();
    }

    [[nodiscard]] int heightGained()
    {
        QCoreApplication::sendPostedEvents();
        return height() - closedHeight;
    }

    TimedStyle style;
    QVBoxLayout layout{this};
    QCheckBox above;
    Drawer drawer;
    Panel *content = nullptr;
    QList<State> states;
    int closedHeight = 0;
};

constexpr int kAtOnce = 0;
constexpr int kShort = 40;
constexpr int kForEver = 1'000'000;
} // namespace

class tst_Drawer final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theStatesHaveTheirNumbers();
    void aDrawerIsClosedAndTakesNoRoomToBeginWith();
    void withoutAnimationsItOpensAndClosesAtOnce();
    void withAnimationsItPassesThroughAllFourStates();
    void aSlideUnderWayTurnsRound();
    void aSlideThatTurnsRoundGoesOnFromWhereItIs();
    void aDrawerThatTurnsRoundEndsInTheStateLastAskedFor();
    void theRoomGrowsWhileItOpens();
    void anOpenDrawerTakesTheRoomOfItsContent();
    void contentAddedLaterIsShownInFull();
    void contentThatGrowsGetsItsRoom();
    void theKeyboardCannotReachIntoAClosedDrawer();
    void theFocusLeavesADrawerThatCloses();
    void theStateIsTrueWhenItIsAnnounced();
};

void tst_Drawer::theStatesHaveTheirNumbers()
{
    QCOMPARE(static_cast<int>(State::Closed), 0);
    QCOMPARE(static_cast<int>(State::Opening), 1);
    QCOMPARE(static_cast<int>(State::Open), 2);
    QCOMPARE(static_cast<int>(State::Closing), 3);
}

void tst_Drawer::aDrawerIsClosedAndTakesNoRoomToBeginWith()
{
    Fixture f(kAtOnce);

    QCOMPARE(f.drawer.state(), State::Closed);
    QVERIFY(!f.drawer.isVisible());
    QCOMPARE(f.drawer.sizeHint().height(), 0);
    QVERIFY(!f.content->isVisible());
}

void tst_Drawer::withoutAnimationsItOpensAndClosesAtOnce()
{
    Fixture f(kAtOnce);

    f.drawer.toggle();
    QCOMPARE(f.drawer.state(), State::Open);
    QVERIFY(f.content->isVisible());

    f.drawer.toggle();
    QCOMPARE(f.drawer.state(), State::Closed);
    QVERIFY(!f.drawer.isVisible());
    QCOMPARE(f.states, (QList{State::Opening, State::Open, State::Closing, State::Closed}));
}

void tst_Drawer::withAnimationsItPassesThroughAllFourStates()
{
    Fixture f(kShort);

    f.drawer.toggle();
    QCOMPARE(f.drawer.state(), State::Opening);
    QVERIFY(f.drawer.isVisible());
    QTRY_COMPARE(f.drawer.state(), State::Open);

    f.drawer.toggle();
    QCOMPARE(f.drawer.state(), State::Closing);
    QVERIFY(f.drawer.isVisible());
    QTRY_COMPARE(f.drawer.state(), State::Closed);
    QVERIFY(!f.drawer.isVisible());
    QCOMPARE(f.states, (QList{State::Opening, State::Open, State::Closing, State::Closed}));
}

void tst_Drawer::aSlideUnderWayTurnsRound()
{
    Fixture f(kForEver);

    for (int i = 0; i < 4; ++i)
        f.drawer.toggle();

    QCOMPARE(f.states, (QList{State::Opening, State::Closing, State::Opening, State::Closing}));
}

void tst_Drawer::aSlideThatTurnsRoundGoesOnFromWhereItIs()
{
    Fixture f(400);
    f.drawer.toggle();
    QTRY_VERIFY(f.drawer.sizeHint().height() > kContentHeight / 3);
    const int before = f.drawer.sizeHint().height();

    f.drawer.toggle();

    QCOMPARE(f.drawer.sizeHint().height(), before);
    QTRY_VERIFY(f.drawer.sizeHint().height() < before);
    QVERIFY(f.drawer.sizeHint().height() > 0);
}

void tst_Drawer::aDrawerThatTurnsRoundEndsInTheStateLastAskedFor()
{
    Fixture f(kShort);
    f.drawer.toggle();
    f.drawer.toggle();
    QTRY_COMPARE(f.drawer.state(), State::Closed);

    f.drawer.toggle();
    f.drawer.toggle();
    f.drawer.toggle();
    QTRY_COMPARE(f.drawer.state(), State::Open);
    QTRY_COMPARE(f.heightGained(), kContentHeight + f.layout.spacing());
}

void tst_Drawer::theRoomGrowsWhileItOpens()
{
    Fixture f(kShort * 5);
    QList<int> heights{0};

    f.drawer.toggle();
    while (f.drawer.state() == State::Opening) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        heights << f.drawer.sizeHint().height();
    }

    QVERIFY(std::ranges::is_sorted(heights));
    QCOMPARE(heights.last(), kContentHeight);
    QVERIFY(std::ranges::any_of(heights, [](int h) { return h > 0 && h < kContentHeight; }));
}

void tst_Drawer::anOpenDrawerTakesTheRoomOfItsContent()
{
    Fixture f(kAtOnce);

    f.drawer.toggle();
    QTRY_COMPARE(f.heightGained(), kContentHeight + f.layout.spacing());
    QCOMPARE(f.content->geometry(), QRect(0, 0, f.drawer.width(), kContentHeight));

    f.drawer.toggle();
    QTRY_COMPARE(f.heightGained(), 0);
}

void tst_Drawer::contentAddedLaterIsShownInFull()
{
    Fixture f(kAtOnce, false);
    f.drawer.toggle();
    QCOMPARE(f.drawer.state(), State::Open);
    QVERIFY(f.heightGained() <= f.layout.spacing());

    f.addContent();

    QTRY_COMPARE(f.heightGained(), kContentHeight + f.layout.spacing());
    QCOMPARE(f.content->geometry(), QRect(0, 0, f.drawer.width(), kContentHeight));
}

void tst_Drawer::contentThatGrowsGetsItsRoom()
{
    Fixture f(kAtOnce);
    f.drawer.toggle();
    QTRY_COMPARE(f.heightGained(), kContentHeight + f.layout.spacing());

    f.content->askForHeight(kContentHeight + 30);

    QTRY_COMPARE(f.heightGained(), kContentHeight + 30 + f.layout.spacing());
    QCOMPARE(f.content->height(), kContentHeight + 30);
}

void tst_Drawer::theKeyboardCannotReachIntoAClosedDrawer()
{
    Fixture f(kAtOnce);
    f.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f));
    f.above.setFocus();

    QTest::keyClick(&f, Qt::Key_Tab);
    QVERIFY(f.above.hasFocus());

    f.drawer.toggle();
    QTest::keyClick(&f, Qt::Key_Tab);
    QVERIFY(f.content->hasFocus());
}

void tst_Drawer::theFocusLeavesADrawerThatCloses()
{
    Fixture f(kAtOnce);
    f.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f));
    f.drawer.toggle();
    f.content->setFocus();
    QVERIFY(f.content->hasFocus());

    f.drawer.toggle();

    QVERIFY(f.above.hasFocus());
}

void tst_Drawer::theStateIsTrueWhenItIsAnnounced()
{
    Fixture f(kAtOnce);
    QList<bool> visible;
    connect(&f.drawer, &Drawer::stateChanged, this, [&] { visible << f.drawer.isVisible(); });

    f.drawer.toggle();
    f.drawer.toggle();

    QCOMPARE(visible, (QList{true, true, true, false}));
}

WUFFER_TEST(tst_Drawer)
#include "tst_Drawer.moc"
