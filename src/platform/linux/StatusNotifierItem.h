#pragma once

#include "platform/StatusIcon.h"
#include "platform/StatusItem.h"
#include "platform/linux/StatusNotifierTypes.h"

#include <QDBusObjectPath>
#include <QObject>

#include <functional>

/// The status item as panels read and call it over the session bus: the interface
/// org.kde.StatusNotifierItem, with the label that the Ayatana panels add to it.
///
/// Properties, slots and signals that begin with a capital are the protocol's. A signal is sent
/// only for what has changed; the panel then reads the new value. While the item has neither icon
/// nor label its status is "Passive", and panels hide it.
class StatusNotifierItem final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconName READ noName)
    Q_PROPERTY(StatusNotifier::Pixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ noName)
    Q_PROPERTY(StatusNotifier::Pixmaps OverlayIconPixmap READ noPixmap)
    Q_PROPERTY(QString AttentionIconName READ noName)
    Q_PROPERTY(StatusNotifier::Pixmaps AttentionIconPixmap READ noPixmap)
    Q_PROPERTY(QString AttentionMovieName READ noName)
    Q_PROPERTY(StatusNotifier::ToolTip ToolTip READ toolTip)
    Q_PROPERTY(QString IconThemePath READ noName)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ noName)
    Q_PROPERTY(uint XAyatanaOrderingIndex READ orderingIndex)

public:
    /// What the item shows.
    struct Content
    {
        StatusIcon icon;
        QString label;
        QString toolTip;
        bool hasMenu = false;

        [[nodiscard]] bool isEmpty() const { return icon.isNull() && label.isEmpty(); }
    };

    using Handler = std::function<void()>;

    /// The protocol's placeholder for the path of a menu that does not exist.
    inline static const QString kNoMenuPath = QStringLiteral("/NO_DBUSMENU");

    /// Takes the object path of the menu, which is used while the content has a menu. A left click
    /// calls `activate`; a panel that shows no menus itself calls `showMenu`.
    StatusNotifierItem(QString menuPath, Handler activate, Handler showMenu);

    /// Shows this in place of what was shown before.
    void show(const Content &content);

    [[nodiscard]] static QString category() { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] static QString id();
    /// Always the name of the program: panels keep lists of items by title.
    [[nodiscard]] static QString title();
    [[nodiscard]] QString status() const;
    [[nodiscard]] static int windowId() { return 0; }
    [[nodiscard]] StatusNotifier::Pixmaps iconPixmap() const { return _pixmaps; }
    [[nodiscard]] StatusNotifier::ToolTip toolTip() const;
    [[nodiscard]] bool itemIsMenu() const { return _content.hasMenu; }
    /// The path of the menu, or without a menu the protocol's placeholder.
    [[nodiscard]] QDBusObjectPath menu() const;
    [[nodiscard]] QString label() const { return _content.label; }
    [[nodiscard]] static uint orderingIndex() { return 0; }
    [[nodiscard]] static QString noName() { return {}; }
    [[nodiscard]] static StatusNotifier::Pixmaps noPixmap() { return {}; }

public Q_SLOTS:
    void Activate(int, int) { _activate(); }
    void ContextMenu(int, int) { _showMenu(); }
    // Required by the protocol; the middle button and the wheel do nothing.
    void SecondaryActivate(int, int) {}
    void Scroll(int, const QString &) {}
    /// Passes on the token that lets the next window come to the front after the user's click.
    void ProvideXdgActivationToken(const QString &token);

Q_SIGNALS:
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString &status);
    void NewMenu();
    void XAyatanaNewLabel(const QString &label, const QString &guide);

private:
    Content _content;
    /// Cached, because some panels read everything whenever anything changes.
    StatusNotifier::Pixmaps _pixmaps;
    QString _menuPath;
    Handler _activate;
    Handler _showMenu;
};
