#include "timer/TimeEntry.h"

#include "timer/TimeField.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace
{
/// Keys that move the caret.
bool movesCaret(const QKeyEvent &event)
{
    constexpr std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    return std::ranges::count(keys, event.key()) > 0;
}

/// Whether the focus was away only for something that lay over the window.
bool comesBack(const QFocusEvent &event)
{
    constexpr std::array reasons{Qt::ActiveWindowFocusReason, Qt::PopupFocusReason,
                                 Qt::MenuBarFocusReason};
    return std::ranges::count(reasons, event.reason()) > 0;
}

/// Whether the key begins a number.
bool beginsNumber(const QKeyEvent &event)
{
    constexpr auto allowed = Qt::KeypadModifier | Qt::ShiftModifier;
    const QString text = event.text();
    return (event.modifiers() & ~allowed) == Qt::NoModifier && !text.isEmpty() &&
           text.front().isDigit();
}
} // namespace

TimeEntry::TimeEntry(QWidget &window, const Fields &fields) :
    _window(window), _fields(fields), _lastUsed(fields[1])
{
    for (TimeField *field : _fields)
        connectField(*field);
    window.installEventFilter(this);
    // Most countdowns are minutes: what is typed straight away goes there.
    _lastUsed->setFocus();
    makeReady();
}

void TimeEntry::connectField(TimeField &field)
{
    field.installEventFilter(this);
    connect(&field, &TimeField::textEdited, this, [this, &field] { _typedIn = &field; });
    connect(&field, &TimeField::editingFinished, this, qOverload<>(&TimeEntry::settle));
    connect(&field, &TimeField::colonTyped, this, [this, &field] { takeColon(field); });
    connect(&field, &TimeField::letterTyped, this,
            [this, &field](QChar letter) { takeLetter(field, letter); });
    connect(&field, &TimeField::textOffered, this,
            [this, &field](const QString &text) { takeText(field, text); });
}

void TimeEntry::makeReady()
{
    _typedIn = nullptr;
    _colons = 0;
    _caretSet = false;
    if (TimeField *field = fieldInFocus())
        field->selectAll();
}

void TimeEntry::settle()
{
    settle(TimeText::Unit::Hours);
    settle(TimeText::Unit::Minutes);
}

void TimeEntry::settle(TimeText::Unit unit)
{
    TimeField &field = fieldOf(unit);
    // A fraction that the program has written says what it says.
    if (!field.isModified())
        return;
    const std::optional<TimeText::Time> time = TimeText::spread(field.text(), unit);
    if (!time)
        return;
    if (unit == TimeText::Unit::Hours)
        fieldOf(TimeText::Unit::Hours).edit(QString::number(time->hours));
    fieldOf(TimeText::Unit::Minutes).edit(QString::number(time->minutes));
    fieldOf(TimeText::Unit::Seconds).edit(QString::number(time->seconds));
}

void TimeEntry::lock(QWidget &button)
{
    _lockedIn = fieldInFocus();
    if (_lockedIn)
        button.setFocus();
    for (TimeField *field : _fields) {
        // A window that is not the active one would keep the number marked.
        field->deselect();
        field->setEnabled(false);
    }
}

void TimeEntry::unlock(const QWidget &button)
{
    for (TimeField *field : _fields)
        field->setEnabled(true);
    if (_lockedIn && _window.focusWidget() == &button)
        _lockedIn->setFocus();
    makeReady();
}

void TimeEntry::takeColon(const TimeField &field)
{
    const bool typed = _typedIn == &field;
    const int colons = typed ? _colons + 1 : _colons;
    if (unitOf(field) != TimeText::Unit::Seconds)
        goPast(unitOf(field));
    else if (typed && colons < int(_fields.size()))
        shiftUp();
    _colons = colons;
}

/// There is no smaller field: what was typed up to now moves to the larger ones.
void TimeEntry::shiftUp()
{
    TimeField &minutes = fieldOf(TimeText::Unit::Minutes);
    TimeField &seconds = fieldOf(TimeText::Unit::Seconds);
    if (_colons > 0)
        fieldOf(TimeText::Unit::Hours).edit(minutes.text());
    minutes.edit(seconds.text());
    seconds.edit(QStringLiteral("0"));
    goTo(seconds);
}

void TimeEntry::takeLetter(TimeField &field, QChar letter)
{
    const std::optional<TimeText::Unit> unit = TimeText::unitNamed(QStringView(&letter, 1));
    if (!unit || *unit == TimeText::Unit::Days || _typedIn != &field ||
        !TimeText::isNumber(field.text()))
        return;
    if (*unit != unitOf(field)) {
        const QString number = field.text();
        field.edit(QStringLiteral("0"));
        fieldOf(*unit).edit(number);
    }
    settle();
    goPast(*unit);
}

void TimeEntry::takeText(TimeField &field, const QString &text)
{
    // The menu that pastes may have been open since before the run began.
    if (!field.isEnabled())
        return;
    if (TimeText::isNumber(text)) {
        field.edit(text.trimmed());
    } else if (const std::optional<TimeText::Time> time = TimeText::read(text)) {
        fieldOf(TimeText::Unit::Hours).edit(QString::number(time->hours));
        fieldOf(TimeText::Unit::Minutes).edit(QString::number(time->minutes));
        fieldOf(TimeText::Unit::Seconds).edit(QString::number(time->seconds));
    } else {
        return;
    }
    goTo(field);
}

/// On to the field after that of the unit; behind the last there is none.
void TimeEntry::goPast(TimeText::Unit unit)
{
    const auto next = std::min(int(unit) + 1, int(TimeText::Unit::Seconds));
    goTo(fieldOf(TimeText::Unit(next)));
}

void TimeEntry::goTo(TimeField &field)
{
    field.setFocus();
    field.selectAll();
    entered(field);
}

/// Typing begins anew with this field.
void TimeEntry::entered(TimeField &field)
{
    _lastUsed = &field;
    _typedIn = nullptr;
    _colons = 0;
    _caretSet = false;
}

bool TimeEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &_window)
        return filterWindow(*event);
    switch (event->type()) {
    case QEvent::FocusIn:
        focused(*static_cast<TimeField *>(watched), *static_cast<QFocusEvent *>(event));
        break;
    case QEvent::MouseButtonPress:
        _caretSet = true;
        break;
    case QEvent::KeyPress:
        _caretSet = _caretSet || movesCaret(*static_cast<QKeyEvent *>(event));
        break;
    default:
        break;
    }
    return false;
}

void TimeEntry::focused(TimeField &field, const QFocusEvent &event)
{
    // What was begun before another window or a menu came in between goes on.
    if (comesBack(event) && _lastUsed == &field)
        selectUnlessInUse(field);
    else
        entered(field);
}

/// A menu bar that was open, and a window that was not the active one, may have cost the selection.
void TimeEntry::selectUnlessInUse(TimeField &field) const
{
    if (_typedIn != &field && !_caretSet)
        field.selectAll();
}

bool TimeEntry::filterWindow(QEvent &event)
{
    if (event.type() == QEvent::KeyPress)
        return typeFromElsewhere(event);
    TimeField *field = fieldInFocus();
    if (event.type() == QEvent::WindowActivate && field)
        selectUnlessInUse(*field);
    return false;
}

/// A number that is typed while a button has the focus goes into the field that was used last. The
/// name and the boxes, which have a use for digits, keep theirs.
bool TimeEntry::typeFromElsewhere(QEvent &event)
{
    if (fieldInFocus() || !_lastUsed->isEnabled() || !beginsNumber(static_cast<QKeyEvent &>(event)))
        return false;
    goTo(*_lastUsed);
    QCoreApplication::sendEvent(_lastUsed, &event);
    return true;
}

TimeField &TimeEntry::fieldOf(TimeText::Unit unit) const
{
    return *_fields.at(std::size_t(unit) - std::size_t(TimeText::Unit::Hours));
}

TimeText::Unit TimeEntry::unitOf(const TimeField &field) const
{
    const auto place = std::ranges::find(_fields, &field) - _fields.begin();
    return TimeText::Unit(int(TimeText::Unit::Hours) + int(place));
}

TimeField *TimeEntry::fieldInFocus() const
{
    const auto found = std::ranges::find(_fields, _window.focusWidget());
    return found == _fields.end() ? nullptr : *found;
}
