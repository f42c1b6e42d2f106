#include "controls/WebbyComboBox.h"
#include "support/TestMain.h"

#include <QAbstractItemView>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace
{
/// A window with a nested box of two entries, 120 points wide.
struct Fixture
{
    Fixture()
    {
        window.setGeometry(300, 200, 400, 300);
        outer.setGeometry(10, 20, 350, 250);
        inner.setGeometry(-7, 5, 300, 200);
        box.setGeometry(30, 40, 120, 24);
        box.addItemsWithObjectValues({QStringLiteral("one"), QStringLiteral("two")});
        window.show();
    }

    QWidget window;
    QWidget outer{&window};
    QWidget inner{&outer};
    WebbyComboBox box{&inner};
};
} // namespace

class tst_WebbyComboBox final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theSumIsCutTowardZeroAfterEachOrigin_data();
    void theSumIsCutTowardZeroAfterEachOrigin();
    void aBoxFindsItsArrowInItsWindow();
    void theArrowIsWhereTheStyleDrawsIt();
    void aClickAnywhereOpensTheList_data();
    void aClickAnywhereOpensTheList();
    void anotherButtonOpensNothing();
    void aDisabledBoxStaysClosed();
};

void tst_WebbyComboBox::theSumIsCutTowardZeroAfterEachOrigin_data()
{
    QTest::addColumn<QList<qreal>>("origins");
    QTest::addColumn<qreal>("width");
    QTest::addColumn<int>("x");
    QTest::newRow("half a point in a view at ten") << QList<qreal>{30.5, 10, 0, 0} << 120.0 << 155;
    QTest::newRow("two halves are lost") << QList<qreal>{30.5, 10.5} << 120.0 << 155;
    QTest::newRow("the order matters") << QList<qreal>{-0.5, 10.5, 0.5} << 120.0 << 125;
    QTest::newRow("negative sums are cut upward") << QList<qreal>{-30.5, 10} << 120.0 << 95;
    QTest::newRow("negative all the way") << QList<qreal>{-200.9} << 120.0 << -85;
    QTest::newRow("half a point of width is lost") << QList<qreal>{3} << 120.5 << 118;
    QTest::newRow("a result between -1 and 0") << QList<qreal>{0} << 4.5 << 0;
    QTest::newRow("no origins") << QList<qreal>() << 120.0 << 115;
}

void tst_WebbyComboBox::theSumIsCutTowardZeroAfterEachOrigin()
{
    QFETCH(const QList<qreal>, origins);
    QFETCH(const qreal, width);
    QFETCH(const int, x);

    QCOMPARE(WebbyComboBox::arrowX(origins, width), x);
}

void tst_WebbyComboBox::aBoxFindsItsArrowInItsWindow()
{
    Fixture f;
    QCOMPARE(f.box.arrowX(), 30 - 7 + 10 + 120 - 5);

    // The place of the window on the screen does not matter.
    f.window.move(50, 60);
    QCOMPARE(f.box.arrowX(), 148);
    f.inner.move(-100, 5);
    QCOMPARE(f.box.arrowX(), 55);
}

void tst_WebbyComboBox::theArrowIsWhereTheStyleDrawsIt()
{
    const Fixture f;
    const QPoint place = f.box.mapFrom(&f.window, QPoint(f.box.arrowX(), 0));
    QStyleOptionComboBox option;
    option.initFrom(&f.box);
    option.subControls = QStyle::SC_All;

    const QRect arrow = f.box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxArrow, &f.box);

    QVERIFY2(place.x() >= arrow.left() && place.x() <= arrow.right(),
             qPrintable(QString::number(place.x())));
}

void tst_WebbyComboBox::aClickAnywhereOpensTheList_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("left edge") << QPoint(0, 12);
    QTest::newRow("middle") << QPoint(60, 12);
    QTest::newRow("arrow") << QPoint(112, 12);
    QTest::newRow("right edge") << QPoint(119, 12);
    QTest::newRow("upper left corner") << QPoint(0, 0);
    QTest::newRow("lower right corner") << QPoint(119, 23);
}

void tst_WebbyComboBox::aClickAnywhereOpensTheList()
{
    QFETCH(const QPoint, place);
    Fixture f;
    QVERIFY(!f.box.view()->isVisible());

    QTest::mousePress(&f.box, Qt::LeftButton, {}, place);

    QVERIFY(f.box.view()->isVisible());
    f.box.hidePopup();
    QCOMPARE(f.box.currentIndex(), -1);
}

void tst_WebbyComboBox::anotherButtonOpensNothing()
{
    Fixture f;

    QTest::mousePress(&f.box, Qt::RightButton);
    QTest::mousePress(&f.box, Qt::MiddleButton);

    QVERIFY(!f.box.view()->isVisible());
}

void tst_WebbyComboBox::aDisabledBoxStaysClosed()
{
    Fixture f;
    f.box.setEnabled(false);

    QTest::mousePress(&f.box, Qt::LeftButton);

    QVERIFY(!f.box.view()->isVisible());
}

WUFFER_TEST(tst_WebbyComboBox)
#include "tst_WebbyComboBox.moc"
