#include "support/TestMain.h"
#include "tools/HelpBrowser.h"

#include <QDesktopServices>
#include <QScrollBar>

/// Pages with links to one another and to addresses outside the help.
class tst_HelpBrowser final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstPageStandsForAnUnknownOne();
    void theKeyboardFollowsALink();
    void aLinkLeadsToAPlaceOfItsPage();
    void aLinkToElsewhereOpensNothing_data();
    void aLinkToElsewhereOpensNothing();
    void aPageLoadsNothingFromOutsideTheHelp();
    void withoutPagesNothingIsShown();
    void newColorsKeepThePlace();

    // Not a test: records the addresses that the desktop is asked to open.
    void open(const QUrl &address) { _opened << address; }

private:
    static HelpPage page(const char *name, const QString &html)
    {
        return {QString::fromLatin1(name), QString::fromLatin1(name), html};
    }
    /// Shows a page with this link only, and follows it with the keyboard.
    static void followLink(HelpBrowser &browser, const QString &link)
    {
        const QString html = QStringLiteral("<p>One</p><a href=\"%1\">link</a>");
        const QString high =
            QStringLiteral("<p>Two</p>") + QStringLiteral("<p>line</p>").repeated(99);
        browser.setPages({page("one", html.arg(link)),
                          page("two", high + QStringLiteral("<a name=\"end\"></a><p>End</p>"))});
        browser.showPage(QStringLiteral("one"));
        browser.resize(300, 200);
        browser.show();
        QVERIFY(QTest::qWaitForWindowActive(&browser));
        browser.setFocus();
        QTest::keyClick(&browser, Qt::Key_Tab);
        QTest::keyClick(&browser, Qt::Key_Return);
    }

    QList<QUrl> _opened;
};

void tst_HelpBrowser::theFirstPageStandsForAnUnknownOne()
{
    HelpBrowser browser;
    browser.setPages({page("one", QStringLiteral("One")), page("two", QStringLiteral("Two"))});
    QCOMPARE(browser.currentPage(), -1);
    browser.showPage(QStringLiteral("two"));
    QCOMPARE(browser.toPlainText(), QStringLiteral("Two"));
    browser.showPage(QStringLiteral("three"));
    QCOMPARE(browser.toPlainText(), QStringLiteral("One"));
    QCOMPARE(browser.currentPage(), 0);
}

void tst_HelpBrowser::theKeyboardFollowsALink()
{
    HelpBrowser browser;
    followLink(browser, QStringLiteral("two.html"));
    QCOMPARE(browser.currentPage(), 1);
    QVERIFY(browser.toPlainText().startsWith(QStringLiteral("Two")));
    browser.backward();
    QCOMPARE(browser.currentPage(), 0);
    browser.forward();
    QCOMPARE(browser.currentPage(), 1);
}

void tst_HelpBrowser::aLinkLeadsToAPlaceOfItsPage()
{
    HelpBrowser browser;
    followLink(browser, QStringLiteral("two.html#end"));
    QCOMPARE(browser.currentPage(), 1);
    QVERIFY(browser.verticalScrollBar()->value() > 0);
}

void tst_HelpBrowser::aLinkToElsewhereOpensNothing_data()
{
    QTest::addColumn<QString>("link");
    for (const char *link : {"https://example.org/", "file:///etc/hostname", "three.html",
                             "qrc:/images/chain.png", "mailto:somebody@example.org", "../two.html"})
        QTest::newRow(link) << QString::fromLatin1(link);
}

void tst_HelpBrowser::aLinkToElsewhereOpensNothing()
{
    QFETCH(const QString, link);
    _opened.clear();
    const QString scheme = QUrl(link).scheme();
    QDesktopServices::setUrlHandler(scheme, this, "open");
    HelpBrowser browser;
    followLink(browser, link);
    QDesktopServices::unsetUrlHandler(scheme);
    QVERIFY(_opened.isEmpty());
    QCOMPARE(browser.currentPage(), 0);
    QVERIFY(browser.toPlainText().startsWith(QStringLiteral("One")));
}

void tst_HelpBrowser::aPageLoadsNothingFromOutsideTheHelp()
{
    HelpBrowser browser;
    for (const char *address : {"file:///etc/hostname", "qrc:/images/chain.png", "/etc/hostname"}) {
        const QUrl url(QString::fromLatin1(address));
        QVERIFY(!browser.loadResource(QTextDocument::ImageResource, url).isValid());
    }
}

void tst_HelpBrowser::withoutPagesNothingIsShown()
{
    HelpBrowser browser;
    browser.showPage(QStringLiteral("one"));
    QCOMPARE(browser.currentPage(), -1);
    QCOMPARE(browser.toPlainText(), QString());
}

void tst_HelpBrowser::newColorsKeepThePlace()
{
    HelpBrowser browser;
    followLink(browser, QStringLiteral("two.html"));
    browser.verticalScrollBar()->setValue(70);
    QPalette dark = browser.palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    browser.setPalette(dark);
    QCOMPARE(browser.currentPage(), 1);
    QCOMPARE(browser.verticalScrollBar()->value(), 70);
    QVERIFY(!browser.isForwardAvailable());
    browser.backward();
    QCOMPARE(browser.currentPage(), 0);
}

WUFFER_TEST(tst_HelpBrowser)
#include "tst_HelpBrowser.moc"
