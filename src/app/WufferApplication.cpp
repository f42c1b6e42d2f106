#include "app/WufferApplication.h"

#include "BuildInfo.h"
#include "platform/ProcessTuning.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

static QIcon applicationIcon()
{
    // A static library has to be asked for its resources.
    Q_INIT_RESOURCE(wuffer);
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/images/wuffer-%1.png").arg(size), QSize(size, size));
    return icon;
}

/// Keys that only change what other keys mean, and are no press of their own.
static bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

WufferApplication::WufferApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("wuffer"));
    setApplicationDisplayName(BuildInfo::name());
    setApplicationVersion(BuildInfo::version());
    setDesktopFileName(BuildInfo::applicationId());
    setWindowIcon(applicationIcon());
    // A caret that blinks would wake an idle program twice a second for ever.
    setCursorFlashTime(0);
    connect(this, &QCoreApplication::aboutToQuit, this, [this] { _wuffers.clear(); });
}

WufferApplication::~WufferApplication() = default;

WufferApplication &WufferApplication::instance()
{
    Q_ASSERT(qobject_cast<WufferApplication *>(qApp));
    return *static_cast<WufferApplication *>(qApp);
}

std::vector<Wuffer *> WufferApplication::getWuffers()
{
    std::vector<Wuffer *> timers;
    for (const std::unique_ptr<Wuffer> &timer : instance()._wuffers)
        timers.push_back(timer.get());
    return timers;
}

WufferWindow *WufferApplication::otherWufferWindowSharesOrigin(const QWidget &window)
{
    for (const Wuffer *timer : getWuffers()) {
        if (timer->window() != &window && timer->window()->pos() == window.pos())
            return timer->window();
    }
    return nullptr;
}

Wuffer *WufferApplication::keyWuffer()
{
    for (const QWidget *window = activeWindow(); window; window = window->parentWidget()) {
        if (const auto *wufferWindow = qobject_cast<const WufferWindow *>(window))
            return &wufferWindow->delegate();
    }
    return nullptr;
}

Wuffer &WufferApplication::openWuffer()
{
    Wuffer &timer = *_wuffers.emplace_back(std::make_unique<Wuffer>(*this));
    connect(&timer, &Wuffer::closed, this, [this, &timer] { forget(timer); });
    connect(this, &WufferApplication::windowExposed, &timer, &Wuffer::windowExposed);
    connect(this, &WufferApplication::windowHidden, &timer, &Wuffer::windowHidden);
    connect(&timer, &Wuffer::helpRequested, this, &WufferApplication::helpRequested);
    connect(&timer, &Wuffer::targetsRequested, this,
            [this, &timer](QWidget *button) { Q_EMIT targetsRequested(&timer, button); });
    Q_EMIT wufferOpened(&timer);
    return timer;
}

bool WufferApplication::cancelFullScreenMode()
{
    bool cancelled = false;
    for (Wuffer *timer : getWuffers())
        cancelled = timer->setWindowed() || cancelled;
    return cancelled;
}

bool WufferApplication::cancelFullScreenModeForOthers(const Wuffer &timer)
{
    bool cancelled = false;
    for (Wuffer *other : getWuffers()) {
        if (other != &timer)
            cancelled = other->giveUpFullScreen() || cancelled;
    }
    return cancelled;
}

/// Whether this is Return on its way to the open list of a combo box.
static bool belongsToOpenList(const QObject &receiver, const QEvent &event)
{
    if (event.type() != QEvent::ShortcutOverride || !receiver.isWidgetType())
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    const QWidget *window = static_cast<const QWidget &>(receiver).window();
    return window->windowType() == Qt::Popup && (key == Qt::Key_Return || key == Qt::Key_Enter);
}

bool WufferApplication::notify(QObject *receiver, QEvent *event)
{
    if (swallows(*event))
        return true;
    if (event->type() == QEvent::Quit)
        _quitting = true;
    // First, so that what comes into view is up to date.
    if (event->type() == QEvent::Expose)
        Q_EMIT windowExposed();
    const bool forList = belongsToOpenList(*receiver, *event);
    const bool handled = QApplication::notify(receiver, event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        tellOfWindow(*receiver, *event);
    // The list has picked an entry and closed, but says nothing. Without a word the press would be
    // a shortcut of the window below, too, and start its timer.
    if (forList)
        event->accept();
    return handled;
}

void WufferApplication::tellOfWindow(QObject &receiver, const QEvent &event)
{
    if (!receiver.isWidgetType() || !static_cast<QWidget &>(receiver).isWindow())
        return;
    auto &window = static_cast<QWidget &>(receiver);
    const bool isPassing = window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip;
    if (event.type() == QEvent::Show)
        Q_EMIT windowShown(&window);
    else if (!isPassing)
        Q_EMIT windowHidden();
}

bool WufferApplication::swallows(QEvent &event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return swallowsKey(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return static_cast<QMouseEvent &>(event).button() == Qt::LeftButton &&
               cancelFullScreenMode();
    default:
        return false;
    }
}

bool WufferApplication::swallowsKey(QEvent &event)
{
    const auto &keyEvent = static_cast<QKeyEvent &>(event);
    if (isModifier(keyEvent.key()))
        return false;
    if (event.type() == QEvent::KeyRelease) {
        if (!keyEvent.isAutoRepeat() && _swallowedKey == keyEvent.key())
            _swallowedKey.reset();
        return false;
    }
    // One press arrives several times: as a question whether somebody wants it before it becomes
    // a menu shortcut, then as the press itself, and both again while the key is held down.
    const bool newPress = event.type() == QEvent::ShortcutOverride && !keyEvent.isAutoRepeat();
    if (newPress)
        _swallowedKey.reset();
    if (_swallowedKey != keyEvent.key()) {
        // Nor does the key that has brought the full screen end it while it is still held.
        if (keyEvent.isAutoRepeat() || !cancelFullScreenMode())
            return false;
        _swallowedKey = keyEvent.key();
    }
    // Accepting the question keeps the press from becoming a shortcut.
    event.accept();
    return true;
}

void WufferApplication::forget(Wuffer &timer)
{
    const auto place = std::ranges::find(_wuffers, &timer, &std::unique_ptr<Wuffer>::get);
    if (place == _wuffers.end())
        return;
    // Once all of it has gone, of what it used nothing is kept: 2 MiB of twenty windows.
    connect(&timer, &QObject::destroyed, this, returnFreeMemory, Qt::QueuedConnection);
    // The timer is still at work on its own closing.
    place->release()->deleteLater();
    _wuffers.erase(place);
}
