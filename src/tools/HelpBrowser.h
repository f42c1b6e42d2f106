#pragma once

#include "tools/HelpPages.h"

#include <QTextBrowser>

/// Shows one page of the help at a time and keeps a history of them. It follows links between the
/// pages and ignores all others.
class HelpBrowser final : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /// Sets the pages without showing one.
    void setPages(std::vector<HelpPage> pages);

    [[nodiscard]] const std::vector<HelpPage> &pages() const { return _pages; }

    /// Shows the page of this name, or the first page if no page has it.
    void showPage(const QString &name);

    /// The index of the page that is shown; -1 before the first.
    [[nodiscard]] int currentPage() const { return _currentPage; }

    /// The HTML of a page; invalid for any other address.
    [[nodiscard]] QVariant loadResource(int type, const QUrl &name) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    /// The index of the page with this address; -1 if there is none.
    [[nodiscard]] int indexOf(const QUrl &address) const;
    void follow(const QUrl &link);
    void reloadForPalette();

    std::vector<HelpPage> _pages;
    int _currentPage = -1;
};
