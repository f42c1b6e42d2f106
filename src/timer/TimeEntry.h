#pragma once

#include "rules/TimeText.h"

#include <QObject>

#include <array>

class QFocusEvent;
class QWidget;
class TimeField;

/// Handles how the user enters a time into the three fields of a timer, as far as one field affects
/// the others.
///
/// It selects the number in the focused field whenever the timer becomes ready to be set, so that
/// typing replaces it. Colons and letters of units move the focus through the fields, and a pasted
/// or dropped text with a whole time fills all three. It does not change a time that the program
/// has written until the user edits it. The timer owns this object and reads the fields itself.
class TimeEntry final : public QObject
{
    Q_OBJECT

public:
    /// The fields for hours, minutes and seconds, in this order.
    using Fields = std::array<TimeField *, 3>;

    /// The fields are in the window. Fields and window must outlive this object.
    TimeEntry(QWidget &window, const Fields &fields);

    /// Selects the number in the focused field. To be called when the program has written a time or
    /// unlocked the fields.
    void makeReady();

    /// Converts a fraction typed into hours or minutes into the smaller fields and replaces their
    /// numbers: 1.5 hours become 1 hour, 30 minutes.
    void spreadFractions();

    /// Disables the fields. If one of them has the focus, the button receives it.
    void lock(QWidget &button);

    /// Enables the fields. The focus returns to the field that had it before, unless the user has
    /// moved it away from the button.
    void unlock(const QWidget &button);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectField(TimeField &field);
    void takeColon(const TimeField &field);
    void shiftUp();
    void takeLetter(TimeField &field, QChar letter);
    void takeText(TimeField &field, const QString &text);
    void spreadFractions(TimeText::Unit unit);
    void goTo(TimeField &field);
    void goToFieldAfter(TimeText::Unit unit);
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
    /// The field that receives the focus after the run; null if none had it before.
    TimeField *_lockedIn = nullptr;
    /// The focused field if the user has typed into it; otherwise null.
    const TimeField *_typedIn = nullptr;
    /// How many fields in a row the user has typed into and left with a colon.
    int _colons = 0;
    /// Whether the user has placed the caret in the focused field.
    bool _caretSet = false;
};
