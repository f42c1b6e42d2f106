#include "rules/NameText.h"
#include "support/TestMain.h"

#include <QWindow>

/// Names that users have typed, as timers and window titles show them.
class tst_NameText final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNameIsShownInOneLine_data();
    void aNameIsShownInOneLine();
    void aWindowShowsItsTitleAsItIs_data();
    void aWindowShowsItsTitleAsItIs();
};

void tst_NameText::aNameIsShownInOneLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QStringLiteral("Fish & Chips") << QStringLiteral("Fish & Chips");
    QTest::newRow("blanks") << QStringLiteral(" 1h  5m ") << QStringLiteral(" 1h  5m ");
    QTest::newRow("zero") << QStringLiteral("Tea") + QChar(0) + QStringLiteral("Milk")
                          << QStringLiteral("Tea Milk");
    QTest::newRow("a line that is told from a paragraph")
        << QStringLiteral("Tea\u2028Milk\u2029") << QStringLiteral("Tea Milk");
    QTest::newRow("lines and tabs")
        << QStringLiteral("Tea\r\n\tMilk\v") << QStringLiteral("Tea Milk");
    QTest::newRow("long") << QString(10'000, QLatin1Char('x'))
                          << QString(40, QLatin1Char('x')) + QStringLiteral("…") +
                                 QString(40, QLatin1Char('x'));
}

void tst_NameText::aNameIsShownInOneLine()
{
    QFETCH(const QString, name);
    QTEST(NameText::inOneLine(name), "shown");
}

void tst_NameText::aWindowShowsItsTitleAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const QString bell = QStringLiteral("🔔");
    QTest::newRow("plain") << QStringLiteral("  Tea  for two") << QStringLiteral("  Tea  for two");
    QTest::newRow("markup") << QStringLiteral("<b>%1 &amp;") << QStringLiteral("<b>%1 &amp;");
    QTest::newRow("the mark for changes")
        << QStringLiteral("Tea [*] and [*][*] milk") << QStringLiteral("Tea [*] and [*][*] milk");
    QTest::newRow("lines and tabs")
        << QStringLiteral("Tea\r\n\tMilk") << QStringLiteral("Tea   Milk");
    QTest::newRow("zero") << QStringLiteral("Tea") + QChar(0) + QStringLiteral("Milk")
                          << QStringLiteral("Tea Milk");
    QTest::newRow("long") << QString(499, QLatin1Char('x')) + bell
                          << QString(499, QLatin1Char('x'));
    QTest::newRow("megabytes") << QString(20'000'000, QLatin1Char('x'))
                               << QString(500, QLatin1Char('x'));
}

void tst_NameText::aWindowShowsItsTitleAsItIs()
{
    QFETCH(const QString, name);
    QWidget window;
    window.setWindowTitle(NameText::asWindowTitle(name));
    window.show();
    QTEST(window.windowHandle()->title(), "shown");
}

WUFFER_TEST(tst_NameText)
#include "tst_NameText.moc"
