#include "base/Contrast.h"
#include "controls/HintLabel.h"
#include "support/TestMain.h"

#include <QCheckBox>
#include <QStyle>
#include <QStyleOptionButton>

namespace
{
const auto kText = QStringLiteral("No milliseconds");

/// A hint below a box, in a theme with these colours.
struct Form
{
    explicit Form(const QColor &text = Qt::black, const QColor &ground = Qt::white)
    {
        QPalette palette;
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Window, ground);
        window.setPalette(palette);
        window.setAutoFillBackground(true);
        hint.setText(kText);
        hint.resize(hint.sizeHint());
    }

    QWidget window;
    HintLabel hint{&window};
};

/// The first column that has another colour than the ground, from the left.
int firstInk(const QImage &image)
{
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                return x;
        }
    }
    return image.width();
}
} // namespace

class tst_HintLabel final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itsTextCanBeReadInEveryTheme_data();
    void itsTextCanBeReadInEveryTheme();
    void itsTextIsPalerThanOthers();
    void itIsDrawnInItsColor();
    void anotherThemeCountsAtOnce();
    void itBeginsWhereTheTextOfABoxBegins();
    void inAMirroredWindowItBeginsAtTheRight();
    void aLongTextWraps();
    void itsTextIsPlain();
};

void tst_HintLabel::itsTextCanBeReadInEveryTheme_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("light") << QColor(QRgb(0x000000)) << QColor(QRgb(0xefefef));
    QTest::newRow("dark") << QColor(QRgb(0xffffff)) << QColor(QRgb(0x323232));
    QTest::newRow("white on black") << QColor(QRgb(0xffffff)) << QColor(QRgb(0x000000));
    QTest::newRow("black on white") << QColor(QRgb(0x000000)) << QColor(QRgb(0xffffff));
    QTest::newRow("soft") << QColor(QRgb(0x657b83)) << QColor(QRgb(0xfdf6e3));
    QTest::newRow("soft and dark") << QColor(QRgb(0x839496)) << QColor(QRgb(0x002b36));
    QTest::newRow("not to be read at all") << QColor(QRgb(0x808080)) << QColor(QRgb(0x808080));
}

void tst_HintLabel::itsTextCanBeReadInEveryTheme()
{
    QFETCH(const QColor, text);
    QFETCH(const QColor, ground);
    const Form form(text, ground);
    QVERIFY(Contrast::ratio(Rgb::of(form.hint.color()), Rgb::of(ground)) >= Contrast::kText);
}

void tst_HintLabel::itsTextIsPalerThanOthers()
{
    const Form light(Qt::black, Qt::white);
    const QColor grey = light.hint.color();
    QVERIFY(grey.lightness() > 50 && grey.lightness() < 150);
    const Form dark(Qt::white, Qt::black);
    QVERIFY(dark.hint.color().lightness() < 220);
}

void tst_HintLabel::itIsDrawnInItsColor()
{
    constexpr int large = 60;
    Form form(Qt::black, Qt::white);
    QFont font = form.hint.font();
    font.setPixelSize(large);
    font.setBold(true);
    form.hint.setFont(font);
    form.hint.resize(large * int(kText.size()), large * 2);
    const QImage image = form.hint.grab().toImage();
    bool drawn = false;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor pixel = image.pixelColor(x, y);
            drawn |= pixel == form.hint.color();
            QVERIFY(pixel.lightness() >= form.hint.color().lightness());
        }
    }
    QVERIFY(drawn);
}

void tst_HintLabel::anotherThemeCountsAtOnce()
{
    Form form(Qt::black, Qt::white);
    QPalette dark = form.window.palette();
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Window, Qt::black);
    form.window.setPalette(dark);
    QVERIFY(form.hint.color().lightness() > 150);
}

void tst_HintLabel::itBeginsWhereTheTextOfABoxBegins()
{
    Form form;
    QCheckBox box(kText, &form.window);
    box.resize(box.sizeHint());
    QStyleOptionButton option;
    option.initFrom(&box);
    const int begin =
        box.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box).left();
    QVERIFY(begin > 0);
    const int ink = firstInk(form.hint.grab().toImage());
    const QRect glyph = form.hint.fontMetrics().boundingRect(kText.left(1));
    QVERIFY2(std::abs(ink - glyph.left() - begin) <= 1, qPrintable(QString::number(ink)));
}

void tst_HintLabel::inAMirroredWindowItBeginsAtTheRight()
{
    Form form;
    form.window.setLayoutDirection(Qt::RightToLeft);
    form.hint.resize(form.hint.width() + 100, form.hint.height());
    QVERIFY(firstInk(form.hint.grab().toImage()) >= 100);
    const QImage mirrored = form.hint.grab().toImage().mirrored(true, false);
    QVERIFY(firstInk(mirrored) >= form.hint.indent());
}

void tst_HintLabel::aLongTextWraps()
{
    Form form;
    const int line = form.hint.heightForWidth(1000);
    QVERIFY(form.hint.heightForWidth(form.hint.indent() + 60) >= 2 * line - 2);
}

void tst_HintLabel::itsTextIsPlain()
{
    Form form;
    form.hint.setText(QStringLiteral("<b>bold</b>"));
    QCOMPARE(form.hint.textFormat(), Qt::PlainText);
}

WUFFER_TEST(tst_HintLabel)
#include "tst_HintLabel.moc"
