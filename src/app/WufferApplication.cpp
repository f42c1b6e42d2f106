#include "app/WufferApplication.h"

#include "BuildInfo.h"
#include "app/ProgramStyle.h"
#include "platform/ProcessTuning.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

static QIcon applicationIcon()
{
    // The resources of a static library are not registered by themselves.
    Q_INIT_RESOURCE(wuffer);
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 44, 48, 64, 128})
        icon.addFile(QStringLiteral(":/images/wuffer-%1.png").arg(size), QSize(size, size));
    return icon;
}

/// Keys that only modify other keys and do nothing when pressed alone.
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
    auto *style = new ProgramStyle;
    style->setParent(this);
    setStyle(style);
    _theme.follow();
    // A blinking caret would wake an idle program twice a second.
    setCursorFlashTime(0);
    connect(this, &QCoreApplication::aboutToQuit, this, [this] { _wuffers.clear(); });
}

WufferApplication::~WufferApplication() = default;

bool WufferApplication::event(QEvent *event)
{
    const bool handled = QApplication::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        _theme.follow();
    return handled;
}

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

/// Whether this event is Return or Enter on its way to the open list of a combo box.
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
    // Before delivery, so that timers are up to date when the window paints.
    if (event->type() == QEvent::Expose)
        Q_EMIT windowExposed();
    const bool forList = belongsToOpenList(*receiver, *event);
    const bool handled = QApplication::notify(receiver, event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        emitWindowSignal(*receiver, *event);
    // The list has picked an entry and closed, but has not accepted the event. If it stayed
    // unaccepted, the press would also be a shortcut of the window below and start its timer.
    if (forList)
        event->accept();
    return handled;
}

void WufferApplication::emitWindowSignal(QObject &receiver, const QEvent &event)
{
    if (!receiver.isWidgetType() || !static_cast<QWidget &>(receiver).isWindow())
        return;
    auto &window = static_cast<QWidget &>(receiver);
    const bool isTransient = window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip;
    if (event.type() == QEvent::Show)
        Q_EMIT windowShown(&window);
    else if (!isTransient)
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
    // One press arrives several times: as a ShortcutOverride, by which a widget can claim the key
    // before it becomes a menu shortcut, then as a KeyPress, and both again while the key is held.
    const bool newPress = event.type() == QEvent::ShortcutOverride && !keyEvent.isAutoRepeat();
    if (newPress)
        _swallowedKey.reset();
    if (_swallowedKey != keyEvent.key()) {
        // The key that started full-screen mode does not end it while it is held.
        if (keyEvent.isAutoRepeat() || !cancelFullScreenMode())
            return false;
        _swallowedKey = keyEvent.key();
    }
    // An accepted ShortcutOverride does not become a shortcut.
    event.accept();
    return true;
}

void WufferApplication::forget(Wuffer &timer)
{
    const auto place = std::ranges::find(_wuffers, &timer, &std::unique_ptr<Wuffer>::get);
    if (place == _wuffers.end())
        return;
    // Queued until the whole timer is gone. This returns 2 MiB after closing twenty windows.
    connect(&timer, &QObject::destroyed, this, returnFreeMemory, Qt::QueuedConnection);
    // The timer's own closing code is still on the call stack.
    place->release()->deleteLater();
    _wuffers.erase(place);
}
