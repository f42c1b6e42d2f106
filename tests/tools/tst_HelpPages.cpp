#include "support/TestMain.h"
#include "tools/HelpPages.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

/// The help pages without a browser.
class tst_HelpPages final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsAPage();
    void everyPageHasOneTitleAndOneName();
    void everyLinkLeadsToAPlace();
    void theFirstPageLinksToEveryOther();
    void theKeysOfTheMenusAreListed();

private:
    /// All matches of the expression's group in the text.
    static QStringList matches(const QString &expression, const QString &text)
    {
        QStringList found;
        QRegularExpressionMatchIterator each = QRegularExpression(expression).globalMatch(text);
        while (each.hasNext())
            found << each.next().captured(1);
        return found;
    }
    static QStringList linksOf(const HelpPage &page)
    {
        return matches(QStringLiteral("href=\"([^\"]*)\""), page.html);
    }
    static const HelpPage *pageNamed(const QString &name)
    {
        static const std::vector<HelpPage> pages = helpPages({});
        const auto page = std::ranges::find(pages, name, &HelpPage::name);
        return page == pages.end() ? nullptr : &*page;
    }
};

void tst_HelpPages::everyFileIsAPage()
{
    QStringList files = QDir(QStringLiteral(":/help")).entryList();
    QStringList pages;
    for (const HelpPage &page : helpPages({}))
        pages << page.name + QStringLiteral(".html");
    QCOMPARE(pages.first(), QStringLiteral("index.html"));
    QVERIFY(pages.contains(QStringLiteral("finish-actions.html")));
    std::ranges::sort(files);
    std::ranges::sort(pages);
    QCOMPARE(pages, files);
}

void tst_HelpPages::everyPageHasOneTitleAndOneName()
{
    QSet<QString> titles;
    for (const HelpPage &page : helpPages({})) {
        QVERIFY2(!page.title.isEmpty() && !titles.contains(page.title), qPrintable(page.name));
        QCOMPARE(matches(QStringLiteral("<(h1)>"), page.html).size(), qsizetype(1));
        QVERIFY2(!page.html.contains(QStringLiteral("<!--")), qPrintable(page.name));
        titles << page.title;
    }
}

void tst_HelpPages::everyLinkLeadsToAPlace()
{
    int links = 0;
    for (const HelpPage &page : helpPages({})) {
        for (const QString &link : linksOf(page)) {
            const QString file = link.section(QLatin1Char('#'), 0, 0);
            const QString place = link.section(QLatin1Char('#'), 1);
            QVERIFY2(file.endsWith(QStringLiteral(".html")), qPrintable(link));
            const HelpPage *target = pageNamed(file.chopped(5));
            QVERIFY2(target, qPrintable(page.name + QStringLiteral(": ") + link));
            QVERIFY2(target->name != page.name, qPrintable(link));
            const QString anchor = QStringLiteral("<a name=\"%1\">").arg(place);
            QVERIFY2(place.isEmpty() || target->html.contains(anchor), qPrintable(link));
            ++links;
        }
    }
    QVERIFY(links > 20);
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
