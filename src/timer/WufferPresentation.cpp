#include "base/ScreenBlanking.h"
#include "base/Service.h"
#include "platform/WindowOrder.h"
#include "rules/TimerTexts.h"
#include "timer/DisplayFont.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

#include <QAction>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QWindow>

namespace
{
/// The screen with the focused window, or else the screen of this window.
QScreen &mainScreen(const QWidget &window)
{
    const QWindow *focused = QGuiApplication::focusWindow();
    return focused ? *focused->screen() : *window.screen();
}

QString drawerTitle(bool open)
{
    return open ? TimerTexts::hideOptions() : TimerTexts::moreOptions();
}
} // namespace

void Wuffer::setFullScreenMode(bool fullScreen)
{
    if (fullScreen == _ui->_displayBox->isInFullScreenMode())
        return;
    // The name is a text field in the window and a label on the full screen. The label stays
    // visible afterwards, but empty.
    _ui->_titleField->setVisible(!fullScreen);
    _ui->_fullTitleField->setText(fullScreen ? title() : QString());
    if (fullScreen) {
        _ui->_displayBox->enterFullScreenMode(mainScreen(*_window));
        setFullScreenFontSizes(true);
        _ui->_fullTitleField->setVisible(true);
        QGuiApplication::setOverrideCursor(Qt::BlankCursor);
        Service<ScreenBlanking>::current().inhibit(*this, tr("A timer fills the screen"));
    } else {
        // The display returns with its large fonts, which must not enlarge the window.
        _window->layout()->setEnabled(false);
        _ui->_displayBox->exitFullScreenModeWithOptions();
        setFullScreenFontSizes(false);
        _window->layout()->setEnabled(true);
        QGuiApplication::restoreOverrideCursor();
        Service<ScreenBlanking>::current().release(*this);
    }
}

void Wuffer::setFullScreenFontSizes(bool fullScreen)
{
    DisplayFont::apply(*_ui->_resultLabel, fullScreen ? 200 : 24);
    setResultLabelText(_ui->_resultLabel->text());
    DisplayFont::apply(*_ui->_msLabel, DisplayFont::smallSize(fullScreen));
    DisplayFont::apply(*_ui->_elapsedLabel, DisplayFont::smallSize(fullScreen));
    DisplayFont::apply(*_ui->_fullTitleField, DisplayFont::smallSize(fullScreen));
}

void Wuffer::startStopFullScreen()
{
    setFullScreenMode(!_ui->_displayBox->isInFullScreenMode());
}

bool Wuffer::setWindowed()
{
    if (!_ui->_displayBox->isInFullScreenMode())
        return false;
    setFullScreenMode(false);
    return true;
}

bool Wuffer::giveUpFullScreen()
{
    const bool gaveUp = setWindowed();
    if (gaveUp)
        _alarmNotification.expectActivation();
    return gaveUp;
}

void Wuffer::showHideAdvanced()
{
    // Read the state before the drawer moves. A press while the drawer is still closing opens it
    // again and leaves the title “More Options”.
    const bool closed = _ui->_drawer->state() == Drawer::State::Closed;
    _ui->_finishedDrawerButton->setText(drawerTitle(closed));
    _ui->_drawer->toggle();
}

void Wuffer::showWufferWindow()
{
    _alarmNotification.answer();
    bringToFront(*_window);
}

void Wuffer::windowHidden()
{
    // It is the window manager, and not the user, that now activates another window.
    if (!_window->isActiveWindow())
        _alarmNotification.expectActivation();
}

void Wuffer::comeForward()
{
    // The window system reports no activation if the window is already active.
    if (!_window->isActiveWindow())
        _alarmNotification.expectActivation();
    bringToFront(*_window);
}

bool Wuffer::validateMenuItem(QAction &item, Operation action) const
{
    if (_closed)
        return false;
    if (action == &Wuffer::stopwatch) {
        item.setText(_run.isStopwatch() ? TimerTexts::timer() : TimerTexts::stopwatch());
        return !_run.isStarted();
    }
    if (action == &Wuffer::toggleKeepWuffing)
        return _ui->_keepWuffingBox->isEnabled();
    if (action == &Wuffer::targetTime)
        return !_run.isStarted();
    if (action == &Wuffer::showHideAdvanced) {
        item.setText(drawerTitle(_ui->_drawer->isExpanded()));
        return true;
    }
    if (action == &Wuffer::startStopFullScreen)
        return _run.isStarted();
    return action == &Wuffer::resetWuffer || action == &Wuffer::showWufferWindow;
}
