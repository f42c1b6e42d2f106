#include "controls/DisplayLabel.h"
#include "support/PseudoLanguage.h"
#include "support/ShownTexts.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>

/// Which texts have bypassed translation.
class tst_PseudoLanguage final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreFoundWhereverTheyStand();
    void aTextThatBypassesTranslationIsFound_data();
    void aTextThatBypassesTranslationIsFound();
    void translationsAndDataAreNotFound_data();
    void translationsAndDataAreNotFound();
};

void tst_PseudoLanguage::textsAreFoundWhereverTheyStand()
{
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("window"));
    auto *content = new QWidget(&window);
    content->setAccessibleName(QStringLiteral("name"));
    content->setAccessibleDescription(QStringLiteral("description"));
    content->setToolTip(QStringLiteral("tool tip"));
    new QLabel(QStringLiteral("<b>label</b>"), content);
    new QPushButton(QStringLiteral("button"), content);
    (new DisplayLabel(content))->setText(QStringLiteral("display"));
    (new QLineEdit(content))->setPlaceholderText(QStringLiteral("placeholder"));
    (new QSpinBox(content))->setSuffix(QStringLiteral("suffix"));
    (new QComboBox(content))->addItem(QStringLiteral("entry"));
    (new QListWidget(content))->addItem(QStringLiteral("item"));
    (new QTabWidget(content))->addTab(new QWidget, QStringLiteral("tab"));
    (new QTextEdit(content))->setHtml(QStringLiteral("<table><tr><td>cell</td></tr></table>"));
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("menu"));
    menu->addAction(QStringLiteral("action"));
    ShownTexts texts;
    texts.gather();
    for (const char *text :
         {"window", "name", "description", "tool tip", "label", "button", "display", "placeholder",
          "suffix", "entry", "item", "tab", "cell", "menu", "action"})
        QVERIFY2(texts.places().contains(QString::fromLatin1(text)), text);
}

void tst_PseudoLanguage::aTextThatBypassesTranslationIsFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("Ready");
    QTest::newRow("half translated") << QStringLiteral("⟦Ŕéàðý⟧ now");
    QTest::newRow("glued") << QStringLiteral("⟦Ŕéàðý⟧: ⟦ñöŵ⟧");
    QTest::newRow("glued to data") << QStringLiteral("Wuffer: ⟦ñöŵ⟧");
    QTest::newRow("glued without a sign") << QStringLiteral("⟦Ŕéàðý⟧⟦ñöŵ⟧");
    QTest::newRow("one of two lines") << QStringLiteral("⟦Ŕéàðý⟧\nnow");
    QTest::newRow("glued inside") << QStringLiteral("⟦Ŕéàðý⟧ at ⟦ñöŵ⟧");
    QTest::newRow("rich text") << QStringLiteral("<b>Ready</b>");
    QTest::newRow("elided") << QStringLiteral("Rea…");
}

void tst_PseudoLanguage::aTextThatBypassesTranslationIsFound()
{
    QFETCH(const QString, text);
    ShownTexts texts;
    QLabel label;
    label.setToolTip(text);
    texts.gather();
    QVERIFY(!PseudoLanguage::untranslated(texts).isEmpty());
}

void tst_PseudoLanguage::translationsAndDataAreNotFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("translation") << QStringLiteral("⟦Ŕéàðý···⟧");
    QTest::newRow("with a value") << QStringLiteral("⟦Ŕéàðý Tea 5···⟧");
    QTest::newRow("with a translated value") << QStringLiteral("⟦Ŕéàðý ⟦ñöŵ··⟧ ⟦àñð··⟧···⟧");
    QTest::newRow("in two lines") << QStringLiteral("⟦Ŕéàðý\nñöŵ⟧");
    QTest::newRow("two lines") << QStringLiteral("⟦Ŕéàðý⟧\ncubeb");
    QTest::newRow("rich text") << QStringLiteral("<p>⟦Ŕéàðý⟧</p>");
    QTest::newRow("elided") << QStringLiteral("⟦Ŕéàðý ⟦ñöŵ··⟧ à…");
    QTest::newRow("number") << QStringLiteral("12:30.5");
    QTest::newRow("name") << QStringLiteral("Wuffer");
}

void tst_PseudoLanguage::translationsAndDataAreNotFound()
{
    QFETCH(const QString, text);
    ShownTexts texts;
    texts.add(text, QStringLiteral("here"));
    QCOMPARE(texts.places().size(), 1);
    QCOMPARE(PseudoLanguage::untranslated(texts), QString());
}

WUFFER_TEST(tst_PseudoLanguage)
#include "tst_PseudoLanguage.moc"
