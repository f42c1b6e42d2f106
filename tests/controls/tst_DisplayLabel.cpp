#include "support/PaintedLabel.h"
#include "support/Paintings.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <memory>

namespace
{
QString words(const char *text)
{
    return QString::fromLatin1(text);
}

/// Counts the requests for a new layout that reach a widget.
class LayoutRequests final : public QObject
{
public:
    explicit LayoutRequests(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::LayoutRequest;
        return false;
    }

    int count = 0;
};

/// A label on the screen.
class ShownLabel : public PaintedLabel
{
public:
    explicit ShownLabel(const QString &text) : PaintedLabel(text)
    {
        label.setReservedCharacters(10);
        label.setAlignment(Qt::AlignLeft);
        label.resize(300, 100);
        label.show();
        QCoreApplication::processEvents();
    }
};
} // namespace

class tst_DisplayLabel final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theLabelPaintsAllOfItself();
    void theTextHasItsColor();
    void theTextStandsWhereItIsAligned();
    void theRoomDependsOnTheFontAndNotOnTheText();
    void theReservedFontSizeKeepsTheRoomWhenTheFontShrinks();
    void anEmptyLabelWithoutReservationTakesNoRoom();
    void aNewTextCostsNoLayout();
    void assistiveProgramsSeeAText();
    void aTextThatStaysTheSameIsNotPainted();
    void aNewTextIsPaintedAtOnce();
    void theScreenShowsWhatAFullRepaintWouldShow();
    void aTextIsDrawnWhereQtWouldDrawIt_data();
    void aTextIsDrawnWhereQtWouldDrawIt();
    void blanksAtTheEndDoNotMoveTheText_data();
    void blanksAtTheEndDoNotMoveTheText();
};

void tst_DisplayLabel::theLabelPaintsAllOfItself()
{
    PaintedLabel f(words("5"));
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    f.label.setPalette(palette);

    const QImage image = f.painted({60, 60});

    for (const QPoint corner : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 59), QPoint(59, 59)})
        QCOMPARE(image.pixelColor(corner), QColor(Qt::yellow));
}

void tst_DisplayLabel::theTextHasItsColor()
{
    PaintedLabel f(QString(QChar(0x2588)), 48);
    QCOMPARE(f.label.textColor(), QColor(Qt::black));

    f.label.setTextColor(Qt::red);

    const QImage image = f.painted({200, 200});
    QCOMPARE(image.pixelColor(inkOf(image).center()), QColor(Qt::red));
}

void tst_DisplayLabel::theTextStandsWhereItIsAligned()
{
    PaintedLabel f(words("88"));
    f.label.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    const QRect left = inkOf(f.painted({300, 200}));
    f.label.setAlignment(Qt::AlignRight | Qt::AlignTop);
    const QRect right = inkOf(f.painted({300, 200}));

    QVERIFY(left.right() < 100 && left.top() > 100);
    QVERIFY(right.left() > 200 && right.bottom() < 100);
    QCOMPARE(left.size(), right.size());
}

void tst_DisplayLabel::theRoomDependsOnTheFontAndNotOnTheText()
{
    PaintedLabel f;
    f.label.setReservedCharacters(8);
    const QSize hint = f.label.sizeHint();
    const QSize minimum = f.label.minimumSizeHint();
    QVERIFY(hint.width() > 0 && hint.height() > 0);

    for (const QString &text :
         {words("1"), words("88:88:88.888"), QString(500, QLatin1Char('W'))}) {
        f.label.setText(text);
        QCOMPARE(f.label.sizeHint(), hint);
        QCOMPARE(f.label.minimumSizeHint(), minimum);
    }
    const PaintedLabel larger(words("1"), 48);
    QVERIFY(larger.label.sizeHint().height() > hint.height());
}

void tst_DisplayLabel::theReservedFontSizeKeepsTheRoomWhenTheFontShrinks()
{
    PaintedLabel f(words("1"), 24);
    f.label.setReservedCharacters(4);
    const QSize hint = f.label.sizeHint();
    f.label.setReservedPointSize(24);
    QFont smaller = f.label.font();
    smaller.setPointSizeF(12);

    f.label.setFont(smaller);
    QCOMPARE(f.label.sizeHint(), hint);

    smaller.setPointSizeF(48);
    f.label.setFont(smaller);
    QVERIFY(f.label.sizeHint().height() > hint.height());
}

void tst_DisplayLabel::anEmptyLabelWithoutReservationTakesNoRoom()
{
    QWidget window;
    QVBoxLayout layout(&window);
    PaintedLabel f;
    layout.addWidget(&f.label);
    QCOMPARE(f.label.sizeHint(), QSize(0, 0));
    QCOMPARE(f.label.minimumSizeHint(), QSize(0, 0));
    const int before = window.sizeHint().height();

    f.label.setText(words("Tea"));
    QVERIFY(window.sizeHint().height() > before + 10);

    f.label.setText(QString());
    QCOMPARE(window.sizeHint().height(), before);
}

void tst_DisplayLabel::aNewTextCostsNoLayout()
{
    QWidget window;
    QVBoxLayout layout(&window);
    PaintedLabel f;
    f.label.setReservedCharacters(8);
    layout.addWidget(&f.label);
    window.show();
    QCoreApplication::sendPostedEvents();
    const LayoutRequests requests(window);

    for (const char *text : {"1", "", "88:88:88.888", "x"}) {
        f.label.setText(words(text));
        QCoreApplication::sendPostedEvents();
    }

    QCOMPARE(requests.count, 0);
    f.label.setReservedCharacters(9);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(requests.count, 1);
}

void tst_DisplayLabel::assistiveProgramsSeeAText()
{
    PaintedLabel f(words("12:34"));
    f.label.setAccessibleName(words("Remaining time"));

    const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&f.label);

    QVERIFY(seen);
    QCOMPARE(seen->role(), QAccessible::StaticText);
    QCOMPARE(seen->text(QAccessible::Name), words("12:34"));
    QCOMPARE(seen->text(QAccessible::Description), words("Remaining time"));
}

void tst_DisplayLabel::aTextThatStaysTheSameIsNotPainted()
{
    ShownLabel f(words("12:34"));
    const Paintings paintings(f.label);

    f.label.setText(words("12:34"));
    f.label.setTextColor(f.label.textColor());
    QCoreApplication::processEvents();

    QCOMPARE(paintings.rects.size(), 0);
}

void tst_DisplayLabel::aNewTextIsPaintedAtOnce()
{
    ShownLabel f(words("123"));
    const Paintings paintings(f.label);

    f.label.setText(words("128"));

    QCOMPARE(paintings.rects, QList<QRect>{f.label.rect()});
}

void tst_DisplayLabel::theScreenShowsWhatAFullRepaintWouldShow()
{
    ShownLabel f(words("1h 2m 59s"));
    for (const char *text :
         {"1h 2m 58s", "1h 3m 50s", "1h 3m 5s", "9h 9m 9s", "8j_8gQ 8", "8j_8|@ W"}) {
        f.label.setText(words(text));
        const QImage painted = f.label.screen()
                                   ->grabWindow(f.label.winId())
                                   .toImage()
                                   .convertToFormat(QImage::Format_RGB32);
        QImage whole(f.label.size(), QImage::Format_RGB32);
        f.label.render(&whole);
        QCOMPARE(painted, whole);
    }
}

void tst_DisplayLabel::aTextIsDrawnWhereQtWouldDrawIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a time") << words("23h 59m 59s");
    QTest::newRow("the first and the last of plain characters") << words("! ~");
    QTest::newRow("a tabulator") << words("1\t2");
    QTest::newRow("an umlaut") << QString::fromUtf8("Tür");
    QTest::newRow("another script") << QString::fromUtf8("שעה");
}

void tst_DisplayLabel::aTextIsDrawnWhereQtWouldDrawIt()
{
    QFETCH(const QString, text);
    constexpr QSize size(500, 100);
    PaintedLabel f(text, 27);
    const QRect ink = inkOf(f.painted(size));

    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setFont(f.label.font());
    painter.drawText(expected.rect(), Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.end();

    const QRect wanted = inkOf(expected);
    const std::unique_ptr<const char[]> seen(QTest::toString(ink));
    QVERIFY2((ink.topLeft() - wanted.topLeft()).manhattanLength() <= 2 &&
                 (ink.bottomRight() - wanted.bottomRight()).manhattanLength() <= 2,
             seen.get());
}

void tst_DisplayLabel::blanksAtTheEndDoNotMoveTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::newRow("a time") << words("4166d 15h") << 500;
    QTest::newRow("a time without enough room") << words("4166d 15h") << 60;
    QTest::newRow("an umlaut") << QString::fromUtf8("Tür") << 500;
}

void tst_DisplayLabel::blanksAtTheEndDoNotMoveTheText()
{
    QFETCH(const QString, text);
    QFETCH(const int, width);
    const QRect expected = inkOf(PaintedLabel(text).painted({width, 100}));
    QVERIFY(!expected.isEmpty());

    QCOMPARE(inkOf(PaintedLabel(text + words("  ")).painted({width, 100})), expected);
}

WUFFER_TEST(tst_DisplayLabel)
#include "tst_DisplayLabel.moc"
