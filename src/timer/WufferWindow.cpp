#include "timer/WufferWindow.h"

#include "base/PropertyList.h"
#include "base/UserDefaults.h"
#include "controls/WindowButtons.h"
#include "platform/WindowPlaces.h"
#include "rules/WindowPlace.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDrag>
#include <QLayout>
#include <QScreen>
#include <QShortcut>

namespace
{
/// One step of a cascade in device-independent pixels: enough to leave the title bar of the window
/// below visible.
constexpr int kCascadeStep = 28;

/// The size that the window manager adds to a window, taken from a visible timer window; zero if
/// there is none.
QSize decorations()
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (qobject_cast<const WufferWindow *>(window) && window->isVisible())
            return window->frameGeometry().size() - window->size();
    }
    return {0, 0};
}
} // namespace

WufferWindow::WufferWindow(Wuffer &delegate) :
    QMainWindow(nullptr, kWindowNotToMaximize), _delegate(delegate),
    _return(new QShortcut(Qt::Key_Return, this)), _enter(new QShortcut(Qt::Key_Enter, this))
{
    // The window always has the size of its contents, which changes with the drawer.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    setAcceptDrops(true);
    for (QShortcut *shortcut : {_return, _enter}) {
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, &WufferWindow::returnPressed);
    }
}

void WufferWindow::setReturnShortcutEnabled(bool enabled)
{
    _return->setEnabled(enabled);
    _enter->setEnabled(enabled);
}

void WufferWindow::setVisible(bool visible)
{
    if (visible && !isVisible())
        fitToContents();
    QMainWindow::setVisible(visible);
}

QPoint WufferWindow::cascadeTopLeftFromPoint(QPoint topLeft)
{
    fitToContents();
    move(topLeft);
    return nextCascadePoint(topLeft, size() + decorations(), screen()->availableGeometry());
}

QPoint WufferWindow::nextCascadePoint(QPoint topLeft, QSize window, const QRect &room)
{
    const QPoint next = topLeft + QPoint(kCascadeStep, kCascadeStep);
    return room.contains(QRect(next, window)) ? next : room.topLeft();
}

void WufferWindow::saveFrameUsingName(const QString &name) const
{
    if (!knowsWindowPlaces())
        return;
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap places = defaults.value(Keys::kWindowFrames);
    places[name] = WindowPlace::record(pos());
    defaults.setValue(places, Keys::kWindowFrames);
}

void WufferWindow::setFrameUsingName(const QString &name)
{
    const QVariantMap places = UserDefaults::standardUserDefaults().value(Keys::kWindowFrames);
    const std::optional<QPoint> place =
        WindowPlace::fromRecord(PropertyList::dictionaryFrom(places[name]));
    if (!place)
        return;
    QList<QRect> rooms;
    for (const QScreen *each : QGuiApplication::screens())
        rooms.append(each->availableGeometry());
    fitToContents();
    move(WindowPlace::reachable(*place, size() + decorations(), rooms));
}

bool WufferWindow::event(QEvent *event)
{
    // This window does not receive the release of the mouse button if a sheet opens first.
    if (event->type() == QEvent::WindowBlocked)
        _pressedAt.reset();
    return QMainWindow::event(event);
}

bool WufferWindow::focusNextPrevChild(bool next)
{
    const QWidget *left = focusWidget();
    const bool lost = left != nullptr && !(left->isEnabled() && left->isVisibleTo(this));
    const bool moved = QMainWindow::focusNextPrevChild(next);
    return moved && lost && focusWidget() == _skippedForFocus
               ? QMainWindow::focusNextPrevChild(next)
               : moved;
}

void WufferWindow::closeEvent(QCloseEvent *event)
{
    // A drag survives neither the window that it comes from nor the window that it is over.
    if (_drag || _hovering)
        QDrag::cancel();
    Q_EMIT willClose();
    event->accept();
}

void WufferWindow::fitToContents()
{
    ensurePolished();
    layout()->activate();
}
