#pragma once

#include "tools/HelpPages.h"

#include <QTextBrowser>

/// Shows one page of the help at a time and remembers which were shown before. It follows the links
/// between them and no others: it opens nothing that is not a page.
class HelpBrowser final : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /// The pages there are. None is shown yet.
    void setPages(std::vector<HelpPage> pages);

    [[nodiscard]] const std::vector<HelpPage> &pages() const { return _pages; }

    /// Shows the page of this name, or the first if there is none.
    void showPage(const QString &name);

    /// The place of the page that is shown; -1 while none is.
    [[nodiscard]] int currentPage() const { return _currentPage; }

    /// Serves the pages, and nothing else.
    [[nodiscard]] QVariant loadResource(int type, const QUrl &name) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    /// The place of the page with this address; -1 if it is none of the help.
    [[nodiscard]] int indexOf(const QUrl &address) const;
    void follow(const QUrl &link);
    void colorAnew();

    std::vector<HelpPage> _pages;
    int _currentPage = -1;
};
