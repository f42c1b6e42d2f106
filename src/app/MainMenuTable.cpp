#include "app/MainMenuTable.h"

#include "rules/TimerTexts.h"

#include <QAbstractButton>
#include <QAction>

namespace
{
QList<QKeySequence> key(const char *keys)
{
    return {QKeySequence(QString::fromLatin1(keys))};
}

QList<QKeySequence> key(QKeySequence::StandardKey keys)
{
    return QKeySequence::keyBindings(keys);
}

/// A key that users know from everywhere, followed by the desktop's own keys, if it has any.
QList<QKeySequence> key(const char *known, QKeySequence::StandardKey standard)
{
    const QKeySequence first(QString::fromLatin1(known));
    QList<QKeySequence> keys = key(standard);
    keys.removeAll(first);
    keys.prepend(first);
    return keys;
}

void pressButton(Wuffer &timer)
{
    timer.goButton().click();
}

bool showButton(const Wuffer *timer, QAction &item)
{
    item.setText(timer ? timer->goButton().text() : TimerTexts::start());
    return timer != nullptr && timer->goButton().isEnabled();
}

void renameTimer(Wuffer &timer)
{
    timer.rename();
}

bool hasTimer(const Wuffer *timer, QAction & /*item*/)
{
    return timer != nullptr;
}

void closeWindow(QWidget &window)
{
    window.close();
}

void minimizeWindow(QWidget &window)
{
    window.showMinimized();
}
} // namespace

const std::vector<MainMenu::Menu> &MainMenu::menus()
{
    using C = WufferController;
    using W = Wuffer;
    // Alt and Control with a digit are the keys of the presets. Items without a mnemonic share
    // their text with a control elsewhere in the program.
    static const std::vector<Menu> menus{
        {QT_TR_NOOP("&File"),
         {{QT_TR_NOOP("&New Timer"), key(QKeySequence::New), &C::newWuffer},
          {QT_TR_NOOP("Start &All"), key("Ctrl+Shift+S"), &C::startAllWuffers},
          {QT_TR_NOOP("Mute All"), key("Ctrl+Shift+M"), &C::toggleMute},
          {},
          {QT_TR_NOOP("&Preferences…"), key("Ctrl+,"), &C::showPreferences},
          {},
          {QT_TR_NOOP("&Close"), key("Ctrl+W", QKeySequence::Close), closeWindow},
          {QT_TR_NOOP("&Quit"), key("Ctrl+Q", QKeySequence::Quit), &C::quit}}},
        {QT_TR_NOOP("&Timer"),
         {{QT_TR_NOOP("Start"), {}, TimerItem{pressButton, showButton}},
          {QT_TR_NOOP("Re&name"), key("F2"), TimerItem{renameTimer, hasTimer}},
          {},
          {QT_TR_NOOP("Stopwatch"), key("Ctrl+T"), &W::stopwatch},
          {QT_TR_NOOP("Count Down to a &Date…"), key("Ctrl+D"), &W::targetTime},
          {QT_TR_NOOP("&Reset"), key("Ctrl+R"), &W::resetWuffer},
          {},
          {QT_TR_NOOP("&Keep Wuffing"), key("Ctrl+K"), &W::toggleKeepWuffing},
          {QT_TR_NOOP("&Full Screen"), key("F11", QKeySequence::FullScreen),
           &W::startStopFullScreen},
          {QT_TR_NOOP("More Options"), key("Ctrl+O"), &W::showHideAdvanced}}},
        {QT_TR_NOOP("&Window"),
         {{QT_TR_NOOP("&Minimize"), key("Ctrl+M"), minimizeWindow},
          {},
          {QT_TR_NOOP("&Converter"), key("Ctrl+Shift+C"), &C::showConverter},
          {QT_TR_NOOP("M&easurements"), key("Ctrl+Shift+E"), &C::showMeasurements}}},
        {QT_TR_NOOP("&Help"),
         {{QT_TR_NOOP("Wuffer &Help"), key(QKeySequence::HelpContents), &C::showHelp},
          {QT_TR_NOOP("Wuffer on the &Web"), {}, &C::donate},
          {},
          {QT_TR_NOOP("&About Wuffer"), {}, &C::showAbout}}},
    };
    return menus;
}
