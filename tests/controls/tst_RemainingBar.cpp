#include "controls/RemainingBar.h"
#include "support/TestMain.h"

#include <QImage>
#include <QPainter>

namespace
{
/// A track that is 100 pixels long.
RemainingBar::Place place(qreal devicePixelRatio = 1,
                          Qt::LayoutDirection direction = Qt::LeftToRight)
{
    return {.track = QRectF(10, 20, 100, 4),
            .cornerRadius = 2,
            .devicePixelRatio = devicePixelRatio,
            .direction = direction};
}

QImage painted(const RemainingBar &bar)
{
    QImage image(120, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    bar.paint(painter, place(), bar.color());
    return image;
}
} // namespace

/// The length and the colours of the bar.
class tst_RemainingBar final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theLengthIsTheShareOfTheTrack_data();
    void theLengthIsTheShareOfTheTrack();
    void itBeginsWhereLinesBegin();
    void aBarOfZeroIsNotDrawn();
    void theBarHasItsColorAndTheTrackAFaintOne();
};

void tst_RemainingBar::theLengthIsTheShareOfTheTrack_data()
{
    QTest::addColumn<double>("share");
    QTest::addColumn<double>("devicePixelRatio");
    QTest::addColumn<double>("length");
    QTest::newRow("nothing") << 0.0 << 1.0 << 0.0;
    QTest::newRow("less than nothing") << -0.5 << 1.0 << 0.0;
    QTest::newRow("hardly anything") << 1e-9 << 1.0 << 1.0;
    QTest::newRow("half") << 0.5 << 1.0 << 50.0;
    QTest::newRow("a part of a pixel") << 0.501 << 1.0 << 51.0;
    QTest::newRow("a part of a fine pixel") << 0.501 << 2.0 << 50.5;
    QTest::newRow("fractional scaling") << 0.5 << 1.5 << 50.0;
    QTest::newRow("nearly all") << 0.999 << 1.0 << 100.0;
    QTest::newRow("all") << 1.0 << 1.0 << 100.0;
    QTest::newRow("all, in pixels that do not end with the track") << 1.0 << 1.333 << 100.0;
    QTest::newRow("more than all") << 7.0 << 1.0 << 100.0;
}

void tst_RemainingBar::theLengthIsTheShareOfTheTrack()
{
    QFETCH(const double, share);
    QFETCH(const double, devicePixelRatio);
    QFETCH(const double, length);
    RemainingBar bar;
    bar.setShare(share);
    QCOMPARE(bar.filledPart(place(devicePixelRatio)), QRectF(10, 20, length, 4));
}

void tst_RemainingBar::itBeginsWhereLinesBegin()
{
    RemainingBar bar;
    bar.setShare(0.25);
    QCOMPARE(bar.filledPart(place(1, Qt::LeftToRight)), QRectF(10, 20, 25, 4));
    QCOMPARE(bar.filledPart(place(1, Qt::RightToLeft)), QRectF(85, 20, 25, 4));
}

void tst_RemainingBar::aBarOfZeroIsNotDrawn()
{
    RemainingBar bar;
    const QImage nothing = painted(bar);
    QCOMPARE(nothing.pixelColor(60, 22), QColor(Qt::white));
    bar.setShare(0.5);
    QVERIFY(painted(bar) != nothing);
    bar.setShare(0);
    QCOMPARE(painted(bar), nothing);
}

void tst_RemainingBar::theBarHasItsColorAndTheTrackAFaintOne()
{
    RemainingBar bar;
    bar.setColor(Qt::red);
    bar.setShare(0.5);

    const QImage image = painted(bar);

    QCOMPARE(image.pixelColor(40, 22), QColor(Qt::red));
    const QColor track = image.pixelColor(80, 22);
    QCOMPARE(track.red(), 255);
    QVERIFY(track.green() > 200 && track.green() < 250);
    QCOMPARE(image.pixelColor(115, 22), QColor(Qt::white));
}

WUFFER_TEST(tst_RemainingBar)
#include "tst_RemainingBar.moc"
