#include "controls/PressThrough.h"
#include "support/TestMain.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>

namespace
{
/// The widget behind the button, with a diary of its mouse events.
class Background final : public QWidget
{
public:
    QStringList diary;

protected:
    void mousePressEvent(QMouseEvent * /*event*/) override { diary << QStringLiteral("press"); }
    void mouseMoveEvent(QMouseEvent * /*event*/) override { diary << QStringLiteral("move"); }
    void mouseReleaseEvent(QMouseEvent * /*event*/) override { diary << QStringLiteral("release"); }
};

class Fixture
{
public:
    Fixture() { new PressThrough(button); }

    /// Presses a mouse button on the button, moves within it, and releases.
    void drag(Qt::MouseButton with)
    {
        QTest::mousePress(&button, with, {}, QPoint(5, 5));
        const QPoint to(9, 5);
        QMouseEvent move(QEvent::MouseMove, to, button.mapToGlobal(to), Qt::NoButton, with, {});
        QCoreApplication::sendEvent(&button, &move);
        QTest::mouseRelease(&button, with, {}, to);
    }

    Background background;
    QPushButton button{&background};
};
} // namespace

/// Whether mouse events reach the widget behind a button.
class tst_PressThrough final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aDisabledButtonLetsTheMouseThrough_data();
    void aDisabledButtonLetsTheMouseThrough();
    void anEnabledButtonIsClickedAsEver();
    void theButtonsOwnToolTipStays();
};

void tst_PressThrough::aDisabledButtonLetsTheMouseThrough_data()
{
    QTest::addColumn<Qt::MouseButton>("with");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void tst_PressThrough::aDisabledButtonLetsTheMouseThrough()
{
    QFETCH(const Qt::MouseButton, with);
    Fixture f;
    const QSignalSpy clicks(&f.button, &QPushButton::clicked);
    f.button.setEnabled(false);
    f.drag(with);
    const QStringList all{QStringLiteral("press"), QStringLiteral("move"),
                          QStringLiteral("release")};
    QCOMPARE(f.background.diary, all);
    QCOMPARE(clicks.size(), 0);
}

void tst_PressThrough::anEnabledButtonIsClickedAsEver()
{
    Fixture f;
    const QSignalSpy clicks(&f.button, &QPushButton::clicked);
    f.drag(Qt::LeftButton);
    QCOMPARE(f.background.diary, QStringList());
    QCOMPARE(clicks.size(), 1);
}

void tst_PressThrough::theButtonsOwnToolTipStays()
{
    Fixture f;
    f.button.setEnabled(false);
    f.background.setToolTip(QStringLiteral("behind"));
    f.button.setToolTip(QStringLiteral("why not"));
    f.background.show();
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), f.button.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&f.button, &help);
    const auto shown = [] {
        QStringList texts;
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("QTipLabel") && window->isVisible())
                texts << static_cast<const QLabel *>(window)->text();
        }
        return texts;
    };
    QCOMPARE(shown(), QStringList{QStringLiteral("why not")});
}

WUFFER_TEST(tst_PressThrough)
#include "tst_PressThrough.moc"
