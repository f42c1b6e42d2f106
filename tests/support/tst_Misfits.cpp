#include "controls/DisplayLabel.h"
#include "controls/ElidedLabel.h"
#include "support/Misfits.h"
#include "support/TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

using Maker = std::function<QWidget *(QWidget &parent)>;
Q_DECLARE_METATYPE(Maker)

namespace
{
const QString kText = QStringLiteral("a text that needs its room");

template<class Class> QWidget *withText(QWidget &parent)
{
    auto *made = new Class(&parent);
    made->setText(kText);
    return made;
}

QWidget *wrappedLabel(QWidget &parent)
{
    auto *label = new QLabel(kText, &parent);
    label->setWordWrap(true);
    return label;
}

QWidget *comboBox(QWidget &parent)
{
    auto *box = new QComboBox(&parent);
    // The entry that does not fit is not selected.
    box->addItems({QString(), kText});
    return box;
}

QWidget *emptyField(QWidget &parent)
{
    auto *field = new QLineEdit(&parent);
    field->setPlaceholderText(kText);
    return field;
}

QWidget *tabs(QWidget &parent)
{
    auto *bar = new QTabBar(&parent);
    bar->addTab(kText);
    return bar;
}

QWidget *menus(QWidget &parent)
{
    auto *bar = new QMenuBar(&parent);
    bar->addMenu(kText);
    return bar;
}

QWidget *list(QWidget &parent)
{
    auto *made = new QListWidget(&parent);
    made->addItem(kText);
    return made;
}

QWidget *text(QWidget &parent)
{
    auto *made = new QTextEdit(&parent);
    made->setLineWrapMode(QTextEdit::NoWrap);
    made->setPlainText(kText);
    return made;
}
} // namespace

/// The tests of windows would pass if texts without room were not found.
class tst_Misfits final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aTextWithoutRoomIsFound_data();
    void aTextWithoutRoomIsFound();
    void aHiddenTextNeedsNoRoom();
};

void tst_Misfits::aTextWithoutRoomIsFound_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("label") << Maker(withText<QLabel>);
    QTest::newRow("wrapped label") << Maker(wrappedLabel);
    QTest::newRow("elided label") << Maker(withText<ElidedLabel>);
    QTest::newRow("display label") << Maker(withText<DisplayLabel>);
    QTest::newRow("button") << Maker(withText<QPushButton>);
    QTest::newRow("check box") << Maker(withText<QCheckBox>);
    QTest::newRow("tool button") << Maker(withText<QToolButton>);
    QTest::newRow("combo box") << Maker(comboBox);
    QTest::newRow("empty field") << Maker(emptyField);
    QTest::newRow("tabs") << Maker(tabs);
    QTest::newRow("menus") << Maker(menus);
    QTest::newRow("list") << Maker(list);
    QTest::newRow("text") << Maker(text);
    QTest::newRow("date") << Maker([](QWidget &parent) { return new QDateTimeEdit(&parent); });
}

void tst_Misfits::aTextWithoutRoomIsFound()
{
    QFETCH(const Maker, make);
    QWidget window;
    QWidget &widget = *make(window);
    window.show();
    widget.setGeometry(0, 0, 400, 100);
    QCoreApplication::processEvents();
    QCOMPARE(misfits(window), QStringList());
    widget.resize(50, 20);
    QCoreApplication::processEvents();
    QCOMPARE(misfits(window).size(), 1);
}

void tst_Misfits::aHiddenTextNeedsNoRoom()
{
    QWidget window;
    QWidget &widget = *withText<QLabel>(window);
    window.show();
    widget.resize(10, 10);
    QCOMPARE(misfits(window).size(), 1);
    widget.hide();
    QCOMPARE(misfits(window), QStringList());
}

WUFFER_TEST(tst_Misfits)
#include "tst_Misfits.moc"
