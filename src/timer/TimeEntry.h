#pragma once

#include "rules/TimeText.h"

#include <QObject>

#include <array>

class QFocusEvent;
class QWidget;
class TimeField;

/// How a time gets into the three fields of a timer by hand: what is typed into one of them, and
/// where that goes when it concerns the others.
///
/// It sees to it that what is typed next replaces the number of a field once the timer has become
/// ready to be set, that colons and letters of units lead through the fields, and that a text that
/// says a whole time fills all of them. It touches nothing that the program has written. Belongs to
/// the timer; what the fields say is the timer's to read.
class TimeEntry final : public QObject
{
    Q_OBJECT

public:
    /// Hours, minutes and seconds.
    using Fields = std::array<TimeField *, 3>;

    /// The fields lie in the window; all must outlive this object.
    TimeEntry(QWidget &window, const Fields &fields);

    /// The program has written a time, or lets it be set again: the number in focus is selected.
    void makeReady();

    /// Replaces the smaller fields by the fraction that was typed into hours or minutes.
    void settle();

    /// Lets nothing be typed from now on; the button takes the focus if one of the fields has it.
    void lock(QWidget &button);

    /// Lets a time be typed again, in the field that had the focus before, unless the user has gone
    /// elsewhere than to the button.
    void unlock(const QWidget &button);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectField(TimeField &field);
    void takeColon(const TimeField &field);
    void shiftUp();
    void takeLetter(TimeField &field, QChar letter);
    void takeText(TimeField &field, const QString &text);
    void settle(TimeText::Unit unit);
    void goTo(TimeField &field);
    void goPast(TimeText::Unit unit);
    void entered(TimeField &field);
    void focused(TimeField &field, const QFocusEvent &event);
    void selectUnlessInUse(TimeField &field) const;
    [[nodiscard]] bool filterWindow(QEvent &event);
    [[nodiscard]] bool typeFromElsewhere(QEvent &event);

    [[nodiscard]] TimeField &fieldOf(TimeText::Unit unit) const;
    [[nodiscard]] TimeText::Unit unitOf(const TimeField &field) const;
    [[nodiscard]] TimeField *fieldInFocus() const;

    QWidget &_window;
    const Fields _fields;
    /// The field that had the focus last.
    TimeField *_lastUsed;
    /// The field that gets the focus back when the run is over; null when none had it.
    TimeField *_lockedIn = nullptr;
    /// The field in focus, once something was typed into it; null before.
    const TimeField *_typedIn = nullptr;
    /// How many fields have been typed and left by a colon, one after the other.
    int _colons = 0;
    /// Whether the user has put the caret somewhere in the field in focus.
    bool _caretSet = false;
};
