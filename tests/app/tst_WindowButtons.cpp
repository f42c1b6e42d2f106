#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TestServices.h"

#include <QApplication>
#include <QWidget>

Q_DECLARE_METATYPE(WufferController::Operation)

/// The buttons that the window manager is asked to offer on a window.
class tst_WindowButtons final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWindowsThatGainFromItCanBeMaximized_data();
    void onlyWindowsThatGainFromItCanBeMaximized();
    void theHomeWindowCannotBeMaximized();
};

void tst_WindowButtons::onlyWindowsThatGainFromItCanBeMaximized_data()
{
    QTest::addColumn<WufferController::Operation>("show");
    QTest::addColumn<bool>("expected");
    QTest::newRow("timer") << &WufferController::newWuffer << false;
    QTest::newRow("converter") << &WufferController::showConverter << false;
    QTest::newRow("preferences") << &WufferController::showPreferences << false;
    QTest::newRow("measurements") << &WufferController::showMeasurements << true;
    QTest::newRow("help") << &WufferController::showHelp << true;
}

void tst_WindowButtons::onlyWindowsThatGainFromItCanBeMaximized()
{
    QFETCH(const WufferController::Operation, show);
    const TestServices services;
    WufferController controller;
    (controller.*show)();
    QTRY_VERIFY(QApplication::activeWindow());
    const Qt::WindowFlags flags = QApplication::activeWindow()->windowFlags();
    QTEST(flags.testFlag(Qt::WindowMaximizeButtonHint), "expected");
    QVERIFY(flags.testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(flags.testFlag(Qt::WindowCloseButtonHint));
}

void tst_WindowButtons::theHomeWindowCannotBeMaximized()
{
    TestServices services;
    services.defaults.setObject(QStringLiteral("Do Nothing"), QStringLiteral("launchBehavior"));
    WufferController controller;
    controller.awakeFromNib();
    QTRY_VERIFY(QApplication::activeWindow());
    const Qt::WindowFlags flags = QApplication::activeWindow()->windowFlags();
    QVERIFY(!flags.testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(flags.testFlag(Qt::WindowMinimizeButtonHint));
}

WUFFER_TEST(tst_WindowButtons)
#include "tst_WindowButtons.moc"
