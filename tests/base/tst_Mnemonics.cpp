#include "base/Mnemonics.h"
#include "support/TestMain.h"

/// The "&" marks of mnemonics in the texts of menus and buttons.
class tst_Mnemonics final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anEscapedTextShowsAsItIs_data();
    void anEscapedTextShowsAsItIs();
    void theMarkIsNotShown_data();
    void theMarkIsNotShown();
};

void tst_Mnemonics::anEscapedTextShowsAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    const auto row = [](const char *name, const char *text, const char *escaped) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(escaped);
    };
    row("plain", "Tea", "Tea");
    row("empty", "", "");
    row("the sign", "Fish & Chips", "Fish && Chips");
    row("two signs", "Fish&&Chips", "Fish&&&&Chips");
    row("at both ends", "&Tea&", "&&Tea&&");
}

void tst_Mnemonics::anEscapedTextShowsAsItIs()
{
    QFETCH(const QString, text);
    QTEST(Mnemonics::escaped(text), "escaped");
    QCOMPARE(Mnemonics::shown(Mnemonics::escaped(text)), text);
}

void tst_Mnemonics::theMarkIsNotShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const char *text, const char *shown) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(shown);
    };
    row("at the beginning", "&File", "File");
    row("in the middle", "When F&inished", "When Finished");
    row("beside the sign", "Fish &&& Chips", "Fish & Chips");
    row("at the end", "File&", "File");
    row("added", "Datei (&F)", "Datei");
    row("added before an ellipsis", "Datei(&F)…", "Datei…");
    row("added before points", "Datei(&F)...", "Datei...");
    row("added before a colon", "Datei(&F):", "Datei:");
    row("parentheses of the text", "File (&Copy)", "File (Copy)");
    row("a name in parentheses", "Chips (&&)", "Chips (&)");
    row("parentheses inside", "A (&B) C", "A (B) C");
}

void tst_Mnemonics::theMarkIsNotShown()
{
    QFETCH(const QString, text);
    QTEST(Mnemonics::shown(text), "shown");
}

WUFFER_TEST(tst_Mnemonics)
#include "tst_Mnemonics.moc"
