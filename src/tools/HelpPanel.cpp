#include "tools/HelpPanel.h"

#include "ui_Help.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

/// Opacity, of 255, of the selection colour behind a hit that is not selected.
static constexpr int kMarkAlpha = 90;

HelpPanel::HelpPanel(const std::vector<MenuKeys> &menuKeys, QWidget *parent) :
    QWidget(parent), _ui(std::make_unique<Ui::Help>())
{
    _ui->setupUi(this);
    _ui->_splitter->setStretchFactor(1, 1);
    _ui->_browser->setPages(helpPages(menuKeys));
    listPages();
    setMinimumListWidth();
    connectControls();
    addShortcuts();
}

HelpPanel::~HelpPanel() = default;

QSize HelpPanel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * 135, metrics.lineSpacing() * 46};
}

void HelpPanel::setMinimumListWidth()
{
    QListWidget &list = *_ui->_pageList;
    // During a search the number of hits follows the title.
    const int count = fontMetrics().horizontalAdvance(QStringLiteral(" (999)"));
    list.setMinimumWidth(list.sizeHintForColumn(0) + count + 2 * list.frameWidth());
}

void HelpPanel::connectControls()
{
    HelpBrowser *browser = _ui->_browser;
    connect(_ui->_searchField, &QLineEdit::textChanged, this, &HelpPanel::search);
    connect(_ui->_searchField, &QLineEdit::returnPressed, this, &HelpPanel::goToNextHit);
    connect(_ui->_pageList, &QListWidget::currentRowChanged, this, &HelpPanel::openListed);
    connect(browser, &QTextBrowser::sourceChanged, this, &HelpPanel::pageChanged);
    connect(browser, &QTextBrowser::backwardAvailable, _ui->_backButton, &QWidget::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, _ui->_forwardButton, &QWidget::setEnabled);
    connect(_ui->_backButton, &QToolButton::clicked, browser, &QTextBrowser::backward);
    connect(_ui->_forwardButton, &QToolButton::clicked, browser, &QTextBrowser::forward);
}

void HelpPanel::addShortcuts()
{
    HelpBrowser *browser = _ui->_browser;
    new QShortcut(QKeySequence::Find, this, this, &HelpPanel::beginSearch);
    new QShortcut(QKeySequence::FindNext, this, this, &HelpPanel::goToNextHit);
    new QShortcut(QKeySequence::FindPrevious, this, this, &HelpPanel::goToPreviousHit);
    new QShortcut(QKeySequence::Back, this, browser, &QTextBrowser::backward);
    new QShortcut(QKeySequence::Forward, this, browser, &QTextBrowser::forward);
}

void HelpPanel::showPage(const QString &name)
{
    _ui->_searchField->clear();
    _ui->_browser->showPage(name);
    _ui->_browser->setFocus();
}

void HelpPanel::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Cancel) || _ui->_searchField->text().isEmpty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    _ui->_searchField->clear();
}

bool HelpPanel::isSearching() const
{
    return !_ui->_searchField->text().trimmed().isEmpty();
}

void HelpPanel::beginSearch()
{
    _ui->_searchField->setFocus(Qt::ShortcutFocusReason);
    _ui->_searchField->selectAll();
}

void HelpPanel::search()
{
    findHits();
    listPages();
    markHits();
    showCount();
}

void HelpPanel::findHits()
{
    _hits.clear();
    if (!isSearching())
        return;
    for (int page = 0; page < texts().size(); ++page) {
        for (const HelpHit &place : helpHits(texts().at(page), _ui->_searchField->text()))
            _hits.push_back({page, place});
    }
}

const QStringList &HelpPanel::texts()
{
    if (_texts.isEmpty()) {
        QTextDocument document;
        for (const HelpPage &page : _ui->_browser->pages()) {
            document.setHtml(page.html);
            _texts << document.toPlainText();
        }
    }
    return _texts;
}

void HelpPanel::listPages()
{
    const QSignalBlocker onlyListed(_ui->_pageList);
    _ui->_pageList->clear();
    const auto pages = static_cast<int>(_ui->_browser->pages().size());
    for (int page = 0; page < pages; ++page)
        addToList(page, static_cast<int>(std::ranges::count(_hits, page, &Hit::page)));
    selectInList();
}

void HelpPanel::addToList(int page, int hits)
{
    if (isSearching() && hits == 0)
        return;
    const QString &title = _ui->_browser->pages().at(static_cast<std::size_t>(page)).title;
    //: The title of a page of the help, and how often it has the searched words.
    const QString text = isSearching() ? tr("%1 (%2)").arg(title, locale().toString(hits)) : title;
    auto *item = new QListWidgetItem(text, _ui->_pageList);
    item->setData(Qt::UserRole, page);
}

void HelpPanel::openListed(int row)
{
    const QListWidgetItem *item = _ui->_pageList->item(row);
    if (!item)
        return;
    const int page = item->data(Qt::UserRole).toInt();
    _ui->_browser->showPage(_ui->_browser->pages().at(static_cast<std::size_t>(page)).name);
}

void HelpPanel::pageChanged()
{
    const QSignalBlocker alreadyShown(_ui->_pageList);
    selectInList();
    const int page = _ui->_browser->currentPage();
    if (page >= 0)
        _ui->_browser->setAccessibleName(
            _ui->_browser->pages().at(static_cast<std::size_t>(page)).title);
    markHits();
    showCount();
}

void HelpPanel::selectInList()
{
    QListWidget &list = *_ui->_pageList;
    list.setCurrentItem(nullptr);
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->data(Qt::UserRole).toInt() == _ui->_browser->currentPage())
            list.setCurrentRow(row);
    }
}

void HelpPanel::goToNextHit()
{
    if (!isSearching())
        beginSearch();
    if (!_hits.empty())
        goTo(firstHitFrom(_ui->_browser->textCursor().selectionEnd()) % _hits.size());
}

void HelpPanel::goToPreviousHit()
{
    if (!isSearching())
        beginSearch();
    if (_hits.empty())
        return;
    const std::size_t here = firstHitFrom(_ui->_browser->textCursor().selectionStart());
    goTo((here == 0 ? _hits.size() : here) - 1);
}

std::size_t HelpPanel::firstHitFrom(int position) const
{
    const std::pair here(_ui->_browser->currentPage(), position);
    const auto hit = std::ranges::find_if(
        _hits, [&](const Hit &each) { return std::pair(each.page, each.place.position) >= here; });
    return static_cast<std::size_t>(hit - _hits.begin());
}

void HelpPanel::goTo(std::size_t hit)
{
    const auto [page, place] = _hits.at(hit);
    if (page != _ui->_browser->currentPage())
        _ui->_browser->showPage(_ui->_browser->pages().at(static_cast<std::size_t>(page)).name);
    QTextCursor cursor(_ui->_browser->document());
    cursor.setPosition(place.position);
    cursor.setPosition(place.position + place.length, QTextCursor::KeepAnchor);
    _ui->_browser->setTextCursor(cursor);
    showCount();
}

void HelpPanel::markHits()
{
    QColor mark = palette().color(QPalette::Highlight);
    mark.setAlpha(kMarkAlpha);
    QList<QTextEdit::ExtraSelection> marks;
    for (const auto &[page, place] : _hits) {
        if (page != _ui->_browser->currentPage())
            continue;
        QTextEdit::ExtraSelection hit{QTextCursor(_ui->_browser->document()), {}};
        hit.cursor.setPosition(place.position);
        hit.cursor.setPosition(place.position + place.length, QTextCursor::KeepAnchor);
        hit.format.setBackground(mark);
        marks << hit;
    }
    _ui->_browser->setExtraSelections(marks);
}

void HelpPanel::showCount()
{
    QString text;
    if (const std::optional<std::size_t> selected = selectedHit())
        //: The number of the selected place among all places with the searched words.
        text =
            tr("%1 of %2").arg(locale().toString(*selected + 1), locale().toString(_hits.size()));
    else if (!_hits.empty())
        text = tr("Found: %1").arg(locale().toString(_hits.size()));
    else if (isSearching())
        text = tr("Nothing found");
    _ui->_hitsLabel->setText(text);
}

std::optional<std::size_t> HelpPanel::selectedHit() const
{
    const QTextCursor cursor = _ui->_browser->textCursor();
    const auto selected = std::ranges::find_if(_hits, [&](const Hit &hit) {
        return hit.page == _ui->_browser->currentPage() &&
               hit.place == HelpHit{cursor.selectionStart(),
                                    cursor.selectionEnd() - cursor.selectionStart()};
    });
    if (selected == _hits.end())
        return {};
    return static_cast<std::size_t>(selected - _hits.begin());
}
