#include "controls/DataComboBox.h"
#include "support/TestMain.h"

namespace
{
const QString kBell = QStringLiteral("Bell");
const QString kBellFile = QStringLiteral("/a/Bell.aiff");
const QString kDefault = QStringLiteral("Wuff (Default)");

/// The texts of the entries, from the top.
QStringList shown(const DataComboBox &box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts << box.itemText(i);
    return texts;
}

/// The data objects of the entries, from the top. Leaves the last entry selected.
QStringList data(DataComboBox &box)
{
    QStringList objects;
    for (int i = 0; i < box.count(); ++i) {
        box.setCurrentIndex(i);
        objects << box.dataObjectOfSelectedItem().value_or(QStringLiteral("nothing"));
    }
    return objects;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QImage painted(QComboBox &box)
{
    box.resize(120, 26);
    QImage image(box.size(), QImage::Format_RGB32);
    box.render(&image);
    return image;
}
} // namespace

class tst_DataComboBox final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anEntryWithoutADataObjectIsItsOwnData();
    void anEntryOfTheBaseClassIsItsOwnData();
    void anEntryShowsOneTextAndStandsForAnother();
    void addingSeveralKeepsTheirOrder();
    void insertingKeepsEntriesAndDataTogether();
    void nothingIsSelectedAtFirst();
    void theSelectionStaysWithItsEntry();
    void selectingAnAbsentObjectLeavesTheSelection();
    void selectingFindsTheFirstEqualObject();
    void objectsAreComparedExactly();
    void removingByIndexRemovesBothSides();
    void removingTheSelectedEntrySelectsNothing();
    void removingByValueTakesTheFirstThatShowsIt();
    void removingEverythingLeavesNothing();
    void containsAsksForDataAndNotForTexts();
    void aTextWithRoomLooksAsUsual();
    void aTextWithoutRoomIsShortened();
};

void tst_DataComboBox::anEntryWithoutADataObjectIsItsOwnData()
{
    DataComboBox box;
    box.addItemWithObjectValue(kDefault);

    box.selectItemWithDataObjectValue(kDefault);

    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.dataObjectOfSelectedItem(), kDefault);
}

void tst_DataComboBox::anEntryOfTheBaseClassIsItsOwnData()
{
    DataComboBox box;
    box.addItem(kDefault);
    box.setCurrentIndex(-1);

    box.selectItemWithDataObjectValue(kDefault);

    QCOMPARE(box.currentIndex(), 0);
    QVERIFY(box.containsDataObject(kDefault));
    QCOMPARE(box.dataObjectOfSelectedItem(), kDefault);
}

void tst_DataComboBox::anEntryShowsOneTextAndStandsForAnother()
{
    DataComboBox box;
    box.addDataObject(kBellFile, kBell);

    box.selectItemWithDataObjectValue(kBell);
    QCOMPARE(box.currentIndex(), -1);

    box.selectItemWithDataObjectValue(kBellFile);
    QCOMPARE(box.currentText(), kBell);
    QCOMPARE(box.dataObjectOfSelectedItem(), kBellFile);
}

void tst_DataComboBox::addingSeveralKeepsTheirOrder()
{
    DataComboBox box;
    box.addItemWithObjectValue(QStringLiteral("z"));

    box.addItemsWithObjectValues(words("c a b"));
    box.addItemsWithObjectValues({});

    QCOMPARE(shown(box), words("z c a b"));
    QCOMPARE(data(box), words("z c a b"));
}

void tst_DataComboBox::insertingKeepsEntriesAndDataTogether()
{
    DataComboBox box;
    box.addItemsWithObjectValues(words("a b"));

    box.insertDataObject(QStringLiteral("/x"), QStringLiteral("x"), 1);
    box.insertItemWithObjectValue(QStringLiteral("first"), 0);
    box.insertDataObject(QStringLiteral("/last"), QStringLiteral("last"), box.count());

    QCOMPARE(shown(box), words("first a x b last"));
    QCOMPARE(data(box), words("first a /x b /last"));
}

void tst_DataComboBox::nothingIsSelectedAtFirst()
{
    DataComboBox box;
    QVERIFY(!box.dataObjectOfSelectedItem().has_value());

    box.addItemWithObjectValue(QStringLiteral("a"));
    box.addDataObject(kBellFile, kBell);
    box.insertItemWithObjectValue(QStringLiteral("b"), 0);

    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(!box.dataObjectOfSelectedItem().has_value());
}

void tst_DataComboBox::theSelectionStaysWithItsEntry()
{
    DataComboBox box;
    box.addItemsWithObjectValues(words("a b c"));
    box.selectItemWithDataObjectValue(QStringLiteral("b"));

    box.insertItemWithObjectValue(QStringLiteral("new"), 0);
    QCOMPARE(box.dataObjectOfSelectedItem(), QStringLiteral("b"));
    box.removeItemAtIndex(0);
    QCOMPARE(box.dataObjectOfSelectedItem(), QStringLiteral("b"));
    box.removeItemAtIndex(2);
    QCOMPARE(box.dataObjectOfSelectedItem(), QStringLiteral("b"));
}

void tst_DataComboBox::selectingAnAbsentObjectLeavesTheSelection()
{
    DataComboBox box;
    box.addItemsWithObjectValues(words("a b"));
    box.selectItemWithDataObjectValue(QStringLiteral("b"));

    box.selectItemWithDataObjectValue(QStringLiteral("absent"));
    box.selectItemWithDataObjectValue(QString());

    QCOMPARE(box.dataObjectOfSelectedItem(), QStringLiteral("b"));
}

void tst_DataComboBox::selectingFindsTheFirstEqualObject()
{
    DataComboBox box;
    box.addDataObject(QStringLiteral("/other"), QStringLiteral("twin"));
    box.addDataObject(kBellFile, QStringLiteral("twin"));
    box.addDataObject(kBellFile, kBell);

    box.selectItemWithDataObjectValue(kBellFile);

    QCOMPARE(box.currentIndex(), 1);
}

void tst_DataComboBox::objectsAreComparedExactly()
{
    DataComboBox box;
    box.addDataObject(kBellFile, kBell);

    QVERIFY(!box.containsDataObject(kBellFile.toLower()));
    QVERIFY(!box.containsDataObject(QStringLiteral("/a/Bell")));
    QVERIFY(!box.containsDataObject(QStringLiteral("/a/*")));
    QVERIFY(box.containsDataObject(kBellFile));
}

void tst_DataComboBox::removingByIndexRemovesBothSides()
{
    DataComboBox box;
    box.addItemsWithObjectValues(words("a b c"));
    box.addDataObject(kBellFile, kBell);

    box.removeItemAtIndex(1);

    QCOMPARE(shown(box), words("a c Bell"));
    QCOMPARE(data(box), words("a c /a/Bell.aiff"));
}

void tst_DataComboBox::removingTheSelectedEntrySelectsNothing()
{
    DataComboBox box;
    box.addItemsWithObjectValues(words("a b c"));
    box.selectItemWithDataObjectValue(QStringLiteral("b"));

    box.removeItemAtIndex(1);

    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(!box.dataObjectOfSelectedItem().has_value());
}

void tst_DataComboBox::removingByValueTakesTheFirstThatShowsIt()
{
    DataComboBox box;
    box.addDataObject(QStringLiteral("/1"), QStringLiteral("bell"));
    box.addDataObject(QStringLiteral("/2"), kBell);
    box.addDataObject(QStringLiteral("/3"), kBell);

    box.removeItemWithObjectValue(kBell);

    QCOMPARE(data(box), words("/1 /3"));
}

void tst_DataComboBox::removingEverythingLeavesNothing()
{
    DataComboBox box;
    box.addDataObject(kBellFile, kBell);
    box.selectItemWithDataObjectValue(kBellFile);

    box.removeAllItems();

    QCOMPARE(box.count(), 0);
    QVERIFY(!box.containsDataObject(kBellFile));
    QVERIFY(!box.dataObjectOfSelectedItem().has_value());
}

void tst_DataComboBox::containsAsksForDataAndNotForTexts()
{
    DataComboBox box;
    box.addDataObject(kBellFile, kBell);

    QVERIFY(box.containsDataObject(kBellFile));
    QVERIFY(!box.containsDataObject(kBell));
    QVERIFY(!box.containsDataObject(QString()));
}

void tst_DataComboBox::aTextWithRoomLooksAsUsual()
{
    DataComboBox box;
    QComboBox usual;
    for (QComboBox *each : {static_cast<QComboBox *>(&box), &usual}) {
        each->addItem(kBell);
        each->setCurrentIndex(0);
    }
    QCOMPARE(painted(box), painted(usual));
}

void tst_DataComboBox::aTextWithoutRoomIsShortened()
{
    DataComboBox box;
    const QString text = QStringLiteral("A very long name of a sound, as some have");
    box.addItem(text);
    box.setCurrentIndex(0);
    QComboBox cut;
    cut.addItem(text);
    QVERIFY(painted(box) != painted(cut));
    QCOMPARE(box.currentText(), text);
}

WUFFER_TEST(tst_DataComboBox)
#include "tst_DataComboBox.moc"
