#pragma once

#include "base/ClockTimer.h"
#include "platform/StatusMenu.h"
#include "platform/linux/BusNameWatch.h"
#include "platform/linux/DBusMenuTypes.h"

#include <QDBusContext>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <vector>

/// The list of a status item as panels read it over the session bus: the interface
/// com.canonical.dbusmenu. The root is item 0; the lines have the ids that the list gives them.
///
/// While the menu is closed, a signal goes out only when lines are added, removed or reordered; new
/// texts are sent when a panel is about to show them. While it is open, new texts are sent ten
/// times a second at most, and the lines stay, so that nothing moves under the pointer. Properties,
/// slots and signals that begin with a capital are the protocol's.
class DBusMenu final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    /// Calls the function each time the menu has been closed or counts as out of view.
    explicit DBusMenu(std::function<void()> whenClosed);

    /// Shows the lines of this list from now on; null for none. An open menu keeps its lines until
    /// it closes.
    void setMenu(StatusMenu *menu);

    /// Whether a panel has the menu open, as far as panels report it.
    [[nodiscard]] bool isOpen() const { return _open; }

    /// Whether the menu may be on the screen. Some panels report only that they are about to show
    /// it; then this is true for ten seconds, or until a line is chosen.
    [[nodiscard]] bool isInView() const { return _open || _viewTimer.isValid(); }

    /// Treats the menu as closed, because the panel that had it open has gone.
    void forgetPanel();

    [[nodiscard]] static uint version() { return 3; }
    [[nodiscard]] static QString textDirection();
    [[nodiscard]] static QString status() { return QStringLiteral("normal"); }
    [[nodiscard]] static QStringList iconThemePath() { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                   DBusMenuTypes::Layout &layout);
    DBusMenuTypes::Items GetGroupProperties(const QList<int> &ids,
                                            const QStringList &propertyNames);
    QDBusVariant GetProperty(int id, const QString &name);
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const DBusMenuTypes::Events &events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

Q_SIGNALS:
    void ItemsPropertiesUpdated(const DBusMenuTypes::Items &updated,
                                const DBusMenuTypes::Removals &removed);
    void LayoutUpdated(uint revision, int parent);

private:
    [[nodiscard]] std::vector<StatusMenu::Line> currentLines() const;
    [[nodiscard]] bool hasLine(int id) const;
    void handle(int id, const QString &eventId);
    void open();
    void close();
    void updateWhileOpen();
    void updateLines();
    bool bringUpToDate();
    bool sendTexts(const std::vector<StatusMenu::Line> &lines);

    std::function<void()> _whenClosed;
    QPointer<StatusMenu> _menu;
    /// The list that the panel's lines come from; kept when the menu is set to null.
    QPointer<StatusMenu> _source;
    /// The lines that the panel knows or is about to read.
    std::vector<StatusMenu::Line> _knownLines;
    uint _revision = 1;
    bool _open = false;
    /// Reports when the panel that has the menu open disappears.
    BusNameWatch _panelWatch;
    ClockTimer _viewTimer{[this] { _whenClosed(); }};
    QTimer _textTimer;
    QTimer _linesTimer;
};
