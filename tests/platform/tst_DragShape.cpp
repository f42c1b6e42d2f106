#include "platform/DragShape.h"
#include "support/TestMain.h"

#include <QPainter>
#include <QPixmap>

namespace
{
/// A picture 8 points wide and 6 high, with a square of 2 points at (3, 1).
QPixmap pictureWithASquare(int scale, int alpha = 255)
{
    QPixmap picture(QSize(8, 6) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter(&picture).fillRect(3, 1, 2, 2, QColor(0, 0, 255, alpha));
    return picture;
}
} // namespace

class tst_DragShape final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theShapeIsWhatIsDrawn_data();
    void theShapeIsWhatIsDrawn();
    void faintPointsAreNoPartOfIt();
    void anOpaquePictureIsASquare();
};

void tst_DragShape::theShapeIsWhatIsDrawn_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("100 %") << 1;
    QTest::newRow("200 %") << 2;
}

void tst_DragShape::theShapeIsWhatIsDrawn()
{
    QFETCH(const int, scale);
    QCOMPARE(DragShape::shapeOf(pictureWithASquare(scale)), QRegion(3, 1, 2, 2));
}

void tst_DragShape::faintPointsAreNoPartOfIt()
{
    QVERIFY(DragShape::shapeOf(pictureWithASquare(1, 100)).isEmpty());
    QCOMPARE(DragShape::shapeOf(pictureWithASquare(1, 150)), QRegion(3, 1, 2, 2));
}

void tst_DragShape::anOpaquePictureIsASquare()
{
    QPixmap picture(5, 4);
    picture.fill(Qt::red);
    QCOMPARE(DragShape::shapeOf(picture), QRegion(0, 0, 5, 4));
}

WUFFER_TEST(tst_DragShape)
#include "tst_DragShape.moc"
