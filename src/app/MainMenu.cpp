#include "app/MainMenu.h"

#include "app/LinkMenu.h"
#include "app/PresetsMenu.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "timer/Wuffer.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

#include <algorithm>
#include <variant>

namespace
{
/// What an item does to the active window.
using WindowOperation = void (*)(QWidget &window);

void closeWindow(QWidget &window)
{
    window.close();
}

QList<QKeySequence> key(const char *keys)
{
    return {QKeySequence(QString::fromLatin1(keys))};
}

QList<QKeySequence> key(QKeySequence::StandardKey keys)
{
    return QKeySequence::keyBindings(keys);
}

/// F11 is known everywhere; some desktops have keys of their own instead or beside it.
QList<QKeySequence> fullScreenKeys()
{
    const QKeySequence f11(Qt::Key_F11);
    QList<QKeySequence> keys = key(QKeySequence::FullScreen);
    keys.removeAll(f11);
    keys.prepend(f11);
    return keys;
}

/// The text of a menu or an item without the mark of its mnemonic.
QString plainText(QString text)
{
    return text.remove(QLatin1Char('&'));
}

void minimizeWindow(QWidget &window)
{
    window.showMinimized();
}
} // namespace

/// One line of a menu, as written down.
struct MainMenu::Row
{
    /// Null for a separator.
    const char *text = nullptr;
    QList<QKeySequence> shortcuts = {};
    std::variant<std::monostate, WufferController::Operation, Wuffer::Operation, WindowOperation>
        operation = {};
};

/// One menu, as written down.
struct MainMenu::Menu
{
    const char *title;
    std::vector<Row> rows;
};

/// One line of a menu, as made.
struct MainMenu::Item
{
    QAction *action;
    const Row *row;
};

const std::vector<MainMenu::Menu> &MainMenu::menus()
{
    using C = WufferController;
    using W = Wuffer;
    // The platform's own keys where it has some; Alt and Control with a digit are left free.
    static const std::vector<Menu> menus{
        {QT_TR_NOOP("&File"),
         {{QT_TR_NOOP("&New Wuffer"), key(QKeySequence::New), &C::newWuffer},
          {QT_TR_NOOP("Start &All"), key("Ctrl+Shift+S"), &C::startAllWuffers},
          {QT_TR_NOOP("Mute All"), key("Ctrl+Shift+M"), &C::toggleMute},
          {},
          {QT_TR_NOOP("&Preferences…"), key("Ctrl+,"), &C::showPreferences},
          {},
          {QT_TR_NOOP("&Close"), key(QKeySequence::Close), closeWindow},
          {QT_TR_NOOP("&Quit"), key(QKeySequence::Quit), &C::quit}}},
        {QT_TR_NOOP("&Timer"),
         {{QT_TR_NOOP("Stopwatch"), key("Ctrl+T"), &W::stopwatch},
          {QT_TR_NOOP("Count Down to a &Date…"), key("Ctrl+D"), &W::targetTime},
          {QT_TR_NOOP("&Reset"), key("Ctrl+R"), &W::resetWuffer},
          {},
          {QT_TR_NOOP("&Keep Wuffing"), key("Ctrl+K"), &W::toggleKeepWuffing},
          {QT_TR_NOOP("&Full Screen"), fullScreenKeys(), &W::startStopFullScreen},
          {QT_TR_NOOP("More Options"), key("Ctrl+O"), &W::showHideAdvanced}}},
        {QT_TR_NOOP("&Window"),
         {{QT_TR_NOOP("&Minimize"), key("Ctrl+M"), minimizeWindow},
          {},
          {QT_TR_NOOP("&Converter"), key("Ctrl+Shift+C"), &C::showConverter},
          {QT_TR_NOOP("M&easurements"), key("Ctrl+Shift+E"), &C::showMeasurements}}},
        {QT_TR_NOOP("&Help"),
         {{QT_TR_NOOP("Wuffer &Help"), key(QKeySequence::HelpContents), &C::showHelp},
          {},
          {QT_TR_NOOP("Wuffer on the &Web"), {}, &C::donate}}},
    };
    return menus;
}

MainMenu::MainMenu(WufferController &controller, PresetsMenu &presetsMenu) :
    _controller(controller), _presetsMenu(presetsMenu), _linkMenu(std::make_unique<LinkMenu>())
{
    for (const Menu &menu : menus())
        addMenu(menu);
    // Those that are not written down, because their items come and go.
    constexpr int timerMenu = 1;
    _menuBar.at(timerMenu)->addSeparator();
    _menuBar.at(timerMenu)->addMenu(_linkMenu.get());
    _menuBar.insert(_menuBar.begin() + timerMenu + 1, &_presetsMenu);
    connect(&_presetsMenu, &QMenu::aboutToShow, this, &MainMenu::validate);

    connect(qApp, &QApplication::focusWindowChanged, this, &MainMenu::validate);
    connect(&WufferApplication::instance(), &WufferApplication::wufferOpened, this,
            [this](Wuffer *timer) {
                connect(timer, &Wuffer::stateChanged, this, &MainMenu::validate);
            });
}

MainMenu::~MainMenu() = default;

void MainMenu::addTo(QMainWindow &window)
{
    for (QMenu *menu : _menuBar)
        window.menuBar()->addMenu(menu);
}

QAction &MainMenu::itemFor(WufferController::Operation operation) const
{
    const auto item = std::ranges::find_if(_items, [&](const Item &each) {
        const auto *own = std::get_if<WufferController::Operation>(&each.row->operation);
        return own != nullptr && *own == operation;
    });
    Q_ASSERT(item != _items.end());
    return *item->action;
}

std::vector<MenuKeys> MainMenu::keys()
{
    std::vector<MenuKeys> keys;
    for (const Menu &menu : menus()) {
        for (const Row &row : menu.rows) {
            if (!row.shortcuts.isEmpty())
                keys.push_back({plainText(tr(menu.title)), plainText(tr(row.text)), row.shortcuts});
        }
    }
    return keys;
}

void MainMenu::validate()
{
    for (const Item &item : _items)
        item.action->setEnabled(isEnabled(item));
    _linkMenu->menuAction()->setEnabled(WufferApplication::keyWuffer() != nullptr);
    _presetsMenu.validate();
}

void MainMenu::addMenu(const Menu &menu)
{
    QMenu &made = *_menus.emplace_back(std::make_unique<QMenu>(tr(menu.title)));
    _menuBar.push_back(&made);
    connect(&made, &QMenu::aboutToShow, this, &MainMenu::validate);
    for (const Row &row : menu.rows)
        addItem(made, row);
}

void MainMenu::addItem(QMenu &menu, const Row &row)
{
    if (!row.text) {
        menu.addSeparator();
        return;
    }
    QAction *action = menu.addAction(tr(row.text));
    action->setShortcuts(row.shortcuts);
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
        return timer != nullptr && timer->validateMenuItem(*item.action, *ofTimer);
    }
    return QApplication::activeWindow() != nullptr;
}
