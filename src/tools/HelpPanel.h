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

/// The help as a reader sees it: the list of its pages, the page that is shown, and a field to
/// search them all. While a search lasts, the list holds only the pages with a hit.
class HelpPanel final : public QWidget
{
    Q_OBJECT

public:
    /// The keys of the menus are those that one of the pages lists.
    explicit HelpPanel(const std::vector<MenuKeys> &menuKeys, QWidget *parent = nullptr);
    ~HelpPanel() override;

    /// Wide enough for lines that read well.
    [[nodiscard]] QSize sizeHint() const override;

    /// Ends the search and shows the page of this name, or the first if there is none, ready to be
    /// read.
    void showPage(const QString &name);

protected:
    /// Escape ends the search; without one, it is left to the window.
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// A hit on a page.
    struct Hit
    {
        int page;
        HelpHit place;
    };

    void makeRoomForTheList();
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
    /// The place in the hits of the first at or after this position of the page that is shown; the
    /// number of hits if there is none.
    [[nodiscard]] std::size_t firstHitFrom(int position) const;
    void markHits();
    void showCount();
    /// The place in the hits of the one that is selected on the page.
    [[nodiscard]] std::optional<std::size_t> selectedHit() const;
    [[nodiscard]] bool isSearching() const;
    /// What can be read on a page, found out when it is first searched.
    [[nodiscard]] const QStringList &texts();

    std::unique_ptr<Ui::Help> _ui;
    QStringList _texts;
    /// All hits in the order of the pages.
    std::vector<Hit> _hits;
};
