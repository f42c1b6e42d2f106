#include "controls/PickFromList.h"
#include "support/TestMain.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QWheelEvent>

namespace
{
/// A box of three entries, the second selected.
struct Fixture
{
    Fixture()
    {
        box.addItems({QStringLiteral("Apple"), QStringLiteral("Bread"), QStringLiteral("Cake")});
        box.setCurrentIndex(1);
        new PickFromList(box);
        QObject::connect(&box, &QComboBox::activated, &box, [this] { ++activated; });
        box.show();
    }

    [[nodiscard]] bool isOpen() const { return box.view()->isVisible(); }

    QComboBox box;
    int activated = 0;
};
} // namespace

class tst_PickFromList final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void keysThatWouldSelectOpenTheList_data();
    void keysThatWouldSelectOpenTheList();
    void otherKeysDoNot_data();
    void otherKeysDoNot();
    void theWheelDoesNothing();
    void anEntryIsPickedFromTheOpenList();
};

void tst_PickFromList::keysThatWouldSelectOpenTheList_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("up") << Qt::Key_Up;
    QTest::newRow("down") << Qt::Key_Down;
    QTest::newRow("page up") << Qt::Key_PageUp;
    QTest::newRow("page down") << Qt::Key_PageDown;
    QTest::newRow("home") << Qt::Key_Home;
    QTest::newRow("end") << Qt::Key_End;
    QTest::newRow("a first letter") << Qt::Key_C;
    QTest::newRow("space") << Qt::Key_Space;
}

void tst_PickFromList::keysThatWouldSelectOpenTheList()
{
    QFETCH(const Qt::Key, key);
    Fixture f;
    QTest::keyClick(&f.box, key);
    QVERIFY(f.isOpen());
    QCOMPARE(f.box.currentIndex(), 1);
    QCOMPARE(f.activated, 0);
}

void tst_PickFromList::otherKeysDoNot_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("tab") << Qt::Key_Tab << Qt::KeyboardModifiers();
    QTest::newRow("escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
    QTest::newRow("a shortcut") << Qt::Key_C << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void tst_PickFromList::otherKeysDoNot()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    Fixture f;
    QTest::keyClick(&f.box, key, modifiers);
    QVERIFY(!f.isOpen());
    QCOMPARE(f.box.currentIndex(), 1);
}

void tst_PickFromList::theWheelDoesNothing()
{
    Fixture f;
    for (const int turn : {120, -120}) {
        const QPointF middle = QRectF(f.box.rect()).center();
        QWheelEvent wheel(middle, f.box.mapToGlobal(middle), {}, QPoint(0, turn), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&f.box, &wheel);
        QCOMPARE(f.box.currentIndex(), 1);
        QVERIFY(!f.isOpen());
    }
    QCOMPARE(f.activated, 0);
}

void tst_PickFromList::anEntryIsPickedFromTheOpenList()
{
    Fixture f;
    QTest::keyClick(&f.box, Qt::Key_Down);
    QTest::keyClick(f.box.view(), Qt::Key_Down);
    QTest::keyClick(f.box.view(), Qt::Key_Return);
    QVERIFY(!f.isOpen());
    QCOMPARE(f.box.currentIndex(), 2);
    QCOMPARE(f.activated, 1);
}

WUFFER_TEST(tst_PickFromList)
#include "tst_PickFromList.moc"
