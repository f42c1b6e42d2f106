#include "rules/HelpSearch.h"
#include "support/TestMain.h"

/// Finding words in a text.
class tst_HelpSearch final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreFound_data();
    void wordsAreFound();
};

void tst_HelpSearch::wordsAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("words");
    // The matches, each followed by a bar.
    QTest::addColumn<QString>("found");
    const QString text =
        QStringLiteral("Loop this Wuffer: it doesn’t stop\nlooping. A cup\u00a0of tea");
    const auto row = [&](const char *name, const char *words, const char *found) {
        QTest::newRow(name) << text << QString::fromUtf8(words) << QString::fromUtf8(found);
    };
    row("no word", "", "");
    row("blanks only", " \t ", "");
    row("a word and a longer one that begins with it", "loop", "Loop|loop|");
    row("capitals do not matter", "WUFFER", "Wuffer|");
    row("a part of a word", "uff", "uff|");
    row("two words in any order", "stop this", "this|stop|");
    row("one of the words is missing", "loop clock", "");
    row("one word within the other", "looping loop", "Loop|looping|");
    row("the same word twice", "tea tea", "tea|");
    row("words that overlap are one place", "loopi oping", "looping|");
    row("words that touch are two places", "loop ing", "Loop|loop|ing|");
    row("a plain apostrophe", "doesn't", "doesn’t|");
    row("a curly apostrophe", "doesn’t", "doesn’t|");
    row("on both sides of a blank that keeps a line together", "cup of", "cup|of|");
    row("signs that mean something elsewhere", "loop.*", "");
    row("a sign", ".", ".|");
    row("blanks around the word", "  stop  ", "stop|");
    const QString french = QStringLiteral("Un préréglage\u202f: Ở là");
    const auto inFrench = [&](const char *name, const char *words, const char *found) {
        QTest::newRow(name) << french << QString::fromUtf8(words) << QString::fromUtf8(found);
    };
    inFrench("without accents", "prereglage", "préréglage|");
    inFrench("with accents", "PRÉRÉGLAGE", "préréglage|");
    inFrench("with accents that are characters of their own", "pre\u0301", "pré|");
    inFrench("two accents on a letter", "o", "Ở|");
    inFrench("on both sides of a narrow blank", "préréglage :", "préréglage|:|");
    QTest::newRow("syllables that begin alike")
        << QStringLiteral("각") << QStringLiteral("가") << QString();
    QTest::newRow("in an empty text") << QString() << QStringLiteral("a") << QString();
}

void tst_HelpSearch::wordsAreFound()
{
    QFETCH(const QString, text);
    QFETCH(const QString, words);
    QString found;
    for (const HelpHit &hit : helpHits(text, words))
        found += text.mid(hit.position, hit.length) + QLatin1Char('|');
    QTEST(found, "found");
}

WUFFER_TEST(tst_HelpSearch)
#include "tst_HelpSearch.moc"
