#include "base/Contrast.h"
#include "controls/PanelColors.h"
#include "support/TestMain.h"

#include <QPalette>

namespace
{
const QColor kRed = QColor::fromRgbF(0.9F, 0.0F, 0.0F);
const QColor kBlue = Qt::blue;

QPalette theme(const QColor &ground, const QColor &text)
{
    QPalette palette;
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, text);
    return palette;
}

QColor ink(const QColor &color, const QPalette &desktop)
{
    return PanelColors::inkFor(color, PanelColors::of(desktop).palette());
}

double contrast(const QColor &one, const QColor &other)
{
    return Contrast::ratio(Rgb::of(one), Rgb::of(other));
}
} // namespace

class tst_PanelColors final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aLightThemeLeavesTheColorsAsTheyAre_data();
    void aLightThemeLeavesTheColorsAsTheyAre();
    void aDarkThemeGivesThePanelItsColors_data();
    void aDarkThemeGivesThePanelItsColors();
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
    void redStaysRedAndBlueStaysBlue();
};

void tst_PanelColors::aLightThemeLeavesTheColorsAsTheyAre_data()
{
    QTest::addColumn<QPalette>("desktop");
    QTest::newRow("black on white") << theme(Qt::white, Qt::black);
    QTest::newRow("grey on white") << theme(Qt::white, QColor(0x31, 0x36, 0x3B));
    QTest::newRow("black on grey") << theme(QColor(160, 160, 160), Qt::black);
}

void tst_PanelColors::aLightThemeLeavesTheColorsAsTheyAre()
{
    QFETCH(const QPalette, desktop);
    for (const QColor &color : {QColor(Qt::black), kRed, kBlue})
        QCOMPARE(ink(color, desktop), color);
    QVERIFY(PanelColors::of(desktop).ground.lightness() > 230);
}

void tst_PanelColors::aDarkThemeGivesThePanelItsColors_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    QTest::newRow("dark grey") << QColor(0x14, 0x16, 0x18) << QColor(0xFC, 0xFC, 0xFC);
    QTest::newRow("black") << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("yellow on black") << QColor(Qt::black) << QColor(Qt::yellow);
}

void tst_PanelColors::aDarkThemeGivesThePanelItsColors()
{
    QFETCH(const QColor, ground);
    QFETCH(const QColor, text);
    const PanelColors colors = PanelColors::of(theme(ground, text));
    QCOMPARE(colors.ground, ground);
    QCOMPARE(colors.text, text);
    QCOMPARE(ink(Qt::black, theme(ground, text)), text);
}

void tst_PanelColors::everyTextCanBeRead_data()
{
    aDarkThemeGivesThePanelItsColors_data();
    QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("too little contrast") << QColor(90, 90, 90) << QColor(120, 120, 120);
    QTest::newRow("medium grey") << QColor(118, 118, 118) << QColor(Qt::white);
    QTest::newRow("medium grey, too light") << QColor(140, 140, 140) << QColor(Qt::white);
}

void tst_PanelColors::everyTextCanBeRead()
{
    QFETCH(const QColor, ground);
    QFETCH(const QColor, text);
    const PanelColors colors = PanelColors::of(theme(ground, text));
    for (const QColor &color : {QColor(Qt::black), kRed, kBlue})
        QVERIFY(contrast(ink(color, theme(ground, text)), colors.ground) >= Contrast::kText);
    QVERIFY(contrast(colors.text, colors.ground) >= Contrast::kText);
    QVERIFY(contrast(colors.placeholder, colors.ground) >= Contrast::kText);
}

void tst_PanelColors::redStaysRedAndBlueStaysBlue()
{
    const QPalette dark = theme(QColor(0x14, 0x16, 0x18), Qt::white);
    QCOMPARE(ink(kRed, dark).hue(), kRed.hue());
    QCOMPARE(ink(kBlue, dark).hue(), kBlue.hue());
    QVERIFY(ink(kRed, dark).saturation() > 100);
    QVERIFY(ink(kBlue, dark).saturation() > 100);
}

WUFFER_TEST(tst_PanelColors)
#include "tst_PanelColors.moc"
