#include "controls/SpokenButton.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QSignalSpy>

namespace
{
QAccessibleInterface &seen(SpokenButton &button)
{
    return *QAccessible::queryAccessibleInterface(&button);
}
} // namespace

class tst_SpokenButton final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAButtonNamedByItsTitle();
    void assistiveProgramsPressIt();
};

void tst_SpokenButton::itIsAButtonNamedByItsTitle()
{
    SpokenButton button;
    button.setText(QStringLiteral("&Go"));
    button.setDefault(true);

    QCOMPARE(seen(button).role(), QAccessible::Button);
    QCOMPARE(seen(button).text(QAccessible::Name), QStringLiteral("Go"));
    QVERIFY(seen(button).state().defaultButton);
    QAccessibleTextInterface *spoken = seen(button).textInterface();
    QVERIFY(spoken);
    QCOMPARE(spoken->text(0, spoken->characterCount()), QStringLiteral("Go"));
}

void tst_SpokenButton::assistiveProgramsPressIt()
{
    SpokenButton button;
    const QSignalSpy presses(&button, &QPushButton::clicked);

    seen(button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());

    QCOMPARE(presses.count(), 1);
}

WUFFER_TEST(tst_SpokenButton)
#include "tst_SpokenButton.moc"
