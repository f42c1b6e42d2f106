#include "app/MainMenu.h"

#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "timer/Wuffer.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

#include <variant>

namespace
{
/// What an item does to the active window.
using WindowOperation = void (*)(QWidget &window);

void closeWindow(QWidget &window)
{
    window.close();
}

void minimizeWindow(QWidget &window)
{
    window.showMinimized();
}
} // namespace

/// One line of the menus, as written down.
struct MainMenu::Row
{
    const char *menu;
    /// Null for a separator.
    const char *text = nullptr;
    QKeySequence shortcut = {};
    std::variant<std::monostate, WufferController::Operation, Wuffer::Operation, WindowOperation>
        operation = {};
};

/// One line of the menus, as made.
struct MainMenu::Item
{
    QAction *action;
    const Row *row;
};

const std::vector<MainMenu::Row> &MainMenu::rows()
{
    using namespace Qt::Literals::StringLiterals;
    using C = WufferController;
    using W = Wuffer;
    // On macOS the platform moves Preferences and Quit to where they belong there.
    static const std::vector<Row> rows{
        {QT_TR_NOOP("&File"), QT_TR_NOOP("&New Wuffer"), QKeySequence::New, &C::newWuffer},
        {QT_TR_NOOP("&File"), QT_TR_NOOP("Start &All"), QKeySequence(u"Ctrl+Shift+S"_s), &C::startAllWuffers},
        {"&File"},
        {QT_TR_NOOP("&File"), QT_TR_NOOP("&Preferences…"), QKeySequence(u"Ctrl+,"_s), &C::showPreferences},
        {"&File"},
        {QT_TR_NOOP("&File"), QT_TR_NOOP("&Close"), QKeySequence::Close, closeWindow},
        {QT_TR_NOOP("&File"), QT_TR_NOOP("&Quit"), QKeySequence::Quit, &C::quit},
        {QT_TR_NOOP("&Timer"), QT_TR_NOOP("Stopwatch"), QKeySequence(u"Ctrl+T"_s), &W::stopwatch},
        {QT_TR_NOOP("&Timer"), QT_TR_NOOP("Count Down to a &Date…"), QKeySequence(u"Ctrl+D"_s), &W::targetTime},
        {QT_TR_NOOP("&Timer"), QT_TR_NOOP("&Reset"), QKeySequence(u"Ctrl+R"_s), &W::resetWuffer},
        {"&Timer"},
        {QT_TR_NOOP("&Timer"), QT_TR_NOOP("&Keep Wuffing"), QKeySequence(u"Ctrl+K"_s), &W::toggleKeepWuffing},
        {QT_TR_NOOP("&Timer"), QT_TR_NOOP("&Full Screen"), QKeySequence::FullScreen, &W::startStopFullScreen},
        {QT_TR_NOOP("&Timer"), QT_TR_NOOP("More Options"), QKeySequence(u"Ctrl+O"_s), &W::showHideAdvanced},
        {QT_TR_NOOP("&Window"), QT_TR_NOOP("&Minimize"), QKeySequence(u"Ctrl+M"_s), minimizeWindow},
        {"&Window"},
        {QT_TR_NOOP("&Window"), QT_TR_NOOP("&Converter"), QKeySequence(u"Ctrl+U"_s), &C::showConverter},
        {QT_TR_NOOP("&Window"), QT_TR_NOOP("M&easurements"), QKeySequence(u"Ctrl+Shift+U"_s), &C::showMeasurements},
        {QT_TR_NOOP("&Help"), QT_TR_NOOP("Wuffer on the &Web"), {}, &C::donate},
    };
    return rows;
}

MainMenu::MainMenu(WufferController &controller) : _controller(controller)
{
    for (const Row &row : rows())
        addItem(row);

    connect(qApp, &QApplication::focusWindowChanged, this, &MainMenu::validate);
    connect(&WufferApplication::instance(), &WufferApplication::wufferOpened, this,
            [this](Wuffer *timer) {
                connect(timer, &Wuffer::stateChanged, this, &MainMenu::validate);
            });
}

MainMenu::~MainMenu() = default;

void MainMenu::addTo(QMainWindow &window)
{
    for (const std::unique_ptr<QMenu> &menu : _menus)
        window.menuBar()->addMenu(menu.get());
}

void MainMenu::validate()
{
    for (const Item &item : _items)
        item.action->setEnabled(isEnabled(item));
}

QMenu &MainMenu::menuNamed(const char *title)
{
    const QString text = tr(title);
    for (const std::unique_ptr<QMenu> &menu : _menus) {
        if (menu->title() == text)
            return *menu;
    }
    QMenu &menu = *_menus.emplace_back(std::make_unique<QMenu>(text));
    connect(&menu, &QMenu::aboutToShow, this, &MainMenu::validate);
    return menu;
}

void MainMenu::addItem(const Row &row)
{
    QMenu &menu = menuNamed(row.menu);
    if (!row.text) {
        menu.addSeparator();
        return;
    }
    QAction *action = menu.addAction(tr(row.text));
    action->setShortcut(row.shortcut);
    connect(action, &QAction::triggered, this, [this, &row] { run(row); });
    _items.push_back({action, &row});
}

void MainMenu::run(const Row &row)
{
    const auto &operation = row.operation;
    if (const auto *ofController = std::get_if<WufferController::Operation>(&operation)) {
        (_controller.**ofController)();
    } else if (const auto *ofTimer = std::get_if<Wuffer::Operation>(&operation)) {
        if (Wuffer *timer = WufferApplication::keyWuffer())
            (timer->**ofTimer)();
    } else if (const auto *ofWindow = std::get_if<WindowOperation>(&operation)) {
        if (QWidget *window = QApplication::activeWindow())
            (*ofWindow)(*window);
    }
}

bool MainMenu::isEnabled(const Item &item) const
{
    const auto &operation = item.row->operation;
    if (const auto *ofController = std::get_if<WufferController::Operation>(&operation))
        return _controller.validateMenuItem(*ofController);
    if (const auto *ofTimer = std::get_if<Wuffer::Operation>(&operation)) {
        const Wuffer *timer = WufferApplication::keyWuffer();
        return timer && timer->validateMenuItem(*item.action, *ofTimer);
    }
    return QApplication::activeWindow() != nullptr;
}
