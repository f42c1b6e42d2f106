#include "base/Contrast.h"
#include "support/EveryWindow.h"
#include "support/TestMain.h"
#include "support/TextContrasts.h"
#include "support/Themes.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QMainWindow>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace
{
/// The distance of all controls from the edges of their window or page, of rows from one another,
/// and of the controls in a row.
constexpr int kMargin = 12;
constexpr int kBetweenRows = 8;
constexpr int kInRow = 6;

struct Gaps
{
    int betweenRows = kBetweenRows;
    int inRow = kInRow;
};

/// The layouts with other gaps.
const std::map<QString, Gaps> kOtherGaps{
    // The texts of the panel are lines that follow one another.
    {QStringLiteral("_displayLayout"), {.betweenRows = 0}},
    // Boxes with texts that stand side by side.
    {QStringLiteral("_optionsLayout"), {.inRow = 12}},
    // Lines that belong together, such as a box and what it does.
    {QStringLiteral("_statusItemLayout"), {.betweenRows = 2}},
    {QStringLiteral("_energySaverLayout"), {.betweenRows = 2}},
    {QStringLiteral("_titleLayout"), {.betweenRows = 2}},
    {QStringLiteral("_librariesLayout"), {.betweenRows = 2}},
    {QStringLiteral("_libraryLayout"), {.betweenRows = 4}},
    // Paragraphs, and the picture beside the first of them.
    {QStringLiteral("_aboutLayout"), {.betweenRows = 16}},
    {QStringLiteral("_headLayout"), {.inRow = 16}}};

Gaps gapsOf(const QLayout &layout)
{
    if (const auto *grid = qobject_cast<const QGridLayout *>(&layout))
        return {grid->verticalSpacing(), grid->horizontalSpacing()};
    const auto &box = static_cast<const QBoxLayout &>(layout);
    const bool vertical = box.direction() == QBoxLayout::TopToBottom;
    return vertical ? Gaps{.betweenRows = box.spacing()} : Gaps{.inRow = box.spacing()};
}

/// The layouts that the program has made; others are parts of Qt's own controls.
QList<QLayout *> layoutsIn(const QWidget &window)
{
    QList<QLayout *> layouts = window.findChildren<QLayout *>();
    const auto ofMainWindow = QStringLiteral("_layout");
    layouts.removeIf([&](const QLayout *each) {
        return !each->objectName().startsWith(u'_') || each->objectName() == ofMainWindow;
    });
    return layouts;
}

/// Whether the layout places all that a window or a page has.
bool isOutermost(const QLayout &layout, const QWidget &window)
{
    const QWidget *place = layout.parentWidget();
    if (place->layout() != &layout)
        return false;
    const auto *main = qobject_cast<const QMainWindow *>(&window);
    return place == &window || (main && main->centralWidget() == place) ||
           place->parentWidget()->inherits("QStackedWidget");
}

/// A control as it is drawn with the focus and without it.
struct Focused
{
    QWidget *control;
    QImage with;
    QImage without;
};

QImage pictureOf(QWidget &window)
{
    QCoreApplication::processEvents();
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Goes through all controls of the window with Tab.
QList<Focused> walk(QWidget &window)
{
    constexpr int mostControls = 60;
    QList<Focused> all;
    for (int i = 0; i < mostControls; ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window,
                        Qt::Key_Tab);
        QWidget *control = QApplication::focusWidget();
        const bool again = std::ranges::count(all, control, &Focused::control) > 0;
        const QImage picture = pictureOf(window);
        if (!all.isEmpty())
            all.back().without = picture;
        if (again || !control)
            break;
        all << Focused{control, picture, {}};
    }
    return all;
}

/// The points of the control that the focus draws in a colour that stands out from its ground.
int pointsOfFocus(const Focused &focused, const QWidget &window)
{
    constexpr int around = 3;
    const QRect place(focused.control->mapTo(&window, QPoint()), focused.control->size());
    const QRect room = place.adjusted(-around, -around, around, around) & focused.with.rect();
    const Rgb ground = Rgb::of(
        TextContrasts::measured(focused.without, QRect(room.topLeft(), QSize(room.width(), 2)))
            .ground);
    int points = 0;
    for (int y = room.top(); y <= room.bottom(); ++y) {
        for (int x = room.left(); x <= room.right(); ++x) {
            const QColor with = focused.with.pixelColor(x, y);
            if (with != focused.without.pixelColor(x, y) &&
                Contrast::ratio(Rgb::of(with), ground) >= Contrast::kLargeText)
                ++points;
        }
    }
    return points;
}

QString nameOf(const QWidget &control)
{
    return QString::fromLatin1(control.metaObject()->className()) + u' ' + control.objectName();
}
} // namespace

Q_DECLARE_METATYPE(const EveryWindow::Kind *)

/// The windows of the program look alike: the same margins and gaps, and a focus that is seen.
class tst_EvenWindows final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void cleanup() { QApplication::setPalette(_start); }
    void marginsAndGapsAreTheSame();
    void aWordStandsLevelWithItsField();
    void theFocusIsSeen_data();
    void theFocusIsSeen();

private:
    QPalette _start = QApplication::palette();
};

void tst_EvenWindows::initTestCase_data()
{
    QTest::addColumn<const EveryWindow::Kind *>("kind");
    for (const EveryWindow::Kind &kind : EveryWindow::kinds)
        QTest::newRow(kind.name) << &kind;
}

void tst_EvenWindows::marginsAndGapsAreTheSame()
{
    QFETCH_GLOBAL(const EveryWindow::Kind *, kind);
    EveryWindow program;
    const QWidget &window = kind->open(program);
    for (const QLayout *layout : layoutsIn(window)) {
        const QByteArray name = layout->objectName().toUtf8();
        const auto other = kOtherGaps.find(layout->objectName());
        const Gaps expected = other == kOtherGaps.end() ? Gaps() : other->second;
        const Gaps gaps = gapsOf(*layout);
        QVERIFY2(gaps.betweenRows == expected.betweenRows, name.constData());
        QVERIFY2(gaps.inRow == expected.inRow, name.constData());
        const QMargins margins(kMargin, kMargin, kMargin, kMargin);
        QVERIFY2(!isOutermost(*layout, window) || layout->contentsMargins() == margins,
                 name.constData());
    }
}

void tst_EvenWindows::aWordStandsLevelWithItsField()
{
    QFETCH_GLOBAL(const EveryWindow::Kind *, kind);
    EveryWindow program;
    QWidget &window = kind->open(program);
    QCoreApplication::processEvents();
    for (const QLabel *word : window.findChildren<QLabel *>()) {
        const QWidget *field = word->buddy();
        if (!field || !word->isVisible() || !field->isVisible())
            continue;
        const int middle = word->mapTo(&window, word->rect().center()).y();
        const int level = field->mapTo(&window, field->rect().center()).y();
        QVERIFY2(std::abs(middle - level) <= 1, qPrintable(word->objectName()));
    }
}

void tst_EvenWindows::theFocusIsSeen_data()
{
    QTest::addColumn<int>("theme");
    for (std::size_t theme = 0; theme < kThemes.size(); ++theme)
        QTest::newRow(kThemes.at(theme).name) << int(theme);
}

void tst_EvenWindows::theFocusIsSeen()
{
    QFETCH_GLOBAL(const EveryWindow::Kind *, kind);
    QFETCH(const int, theme);
    setTheme(kThemes.at(std::size_t(theme)));
    EveryWindow program;
    QWidget &window = kind->open(program);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QList<Focused> all = walk(window);
    QVERIFY(!all.isEmpty());
    for (const Focused &each : all) {
        // Nothing else in its window can have the focus.
        if (all.size() == 1)
            continue;
        // At least a caret.
        constexpr int fewest = 10;
        const int points = pointsOfFocus(each, window);
        QVERIFY2(points >= fewest, qPrintable(nameOf(*each.control)));
    }
}

WUFFER_TEST(tst_EvenWindows)
#include "tst_EvenWindows.moc"
