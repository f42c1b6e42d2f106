#include "controls/SpokenComboBox.h"
#include "support/TestMain.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QVBoxLayout>

namespace
{
const QString kTea = QStringLiteral("Tea");
const QString kEggs = QStringLiteral("Eggs");

/// A window with a box of three entries.
struct Fixture
{
    Fixture()
    {
        for (QWidget *each : std::initializer_list<QWidget *>{&label, &box})
            layout.addWidget(each);
        label.setBuddy(&box);
        box.addItems({kTea, kEggs, QStringLiteral("Rice")});
        window.show();
    }

    [[nodiscard]] QAccessibleInterface &seen()
    {
        return *QAccessible::queryAccessibleInterface(&box);
    }

    QWidget window;
    QVBoxLayout layout{&window};
    QLabel label{QStringLiteral("Cook:"), &window};
    SpokenComboBox box{&window};
};
} // namespace

class tst_SpokenComboBox final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itsTextIsItsEntry();
    void itIsAComboBoxWithALabelAndAList();
    void assistiveProgramsOpenAndCloseIt();
    void aDisabledBoxStaysClosed();
};

void tst_SpokenComboBox::itsTextIsItsEntry()
{
    Fixture f;
    f.box.setCurrentIndex(1);

    // Screen readers ask for the text of a box of which they do not know a selected child.
    QAccessibleTextInterface *text = f.seen().textInterface();
    QVERIFY(text);
    QCOMPARE(text->text(0, text->characterCount()), kEggs);
    QCOMPARE(text->text(0, -1), kEggs);
    QCOMPARE(text->text(1, 3), QStringLiteral("gg"));
    QCOMPARE(f.seen().text(QAccessible::Value), kEggs);
    QVERIFY(!f.seen().editableTextInterface());

    f.box.setCurrentIndex(-1);
    QCOMPARE(text->characterCount(), 0);
    QCOMPARE(text->selectionCount(), 0);
}

void tst_SpokenComboBox::itIsAComboBoxWithALabelAndAList()
{
    Fixture f;
    QCOMPARE(f.seen().role(), QAccessible::ComboBox);
    QCOMPARE(f.seen().relations(QAccessible::Label).constFirst().first->object(), &f.label);
    QCOMPARE(f.seen().childCount(), 1);
    QAccessibleInterface *list = f.seen().child(0);
    QCOMPARE(list->object(), f.box.view());
    QCOMPARE(f.seen().indexOfChild(list), 0);
    QCOMPARE(list->parent()->object(), &f.box);
    QCOMPARE(list->childCount(), 3);
}

void tst_SpokenComboBox::assistiveProgramsOpenAndCloseIt()
{
    Fixture f;
    QAccessibleActionInterface *actions = f.seen().actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    QVERIFY(f.seen().state().expandable);
    QVERIFY(!f.seen().state().expanded);

    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(f.box.view()->isVisible());
    QVERIFY(f.seen().state().expanded);

    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!f.box.view()->isVisible());
    QVERIFY(!f.seen().state().expanded);
}

void tst_SpokenComboBox::aDisabledBoxStaysClosed()
{
    Fixture f;
    f.box.setEnabled(false);
    QAccessibleActionInterface *actions = f.seen().actionInterface();

    actions->doAction(QAccessibleActionInterface::pressAction());

    QCOMPARE(actions->actionNames(), QStringList());
    QVERIFY(!f.box.view()->isVisible());
}

WUFFER_TEST(tst_SpokenComboBox)
#include "tst_SpokenComboBox.moc"
