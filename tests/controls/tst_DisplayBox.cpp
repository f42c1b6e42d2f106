#include "controls/DisplayBox.h"
#include "support/Paintings.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <cmath>

namespace
{
constexpr QColor kBarColor(0, 0, 255);

/// A window with, from top to bottom, a field, a box that contains a field, and a button.
struct Fixture
{
    Fixture()
    {
        layout = new QVBoxLayout(window.get());
        layout->addWidget(first);
        layout->addWidget(box, 2, Qt::AlignRight);
        layout->addWidget(last, 1);
        inside = new QLineEdit(box);
        (new QVBoxLayout(box))->addWidget(inside);
        QWidget::setTabOrder(first, inside);
        QWidget::setTabOrder(inside, last);
        window->setWindowTitle(QStringLiteral("Tea"));
        window->resize(400, 300);
        window->show();
    }

    void enter() { box->enterFullScreenMode(*window->screen()); }
    void leave() { box->exitFullScreenModeWithOptions(); }

    /// The widgets in tab order, from this one on.
    [[nodiscard]] static QList<QWidget *> tabOrderFrom(QWidget *start)
    {
        QList<QWidget *> order{start};
        for (QWidget *next = start->nextInFocusChain(); next != start;
             next = next->nextInFocusChain()) {
            if (next->focusPolicy() & Qt::TabFocus)
                order << next;
        }
        return order;
    }

    /// The pixels in the colour of the bar, from the first to the last in its middle line.
    [[nodiscard]] QRect bar() const
    {
        const QImage image = box->grab().toImage();
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == kBarColor)
                    found |= QRect(x, y, 1, 1);
            }
        }
        return found;
    }
    /// The colour of the panel.
    [[nodiscard]] QColor middle() const
    {
        return box->grab().toImage().pixelColor(box->rect().center());
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QLineEdit *first = new QLineEdit(window.get());
    QPointer<DisplayBox> box = new DisplayBox(window.get());
    QPushButton *last = new QPushButton(window.get());
    QVBoxLayout *layout = nullptr;
    QLineEdit *inside = nullptr;
};

QPalette darkTheme()
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, Qt::white);
    return dark;
}

/// The visible windows of the program.
QList<QWidget *> visibleWindows()
{
    QList<QWidget *> windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget *each) { return !each->isVisible(); });
    return windows;
}
} // namespace

class tst_DisplayBox final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void itFillsTheScreen();
    void theWindowKeepsItsSizeMeanwhile();
    void itComesBackIntoExactlyItsOldPlace();
    void itComesBackIntoAnInnerLayout();
    void itComesBackInTheSameTabOrder();
    void itCanGoAndComeManyTimes();
    void theBoxGrowsWithAWindowThatGrewMeanwhile();
    void theWindowOfTheBoxReportsItsActivation();
    void aRequestToCloseIsReportedAndRefusedWhileTheBoxIsThere();
    void aBoxDestroyedOnTheFullScreenLeavesNothingBehind();
    void aWindowDestroyedMeanwhileTakesTheBoxAlong();
    void theBarIsInLineWithTheTexts();
    void theBarIsAsWideAsTheFullScreen();
    void theBarIsPaintedOnlyWhenItMovesByAPixel();
    void theBarChangesNoLayoutAndIsNoWidget();
    void theMarginsOnTheFullScreenAreInProportionToIt();
    void aLightThemeLeavesThePanelAsItIs();
    void thePanelFollowsADarkTheme();
    void thePanelFollowsTheThemeOnTheFullScreen();
};

void tst_DisplayBox::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(visibleWindows(), QList<QWidget *>());
}

void tst_DisplayBox::itFillsTheScreen()
{
    Fixture f;
    QVERIFY(!f.box->isInFullScreenMode());

    f.enter();
    QCoreApplication::processEvents();

    QVERIFY(f.box->isInFullScreenMode());
    QVERIFY(f.box->isVisible());
    QVERIFY(f.box->window() != f.window.get());
    QVERIFY(f.box->window()->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(f.box->window()->windowTitle(), QStringLiteral("Tea"));
    QCOMPARE(f.box->window()->geometry(), f.window->screen()->geometry());
    QCOMPARE(f.box->size(), f.window->screen()->size());
}

void tst_DisplayBox::theWindowKeepsItsSizeMeanwhile()
{
    Fixture f;
    const QSize hint = f.window->sizeHint();
    const QRect firstPlace = f.first->geometry();
    const QRect lastPlace = f.last->geometry();

    f.enter();
    QCoreApplication::processEvents();

    QCOMPARE(f.window->size(), QSize(400, 300));
    QVERIFY(f.window->sizeHint().height() >= hint.height());
    QCOMPARE(f.first->geometry(), firstPlace);
    QCOMPARE(f.last->geometry(), lastPlace);
}

void tst_DisplayBox::itComesBackIntoExactlyItsOldPlace()
{
    Fixture f;
    const QRect place = f.box->geometry();
    f.enter();
    QCoreApplication::processEvents();

    f.leave();
    QCoreApplication::processEvents();

    QVERIFY(!f.box->isInFullScreenMode());
    QVERIFY(f.box->isVisible());
    QCOMPARE(f.box->parentWidget(), f.window.get());
    QCOMPARE(f.layout->indexOf(f.box), 1);
    QCOMPARE(f.layout->count(), 3);
    QCOMPARE(f.layout->stretch(1), 2);
    QCOMPARE(f.layout->itemAt(1)->alignment(), Qt::AlignRight);
    QCOMPARE(f.box->geometry(), place);
    QCOMPARE(f.window->children().size(), 4);
}

void tst_DisplayBox::itComesBackIntoAnInnerLayout()
{
    Fixture f;
    auto *inner = new QGridLayout;
    f.layout->insertLayout(1, inner);
    inner->addWidget(f.box, 1, 2);
    QCoreApplication::processEvents();
    const QRect place = f.box->geometry();

    f.enter();
    f.leave();
    QCoreApplication::processEvents();

    QCOMPARE(inner->itemAtPosition(1, 2)->widget(), f.box.data());
    QCOMPARE(f.box->geometry(), place);
}

void tst_DisplayBox::itComesBackInTheSameTabOrder()
{
    Fixture f;
    const QList<QWidget *> order{f.first, f.inside, f.last};
    QCOMPARE(Fixture::tabOrderFrom(f.first), order);

    f.enter();
    QCoreApplication::processEvents();
    f.leave();

    QCOMPARE(Fixture::tabOrderFrom(f.first), order);
}

void tst_DisplayBox::itCanGoAndComeManyTimes()
{
    Fixture f;
    const QRect place = f.box->geometry();
    for (int i = 0; i < 20; ++i) {
        f.enter();
        f.leave();
    }
    QCoreApplication::processEvents();

    QCOMPARE(f.box->geometry(), place);
    QCOMPARE(visibleWindows(), QList<QWidget *>{f.window.get()});
}

void tst_DisplayBox::theBoxGrowsWithAWindowThatGrewMeanwhile()
{
    Fixture f;
    f.enter();
    f.window->resize(600, 500);
    QCoreApplication::processEvents();

    f.leave();
    QCoreApplication::processEvents();
    const QRect place = f.box->geometry();

    Fixture other;
    other.window->resize(600, 500);
    QCoreApplication::processEvents();
    QCOMPARE(place, other.box->geometry());
}

void tst_DisplayBox::theWindowOfTheBoxReportsItsActivation()
{
    Fixture f;
    QWidget elsewhere;
    elsewhere.show();
    const auto goTo = [](QWidget &window) {
        window.activateWindow();
        QCoreApplication::processEvents();
    };
    goTo(elsewhere);
    const QSignalSpy activations(f.box, &DisplayBox::windowActivated);

    goTo(*f.window);
    QCOMPARE(activations.count(), 1);
    goTo(elsewhere);
    QCOMPARE(activations.count(), 1);

    f.enter();
    QCoreApplication::processEvents();
    QCOMPARE(activations.count(), 2);
    goTo(elsewhere);
    goTo(*f.window);
    QCOMPARE(activations.count(), 2);
    goTo(*f.box->window());
    QCOMPARE(activations.count(), 3);
}

void tst_DisplayBox::aRequestToCloseIsReportedAndRefusedWhileTheBoxIsThere()
{
    Fixture f;
    f.enter();
    const QSignalSpy requests(f.box, &DisplayBox::fullScreenCloseRequested);

    QVERIFY(!f.box->window()->close());

    QCOMPARE(requests.count(), 1);
    QVERIFY(f.box->window()->isVisible());
    QVERIFY(f.box->isInFullScreenMode());
    // If a slot leaves the full screen at once, the window may close.
    connect(f.box, &DisplayBox::fullScreenCloseRequested, this, [&] { f.leave(); });
    QVERIFY(f.box->window()->close());
    QCOMPARE(f.box->window(), f.window.get());
}

void tst_DisplayBox::aBoxDestroyedOnTheFullScreenLeavesNothingBehind()
{
    Fixture f;
    f.enter();

    std::unique_ptr<DisplayBox>(f.box).reset();

    QCOMPARE(visibleWindows(), QList<QWidget *>{f.window.get()});
    QCOMPARE(f.layout->count(), 2);
    QCOMPARE(f.window->children().size(), 3);
}

void tst_DisplayBox::aWindowDestroyedMeanwhileTakesTheBoxAlong()
{
    Fixture f;
    f.enter();

    f.window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(f.box.isNull());
    QCOMPARE(visibleWindows(), QList<QWidget *>());
}

void tst_DisplayBox::aLightThemeLeavesThePanelAsItIs()
{
    Fixture f;
    const QColor panel = f.middle();
    QPalette blue;
    blue.setColor(QPalette::Base, QColor(0xDD, 0xDD, 0xFF));
    blue.setColor(QPalette::Text, QColor(0x20, 0x20, 0x60));
    f.window->setPalette(blue);

    QCOMPARE(f.middle(), panel);
    QVERIFY(panel.lightness() > 230);
    QCOMPARE(f.inside->palette().color(QPalette::Text), QColor(Qt::black));
}

void tst_DisplayBox::thePanelFollowsADarkTheme()
{
    Fixture f;
    const QSignalSpy changes(f.box, &DisplayBox::colorsChanged);
    f.window->setPalette(darkTheme());

    QVERIFY(!changes.isEmpty());
    QCOMPARE(f.middle(), QColor(20, 20, 20));
    QCOMPARE(f.inside->palette().color(QPalette::Base), QColor(20, 20, 20));
    QCOMPARE(f.inside->palette().color(QPalette::Text), QColor(Qt::white));
    f.window->setPalette({});
    QVERIFY(f.middle().lightness() > 230);
    QCOMPARE(f.inside->palette().color(QPalette::Text), QColor(Qt::black));
}

void tst_DisplayBox::thePanelFollowsTheThemeOnTheFullScreen()
{
    const QPalette light = QApplication::palette();
    Fixture f;
    f.enter();
    QApplication::setPalette(darkTheme());
    QCoreApplication::processEvents();
    QCOMPARE(f.middle(), QColor(20, 20, 20));
    f.leave();
    QCOMPARE(f.middle(), QColor(20, 20, 20));
    f.enter();
    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    QVERIFY(f.middle().lightness() > 230);
    f.leave();
    QVERIFY(f.middle().lightness() > 230);
}

void tst_DisplayBox::theBarIsInLineWithTheTexts()
{
    Fixture f;
    f.box->setBarColor(kBarColor);
    QCOMPARE(f.bar(), QRect());

    f.box->setShareLeft(1);

    const QRect bar = f.bar();
    QVERIFY(!bar.isEmpty());
    // The pixels of its round ends are paler.
    QVERIFY(std::abs(bar.left() - f.inside->geometry().left()) <= 1);
    QVERIFY(std::abs(bar.right() - f.inside->geometry().right()) <= 1);
    QVERIFY(bar.top() > f.inside->geometry().bottom());
    QVERIFY(bar.bottom() < f.box->height() - 1);
    f.box->setShareLeft(0.5);
    QCOMPARE(f.bar().left(), bar.left());
    QVERIFY(std::abs(f.bar().width() - bar.width() / 2) <= 1);
}

void tst_DisplayBox::theBarIsAsWideAsTheFullScreen()
{
    Fixture f;
    f.box->setBarColor(kBarColor);
    f.box->setShareLeft(1);
    f.enter();
    QCoreApplication::processEvents();

    const QRect bar = f.bar();
    QCOMPARE(bar.width(), f.box->width());
    QCOMPARE(bar.bottom(), f.box->rect().bottom());
    QVERIFY(bar.height() >= 4);
}

void tst_DisplayBox::theBarIsPaintedOnlyWhenItMovesByAPixel()
{
    Fixture f;
    QCoreApplication::processEvents();
    const Paintings paintings(*f.box);
    const int width = f.inside->width();
    const auto paintingsOf = [&](double pixels) {
        const qsizetype before = paintings.rects.size();
        f.box->setShareLeft(pixels / width);
        QCoreApplication::processEvents();
        return paintings.rects.size() - before;
    };

    QCOMPARE(paintingsOf(20.9), 1);
    QCOMPARE(paintingsOf(20.5), 0);
    QCOMPARE(paintingsOf(20.1), 0);
    QCOMPARE(paintingsOf(19.9), 1);
    // The texts are not painted again.
    QVERIFY(paintings.rects.constLast().top() > f.inside->geometry().bottom());
    f.box->setBarColor(Qt::red);
    QCOMPARE(paintingsOf(19.9), 1);
    f.box->setBarColor(Qt::red);
    QCOMPARE(paintingsOf(19.9), 0);
}

void tst_DisplayBox::theBarChangesNoLayoutAndIsNoWidget()
{
    Fixture f;
    const QSize hint = f.box->sizeHint();
    const QRect field = f.inside->geometry();
    const qsizetype parts = f.box->children().size();

    f.box->setShareLeft(1);
    QCoreApplication::processEvents();

    QCOMPARE(f.box->sizeHint(), hint);
    QCOMPARE(f.inside->geometry(), field);
    QCOMPARE(f.box->children().size(), parts);
    const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(f.box);
    QVERIFY(seen);
    QCOMPARE(seen->childCount(), 1);
    QCOMPARE(seen->text(QAccessible::Value), QString());
}

void tst_DisplayBox::theMarginsOnTheFullScreenAreInProportionToIt()
{
    Fixture f;
    const QMargins home = f.box->contentsMargins();
    f.enter();
    QCoreApplication::processEvents();

    f.box->resize(800, 480);
    QCOMPARE(f.box->contentsMargins(), QMargins(40, 24, 40, 24));
    f.box->resize(1920, 1080);
    QCOMPARE(f.box->contentsMargins(), QMargins(96, 54, 96, 54));

    f.leave();
    QCoreApplication::processEvents();
    QCOMPARE(f.box->contentsMargins(), home);
}

WUFFER_TEST(tst_DisplayBox)
#include "tst_DisplayBox.moc"
