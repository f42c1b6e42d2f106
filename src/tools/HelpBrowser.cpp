#include "tools/HelpBrowser.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace
{
const QString &pageStyle()
{
    static const QString sheet = QStringLiteral("h1 { margin-top: 0; margin-bottom: 10px; }"
                                                "h2 { margin-top: 20px; margin-bottom: 6px; }"
                                                "h3 { margin-top: 14px; margin-bottom: 4px; }"
                                                "p { margin-top: 0; margin-bottom: 8px; }"
                                                "li { margin-bottom: 4px; }"
                                                "table { margin-top: 4px; margin-bottom: 10px; }"
                                                "kbd { font-family: monospace; }"
                                                "th { text-align: left; }"
                                                "th, td { padding: 4px 12px 4px 0;"
                                                " border-bottom: 1px solid"
                                                " rgba(128, 128, 128, 40%); }");
    return sheet;
}

QUrl addressOf(const HelpPage &page)
{
    return QUrl(QStringLiteral("qrc:/help/%1.html").arg(page.name));
}
} // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    document()->setDefaultStyleSheet(pageStyle());
    document()->setDocumentMargin(16);
    // Connected first, so that every other slot sees the new page; source() changes only later.
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl &address) { _currentPage = indexOf(address); });
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
}

void HelpBrowser::setPages(std::vector<HelpPage> pages)
{
    _pages = std::move(pages);
}

void HelpBrowser::showPage(const QString &name)
{
    if (_pages.empty())
        return;
    const auto page = std::ranges::find(_pages, name, &HelpPage::name);
    setSource(addressOf(page == _pages.end() ? _pages.front() : *page));
}

QVariant HelpBrowser::loadResource(int /*type*/, const QUrl &name)
{
    const int page = indexOf(name);
    return page < 0 ? QVariant() : _pages.at(static_cast<std::size_t>(page)).html;
}

void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        reloadForPalette();
}

int HelpBrowser::indexOf(const QUrl &address) const
{
    const auto page = std::ranges::find(_pages, address.adjusted(QUrl::RemoveFragment), addressOf);
    return page == _pages.end() ? -1 : static_cast<int>(page - _pages.begin());
}

void HelpBrowser::follow(const QUrl &link)
{
    const QUrl address = source().resolved(link);
    if (indexOf(address) >= 0)
        setSource(address);
}

void HelpBrowser::reloadForPalette()
{
    if (_currentPage < 0)
        return;
    // Links get their colour when the page is loaded.
    const int scrolled = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(scrolled);
}
