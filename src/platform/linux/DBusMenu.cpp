#include "platform/linux/DBusMenu.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QHash>

#include <algorithm>

namespace
{
/// The id of the item that holds the lines.
constexpr int kRoot = 0;
/// How old the texts in an open menu may be.
constexpr int kTextDelay = 100; // ms
/// How many seconds a menu counts as in view that a panel was about to show.
constexpr double kSecondsInView = 10.0;

const QString kLabel = QStringLiteral("label");

/// Doubles underscores, because the protocol marks the mnemonic with a single one.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('_'), QStringLiteral("__"));
}

QVariantMap filtered(const QVariantMap &properties, const QStringList &names)
{
    if (names.isEmpty())
        return properties;
    QVariantMap found;
    for (const QString &name : names) {
        if (properties.contains(name))
            found.insert(name, properties.value(name));
    }
    return found;
}

QVariantMap rootProperties()
{
    return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
}

QVariantMap propertiesOf(const StatusMenu::Line &line)
{
    return {{kLabel, escaped(line.text)}};
}

bool areSameLines(const std::vector<StatusMenu::Line> &one,
                  const std::vector<StatusMenu::Line> &other)
{
    return std::ranges::equal(one, other, {}, &StatusMenu::Line::id, &StatusMenu::Line::id);
}
} // namespace

DBusMenu::DBusMenu(std::function<void()> whenClosed) : _whenClosed(std::move(whenClosed))
{
    DBusMenuTypes::registerAll();
    _textTimer.setSingleShot(true);
    _textTimer.setInterval(kTextDelay);
    connect(&_textTimer, &QTimer::timeout, this, &DBusMenu::updateWhileOpen);
    // Starting many timers at once changes many lines, which go out together.
    _linesTimer.setSingleShot(true);
    _linesTimer.setInterval(0);
    connect(&_linesTimer, &QTimer::timeout, this, &DBusMenu::updateLines);
    connect(&_panelWatch, &BusNameWatch::vanished, this, [this] {
        if (_open)
            close();
    });
}

QString DBusMenu::textDirection()
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

void DBusMenu::setMenu(StatusMenu *menu)
{
    if (menu == _menu)
        return;
    if (_menu)
        _menu->disconnect(this);
    _menu = menu;
    if (_menu) {
        _source = menu;
        connect(_menu, &StatusMenu::textsChanged, this, [this] {
            if (_open && !_textTimer.isActive())
                _textTimer.start();
        });
        connect(_menu, &StatusMenu::linesChanged, &_linesTimer, qOverload<>(&QTimer::start));
    }
    _linesTimer.start();
}

void DBusMenu::forgetPanel()
{
    _open = false;
    _viewTimer.invalidate();
    _textTimer.stop();
    _panelWatch.stop();
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                         DBusMenuTypes::Layout &layout)
{
    if (!_open)
        bringUpToDate();
    layout.id = parentId;
    if (parentId == kRoot) {
        layout.properties = filtered(rootProperties(), propertyNames);
        for (const StatusMenu::Line &line : _knownLines) {
            if (recursionDepth != 0)
                layout.children.append({line.id, filtered(propertiesOf(line), propertyNames), {}});
        }
    } else if (const auto line = std::ranges::find(_knownLines, parentId, &StatusMenu::Line::id);
               line != _knownLines.end()) {
        layout.properties = filtered(propertiesOf(*line), propertyNames);
    }
    return _revision;
}

DBusMenuTypes::Items DBusMenu::GetGroupProperties(const QList<int> &ids,
                                                  const QStringList &propertyNames)
{
    if (!_open)
        bringUpToDate();
    DBusMenuTypes::Items items;
    const auto isAskedFor = [&](int id) { return ids.isEmpty() || ids.contains(id); };
    if (isAskedFor(kRoot))
        items.append({kRoot, filtered(rootProperties(), propertyNames)});
    for (const StatusMenu::Line &line : _knownLines) {
        if (isAskedFor(line.id))
            items.append({line.id, filtered(propertiesOf(line), propertyNames)});
    }
    return items;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString &name)
{
    const DBusMenuTypes::Items items = GetGroupProperties({id}, {name});
    // D-Bus cannot carry an invalid value, so a missing property reads as an empty text.
    return QDBusVariant(items.isEmpty() ? QString()
                                        : items.first().properties.value(name, QString()));
}

void DBusMenu::Event(int id, const QString &eventId, const QDBusVariant & /*data*/,
                     uint /*timestamp*/)
{
    handle(id, eventId);
}

QList<int> DBusMenu::EventGroup(const DBusMenuTypes::Events &events)
{
    QList<int> unknown;
    for (const DBusMenuTypes::Event &event : events) {
        if (event.id != kRoot && !hasLine(event.id))
            unknown.append(event.id);
        handle(event.id, event.name);
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int id)
{
    if (id != kRoot)
        return false;
    if (!_open)
        _viewTimer.startOnce(kSecondsInView);
    return bringUpToDate();
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    QList<int> changed;
    for (const int id : ids) {
        if (id != kRoot && !hasLine(id))
            idErrors.append(id);
        else if (AboutToShow(id))
            changed.append(id);
    }
    return changed;
}

std::vector<StatusMenu::Line> DBusMenu::currentLines() const
{
    return _menu ? _menu->lines() : std::vector<StatusMenu::Line>();
}

bool DBusMenu::hasLine(int id) const
{
    return std::ranges::find(_knownLines, id, &StatusMenu::Line::id) != _knownLines.end();
}

void DBusMenu::handle(int id, const QString &eventId)
{
    if (eventId == QLatin1String("clicked")) {
        if (_source && hasLine(id))
            _source->choose(id);
        // Some panels do not report that a click closes the menu.
        if (isInView())
            close();
    } else if (id == kRoot && eventId == QLatin1String("opened")) {
        open();
    } else if (id == kRoot && eventId == QLatin1String("closed") && _open) {
        close();
    }
}

void DBusMenu::open()
{
    _open = true;
    _viewTimer.invalidate();
    _textTimer.start();
    if (calledFromDBus())
        _panelWatch.watch(message().service());
}

void DBusMenu::close()
{
    forgetPanel();
    _linesTimer.start();
    _whenClosed();
}

void DBusMenu::updateWhileOpen()
{
    if (_open)
        sendTexts(currentLines());
}

void DBusMenu::updateLines()
{
    if (!_open)
        bringUpToDate();
}

bool DBusMenu::bringUpToDate()
{
    const std::vector<StatusMenu::Line> lines = currentLines();
    if (areSameLines(lines, _knownLines))
        return sendTexts(lines);
    _knownLines = lines;
    ++_revision;
    Q_EMIT LayoutUpdated(_revision, kRoot);
    return true;
}

bool DBusMenu::sendTexts(const std::vector<StatusMenu::Line> &lines)
{
    QHash<int, QString> texts;
    for (const StatusMenu::Line &line : lines)
        texts.insert(line.id, line.text);
    DBusMenuTypes::Items updated;
    for (StatusMenu::Line &line : _knownLines) {
        const QString text = texts.value(line.id, line.text);
        if (text == line.text)
            continue;
        line.text = text;
        updated.append({line.id, propertiesOf(line)});
    }
    if (!updated.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(updated, {});
    return !updated.isEmpty();
}
