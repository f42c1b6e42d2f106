#include "controls/ToolTip.h"
#include "support/TestMain.h"

#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>

/// Tool tips that show their text literally.
class tst_ToolTip final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsShownWordForWord_data();
    void theTextIsShownWordForWord();
    void onlyALongTextIsBroken();
    void anEmptyTextIsNoToolTip();
};

void tst_ToolTip::theTextIsShownWordForWord_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << QStringLiteral("Starts “Tea”");
    QTest::newRow("markup") << QStringLiteral("<b>Tea</b><img src=\"/etc/passwd\">");
    QTest::newRow("an entity") << QStringLiteral("Fish &amp; Chips");
}

void tst_ToolTip::theTextIsShownWordForWord()
{
    QFETCH(const QString, text);
    QWidget widget;
    ToolTip::set(widget, text);
    QCOMPARE(QTextDocumentFragment::fromHtml(widget.toolTip()).toPlainText(), text);
    QVERIFY(Qt::mightBeRichText(widget.toolTip()));
    QCOMPARE(widget.accessibleDescription(), text);
}

void tst_ToolTip::onlyALongTextIsBroken()
{
    QWidget widget;
    ToolTip::set(widget, QStringLiteral("Started by “Knead the dough”"));
    QVERIFY(!widget.toolTip().contains(QStringLiteral("the dough")));
    QVERIFY(widget.toolTip().contains(QChar(QChar::Nbsp)));
    ToolTip::set(widget, QStringLiteral("word ").repeated(30));
    QVERIFY(!widget.toolTip().contains(QChar(QChar::Nbsp)));
}

void tst_ToolTip::anEmptyTextIsNoToolTip()
{
    QWidget widget;
    ToolTip::set(widget, QStringLiteral("Tea"));
    ToolTip::set(widget, {});
    QCOMPARE(widget.toolTip(), QString());
    QCOMPARE(widget.accessibleDescription(), QString());
}

WUFFER_TEST(tst_ToolTip)
#include "tst_ToolTip.moc"
