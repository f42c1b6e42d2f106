#include "timer/TimeEntry.h"

#include "timer/TimeField.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace
{
/// Whether the key moves the caret.
bool movesCaret(const QKeyEvent &event)
{
    constexpr std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    return std::ranges::count(keys, event.key()) > 0;
}

/// Whether the focus returns from another window, a popup or the menu bar.
bool returnsFromElsewhere(const QFocusEvent &event)
{
    constexpr std::array reasons{Qt::ActiveWindowFocusReason, Qt::PopupFocusReason,
                                 Qt::MenuBarFocusReason};
    return std::ranges::count(reasons, event.reason()) > 0;
}

/// Whether the key types a digit.
bool typesDigit(const QKeyEvent &event)
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
    // Most countdowns take minutes: a number typed without choosing a field goes there.
    _lastUsed->setFocus();
    makeReady();
}

void TimeEntry::connectField(TimeField &field)
{
    field.installEventFilter(this);
    connect(&field, &TimeField::textEdited, this, [this, &field] { _typedIn = &field; });
    connect(&field, &TimeField::editingFinished, this, qOverload<>(&TimeEntry::spreadFractions));
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

void TimeEntry::spreadFractions()
{
    spreadFractions(TimeText::Unit::Hours);
    spreadFractions(TimeText::Unit::Minutes);
}

void TimeEntry::spreadFractions(TimeText::Unit unit)
{
    TimeField &field = fieldOf(unit);
    // Leave a fraction that the program has written.
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
        // An inactive window would still show the number as selected.
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
        goToFieldAfter(unitOf(field));
    else if (typed && colons < int(_fields.size()))
        shiftUp();
    _colons = colons;
}

/// A colon in the seconds field moves the numbers typed so far to the larger fields.
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
    spreadFractions();
    goToFieldAfter(*unit);
}

void TimeEntry::takeText(TimeField &field, const QString &text)
{
    // The context menu may have been open since before the run started.
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

/// Moves to the field after the one of the unit, or stays in the last.
void TimeEntry::goToFieldAfter(TimeText::Unit unit)
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

/// Starts a new entry in this field.
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
    // The user continues an entry that another window or a menu has interrupted.
    if (returnsFromElsewhere(event) && _lastUsed == &field)
        selectUnlessInUse(field);
    else
        entered(field);
}

/// Restores the selection, which an open menu bar or an inactive window may have removed.
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

/// Sends a digit that is typed while a button has the focus to the field used last. The name field
/// and the combo boxes handle digits themselves.
bool TimeEntry::typeFromElsewhere(QEvent &event)
{
    if (fieldInFocus() || !_lastUsed->isEnabled() || !typesDigit(static_cast<QKeyEvent &>(event)))
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
