#pragma once

#include "rules/HelpSearch.h"
#include "tools/HelpPages.h"

#include <QStringList>
#include <QWidget>

#include <memory>
#include <optional>

namespace Ui
{
class Help;
}

/// The content of the help window: the list of pages, the page that is shown, and a field that
/// searches all pages. During a search the list holds only pages with a hit.
class HelpPanel final : public QWidget
{
    Q_OBJECT

public:
    /// The keys of the menus are listed on one of the pages.
    explicit HelpPanel(const std::vector<MenuKeys> &menuKeys, QWidget *parent = nullptr);
    ~HelpPanel() override;

    /// Wide enough for lines of a readable length.
    [[nodiscard]] QSize sizeHint() const override;

    /// Ends the search, shows the page of this name, or the first if no page has it, and gives it
    /// the focus.
    void showPage(const QString &name);

protected:
    /// Escape ends the search; if there is no search, the window handles the key.
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// A hit on a page.
    struct Hit
    {
        int page;
        HelpHit place;
    };

    void setMinimumListWidth();
    void connectControls();
    void addShortcuts();
    void beginSearch();
    void search();
    void findHits();
    void listPages();
    void addToList(int page, int hits);
    void openListed(int row);
    void pageChanged();
    void selectInList();
    void goToNextHit();
    void goToPreviousHit();
    void goTo(std::size_t hit);
    /// The index in _hits of the first hit at or after this position of the page that is shown; the
    /// number of hits if there is none.
    [[nodiscard]] std::size_t firstHitFrom(int position) const;
    void markHits();
    void showCount();
    /// The index in _hits of the hit that is selected on the page.
    [[nodiscard]] std::optional<std::size_t> selectedHit() const;
    [[nodiscard]] bool isSearching() const;
    /// The plain text of each page; made at the first search.
    [[nodiscard]] const QStringList &texts();

    std::unique_ptr<Ui::Help> _ui;
    QStringList _texts;
    /// All hits in the order of the pages.
    std::vector<Hit> _hits;
};
