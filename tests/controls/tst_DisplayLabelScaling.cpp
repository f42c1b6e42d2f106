#include "support/PaintedLabel.h"
#include "support/TestMain.h"

#include <cmath>
#include <memory>

/// How a text that is too large for its label is scaled down.
class tst_DisplayLabelScaling final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aTextThatFitsIsDrawnInItsOwnSize();
    void aTextIsScaledToItsRoom_data();
    void aTextIsScaledToItsRoom();
    void aTextIsNeverClipped_data();
    void aTextIsNeverClipped();
    void everyStrokeOfAScaledTextIsSeen_data();
    void everyStrokeOfAScaledTextIsSeen();
};

void tst_DisplayLabelScaling::aTextThatFitsIsDrawnInItsOwnSize()
{
    PaintedLabel f(QStringLiteral("12:34"));
    const QRect ink = inkOf(f.painted({400, 100}));
    const QRect roomier = inkOf(f.painted({600, 200}));

    QVERIFY(!ink.isEmpty());
    QCOMPARE(ink.size(), roomier.size());
    QVERIFY(std::abs(ink.center().x() - 200) <= 2);
}

void tst_DisplayLabelScaling::aTextIsScaledToItsRoom_data()
{
    QTest::addColumn<QSizeF>("text");
    QTest::addColumn<QSizeF>("room");
    QTest::addColumn<qreal>("scale");
    QTest::newRow("fits") << QSizeF(100, 20) << QSizeF(200, 30) << 1.0;
    QTest::newRow("fits exactly") << QSizeF(100, 20) << QSizeF(100, 20) << 1.0;
    QTest::newRow("too wide") << QSizeF(100, 20) << QSizeF(50, 30) << 0.5;
    QTest::newRow("too high") << QSizeF(100, 20) << QSizeF(200, 5) << 0.25;
    QTest::newRow("too wide and too high") << QSizeF(100, 20) << QSizeF(50, 5) << 0.25;
    QTest::newRow("no text") << QSizeF(0, 20) << QSizeF(50, 5) << 1.0;
    QTest::newRow("no room") << QSizeF(100, 20) << QSizeF(0, 0) << 0.0;
}

void tst_DisplayLabelScaling::aTextIsScaledToItsRoom()
{
    QFETCH(const QSizeF, text);
    QFETCH(const QSizeF, room);
    QFETCH(const qreal, scale);

    QCOMPARE(DisplayLabel::fittingScale(text, room), scale);
}

void tst_DisplayLabelScaling::aTextIsNeverClipped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("points");
    QTest::addColumn<QSize>("room");
    const QString time = QStringLiteral("88:88:88");
    QTest::newRow("a little too wide") << time << 24.0 << QSize(100, 60);
    QTest::newRow("much too wide") << time << 24.0 << QSize(30, 60);
    QTest::newRow("too high") << time << 24.0 << QSize(300, 15);
    QTest::newRow("200 points on a small screen") << time << 200.0 << QSize(640, 480);
    QTest::newRow("a long name") << QString(40, QLatin1Char('M')) << 24.0 << QSize(400, 60);
    QTest::newRow("wide letters") << QStringLiteral("WMWMWMWM") << 36.0 << QSize(101, 60);
    QTest::newRow("overhanging letters") << QStringLiteral("fjfjfjWf") << 72.0 << QSize(150, 60);
    QTest::newRow("a size of half points") << time << 23.7 << QSize(97, 40);
    QTest::newRow("hardly any room") << time << 24.0 << QSize(5, 5);
}

void tst_DisplayLabelScaling::aTextIsNeverClipped()
{
    QFETCH(const QString, text);
    QFETCH(const double, points);
    QFETCH(const QSize, room);
    PaintedLabel f(text, points);
    const QFontMetricsF metrics(f.label.font());
    const QSizeF full(metrics.horizontalAdvance(text), metrics.height());
    const QRect whole = inkOf(f.painted(full.toSize() + QSize(100, 100)));
    const double scale = DisplayLabel::fittingScale(full, room);
    QVERIFY(scale < 1);

    const QRect ink = inkOf(f.painted(room));

    const std::unique_ptr<const char[]> seen(QTest::toString(ink));
    QVERIFY2(std::abs(ink.width() - whole.width() * scale) <= 3, seen.get());
    QVERIFY2(std::abs(ink.height() - whole.height() * scale) <= 3, seen.get());
}

void tst_DisplayLabelScaling::everyStrokeOfAScaledTextIsSeen_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("width");
    QTest::newRow("24 points, a little too wide") << 24.0 << 300;
    QTest::newRow("24 points, half") << 24.0 << 160;
    QTest::newRow("23.7 points") << 23.7 << 201;
    QTest::newRow("200 points") << 200.0 << 640;
    QTest::newRow("200 points, small") << 200.0 << 131;
}

void tst_DisplayLabelScaling::everyStrokeOfAScaledTextIsSeen()
{
    QFETCH(const double, points);
    QFETCH(const int, width);
    constexpr int count = 30;
    PaintedLabel f(QString(count, QLatin1Char('|')), points);
    QVERIFY(QFontMetricsF(f.label.font()).horizontalAdvance(f.label.text()) > width);

    const QImage image = f.painted({width, 400});

    int strokes = 0;
    bool inStroke = false;
    for (int x = 0; x < width; ++x) {
        const bool dark = image.pixelColor(x, 200).lightness() < 200;
        strokes += dark && !inStroke;
        inStroke = dark;
    }
    QCOMPARE(strokes, count);
}

WUFFER_TEST(tst_DisplayLabelScaling)
#include "tst_DisplayLabelScaling.moc"
