#pragma once

#include <QLineEdit>

#include <optional>

/// A field that holds a number in single precision, in the format of the user's locale.
///
/// A slot of edited() may set the number while the user types. The next keystroke then continues
/// the typed text, not the shown one: a user who types 12.5 gets 12.5, even if the field showed
/// 11.999999 after the 12. Moving the cursor makes the shown text the typed one.
class NumberField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberField(QWidget *parent = nullptr);

    /// The number that the text begins with; 0 when there is none.
    [[nodiscard]] float floatValue() const;

    /// Shows the number. If the text that the user is typing reads as this number, it stays, so
    /// that "12." can be completed, but loses what does not belong to a number.
    void setFloatValue(float number);

    /// Moves the focus here and selects everything.
    void selectText();

Q_SIGNALS:
    /// The user has changed the text.
    void edited();

private:
    /// What the user has typed, while the field shows another text for it.
    struct Typed
    {
        QString text;
        qsizetype cursor;
        QString shown;
        qsizetype shownCursor;
    };

    void handleEdit();
    void applyEditToTyped(const Typed &typed);
    void showWhileTyping(float number);
    void forgetTyped();

    std::optional<Typed> _typed;
    bool _isBeingEdited = false;
};
