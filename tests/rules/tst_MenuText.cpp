#include "rules/MenuText.h"
#include "support/TestMain.h"

/// Texts of users as menu items.
class tst_MenuText final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aMenuShowsTheTextAsItIs_data();
    void aMenuShowsTheTextAsItIs();
};

void tst_MenuText::aMenuShowsTheTextAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QString x40(40, QLatin1Char('x'));
    QTest::newRow("plain") << QStringLiteral("Tea - 0h 5m 0s") << QStringLiteral("Tea - 0h 5m 0s");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("no mnemonic") << QStringLiteral("Fish & Chips")
                                 << QStringLiteral("Fish && Chips");
    QTest::newRow("no shortcut") << QStringLiteral("Tea\tCtrl+Q") << QStringLiteral("Tea Ctrl+Q");
    QTest::newRow("one line") << QStringLiteral("Tea\n\nMilk") << QStringLiteral("Tea Milk");
    QTest::newRow("markup") << QStringLiteral("<b>Tea</b>") << QStringLiteral("<b>Tea</b>");
    QTest::newRow("80 characters") << x40 + x40 << x40 + x40;
    const QString bell = QStringLiteral("🔔");
    QTest::newRow("no half characters") << x40.left(39) + bell + bell + x40.left(39)
                                        << x40.left(39) + QStringLiteral("…") + x40.left(39);
    QTest::newRow("81 characters")
        << x40 + QLatin1Char('-') + x40 << x40 + QStringLiteral("…") + x40;
}

void tst_MenuText::aMenuShowsTheTextAsItIs()
{
    QFETCH(const QString, text);
    QTEST(menuText(text), "shown");
}

WUFFER_TEST(tst_MenuText)
#include "tst_MenuText.moc"
