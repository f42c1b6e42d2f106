#include "controls/ExpanderButton.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QSignalSpy>

namespace
{
QAccessibleInterface &seen(QWidget &widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}
} // namespace

class tst_ExpanderButton final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAButtonNamedByItsText();
    void itSaysWhetherItIsExpanded();
    void assistiveProgramsPressIt();
    void aDisabledButtonCannotBePressed();
};

void tst_ExpanderButton::itIsAButtonNamedByItsText()
{
    ExpanderButton button;
    button.setText(QStringLiteral("&More && more"));

    QCOMPARE(seen(button).role(), QAccessible::Button);
    QCOMPARE(seen(button).text(QAccessible::Name), QStringLiteral("More & more"));
    QCOMPARE(seen(button).textInterface()->text(0, -1), QStringLiteral("More & more"));
}

void tst_ExpanderButton::itSaysWhetherItIsExpanded()
{
    ExpanderButton button;
    QVERIFY(seen(button).state().expandable);
    QVERIFY(seen(button).state().collapsed);
    QVERIFY(!seen(button).state().expanded);

    button.setExpanded(true);

    QVERIFY(seen(button).state().expanded);
    QVERIFY(!seen(button).state().collapsed);
}

void tst_ExpanderButton::assistiveProgramsPressIt()
{
    ExpanderButton button;
    const QSignalSpy presses(&button, &QPushButton::clicked);
    QAccessibleActionInterface *actions = seen(button).actionInterface();
    QCOMPARE(actions->actionNames().constFirst(), QAccessibleActionInterface::pressAction());

    actions->doAction(QAccessibleActionInterface::pressAction());

    QCOMPARE(presses.count(), 1);
}

void tst_ExpanderButton::aDisabledButtonCannotBePressed()
{
    ExpanderButton button;
    button.setEnabled(false);
    const QSignalSpy presses(&button, &QPushButton::clicked);
    QAccessibleActionInterface *actions = seen(button).actionInterface();

    actions->doAction(QAccessibleActionInterface::pressAction());

    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    QCOMPARE(presses.count(), 0);
}

WUFFER_TEST(tst_ExpanderButton)
#include "tst_ExpanderButton.moc"
