#pragma once

#include <QLineEdit>

#include <optional>

/// A field that holds a number in single precision, written and read in the way of the user's
/// locale.
///
/// It may be given a number while somebody types in it, in answer to edited(). Typing then goes on
/// from what was typed, not from what has become of it: whoever types 12.5 gets 12.5, even if the
/// field has shown 11.999999 for the 12. That ends when the cursor is moved.
class NumberField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberField(QWidget *parent = nullptr);

    /// The number that the text begins with; 0 when there is none.
    [[nodiscard]] float floatValue() const;

    /// Shows the number. What somebody is typing stays as it is where it reads as this number, so
    /// that "12." can be finished, and loses what does not belong to a number.
    void setFloatValue(float number);

    /// Moves the focus here and selects everything.
    void selectText();

Q_SIGNALS:
    /// Somebody has changed the text.
    void edited();

private:
    /// What somebody has typed, while the field shows something else for it.
    struct Typed
    {
        QString text;
        qsizetype cursor;
        QString shown;
        qsizetype shownCursor;
    };

    void takeEdit();
    void goOnTyping(const Typed &typed);
    void rewriteTyped(float number);
    void forgetTyped();

    std::optional<Typed> _typed;
    bool _isBeingEdited = false;
};
