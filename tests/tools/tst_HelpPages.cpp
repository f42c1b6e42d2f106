#include "support/FakeTranslator.h"
#include "support/TestMain.h"
#include "tools/HelpPages.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

namespace
{
const QString kPages = QStringLiteral(":/help");

/// All matches of the expression's group in the text.
QStringList matches(const QString &expression, const QString &text)
{
    QStringList found;
    QRegularExpressionMatchIterator each = QRegularExpression(expression).globalMatch(text);
    while (each.hasNext())
        found << each.next().captured(1);
    return found;
}

QStringList linksOf(const HelpPage &page)
{
    return matches(QStringLiteral("href=\"([^\"]*)\""), page.html);
}

/// The pages of a language, by the name of their folder.
std::vector<HelpPage> pagesIn(const QString &folder)
{
    const FakeTranslator language({{QStringLiteral("en"), folder}});
    return helpPages({});
}

/// The tags of a page in their order, without the texts.
QStringList tagsOf(const HelpPage &page)
{
    return matches(QStringLiteral("(<[^>]*>)"), page.html);
}
} // namespace

/// The help pages without a browser.
class tst_HelpPages final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsAPage_data() { languages(); }
    void everyFileIsAPage();
    void everyPageHasOneTitleAndOneName_data() { languages(); }
    void everyPageHasOneTitleAndOneName();
    void everyLinkLeadsToAPlace_data() { languages(); }
    void everyLinkLeadsToAPlace();
    void theFirstPageLinksToEveryOther();
    void thePagesOfALanguageAreBuiltLikeTheEnglishOnes_data() { languages(); }
    void thePagesOfALanguageAreBuiltLikeTheEnglishOnes();
    void languagesWithoutPagesGetTheEnglishOnesWithANote();
    void theKeysOfTheMenusAreListed();

private:
    /// A row for each language that has pages.
    static void languages()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("en") << QStringLiteral("en");
        for (const QString &folder : QDir(kPages).entryList(QDir::Dirs))
            QTest::newRow(qPrintable(folder)) << folder;
    }
};

void tst_HelpPages::everyFileIsAPage()
{
    QFETCH(const QString, folder);
    const QString place = folder == QStringLiteral("en") ? kPages : kPages + u'/' + folder;
    QStringList files = QDir(place).entryList(QDir::Files);
    QStringList pages;
    for (const HelpPage &page : pagesIn(folder))
        pages << page.name + QStringLiteral(".html");
    QCOMPARE(pages.first(), QStringLiteral("index.html"));
    QVERIFY(pages.contains(QStringLiteral("finish-actions.html")));
    std::ranges::sort(files);
    std::ranges::sort(pages);
    QCOMPARE(pages, files);
}

void tst_HelpPages::everyPageHasOneTitleAndOneName()
{
    QFETCH(const QString, folder);
    QSet<QString> titles;
    for (const HelpPage &page : pagesIn(folder)) {
        QVERIFY2(!page.title.isEmpty() && !titles.contains(page.title), qPrintable(page.name));
        QCOMPARE(matches(QStringLiteral("<(h1)>"), page.html).size(), qsizetype(1));
        QVERIFY2(!page.html.contains(QStringLiteral("<!--")), qPrintable(page.name));
        titles << page.title;
    }
}

void tst_HelpPages::everyLinkLeadsToAPlace()
{
    QFETCH(const QString, folder);
    const std::vector<HelpPage> pages = pagesIn(folder);
    int links = 0;
    for (const HelpPage &page : pages) {
        for (const QString &link : linksOf(page)) {
            const QString file = link.section(QLatin1Char('#'), 0, 0);
            const QString place = link.section(QLatin1Char('#'), 1);
            QVERIFY2(file.endsWith(QStringLiteral(".html")), qPrintable(link));
            const auto target = std::ranges::find(pages, file.chopped(5), &HelpPage::name);
            QVERIFY2(target != pages.end(), qPrintable(page.name + QStringLiteral(": ") + link));
            QVERIFY2(target->name != page.name, qPrintable(link));
            const QString anchor = QStringLiteral("<a name=\"%1\">").arg(place);
            QVERIFY2(place.isEmpty() || target->html.contains(anchor), qPrintable(link));
            ++links;
        }
    }
    QVERIFY(links > 20);
}

void tst_HelpPages::thePagesOfALanguageAreBuiltLikeTheEnglishOnes()
{
    QFETCH(const QString, folder);
    const std::vector<HelpPage> english = helpPages({});
    const std::vector<HelpPage> pages = pagesIn(folder);
    QCOMPARE(pages.size(), english.size());
    for (std::size_t place = 0; place < pages.size(); ++place) {
        QCOMPARE(pages.at(place).name, english.at(place).name);
        QCOMPARE(tagsOf(pages.at(place)), tagsOf(english.at(place)));
        QCOMPARE(pages.at(place).html == english.at(place).html, folder == QStringLiteral("en"));
    }
}

void tst_HelpPages::languagesWithoutPagesGetTheEnglishOnesWithANote()
{
    const FakeTranslator language({{QStringLiteral("This help is available in English only."),
                                    QStringLiteral("Aiuto <solo> in inglese.")}});
    const std::vector<HelpPage> english = pagesIn(QStringLiteral("fr"));
    for (const HelpPage &page : helpPages({})) {
        QVERIFY2(page.html.startsWith(QStringLiteral("<p><i>Aiuto &lt;solo&gt; in inglese.</i></p>"
                                                     "<h1>")),
                 qPrintable(page.html.first(60)));
    }
    QVERIFY(helpPages({}).front().title == QStringLiteral("Welcome to Wuffer"));
    QVERIFY(english.front().html.startsWith(QStringLiteral("<h1>")));
}

void tst_HelpPages::theFirstPageLinksToEveryOther()
{
    const std::vector<HelpPage> pages = helpPages({});
    const QStringList links = linksOf(pages.front());
    for (const HelpPage &page : pages) {
        const bool linked = links.contains(page.name + QStringLiteral(".html"));
        QVERIFY2(linked != (page.name == pages.front().name), qPrintable(page.name));
    }
}

void tst_HelpPages::theKeysOfTheMenusAreListed()
{
    const std::vector<HelpPage> pages = helpPages(
        {{QStringLiteral("A & B"), QStringLiteral("Less < More"), {QKeySequence(Qt::Key_F7)}},
         {QStringLiteral("A & B"), QStringLiteral("Two"), {Qt::CTRL | Qt::Key_Less, Qt::Key_F8}},
         {QStringLiteral("C"), QStringLiteral("Three"), {QKeySequence(Qt::Key_F9)}}});
    const QString html = pages.back().html;
    QCOMPARE(pages.back().name, QStringLiteral("keyboard"));
    QVERIFY(
        html.contains(QStringLiteral("<h2>A &amp; B menu</h2><table width=\"100%\" "
                                     "cellspacing=\"0\"><tr><td width=\"55%\">Less &lt; More</td>"
                                     "<td><kbd>F7</kbd></td></tr>"
                                     "<tr><td width=\"55%\">Two</td><td><kbd>Ctrl+&lt;</kbd>, "
                                     "<kbd>F8</kbd></td></tr></table><h2>C menu</h2>")));
    QCOMPARE(html.count(QStringLiteral("<table")), html.count(QStringLiteral("</table>")));
}

WUFFER_TEST(tst_HelpPages)
#include "tst_HelpPages.moc"
