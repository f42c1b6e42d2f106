#pragma once

#include <QLineEdit>

#include <optional>

/// A field that holds a number in single precision, in the format of the user's locale.
///
/// The field shows a number that it is given rounded, but keeps it in full until the user edits the
/// text. A slot of edited() may set the number while the user types. The text then stays as typed;
/// when the user leaves the field, a text that does not show the number is replaced.
class NumberField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberField(QWidget *parent = nullptr);

    /// The number that was set, unless the text has changed since; then the number that the text
    /// begins with, or 0 when there is none.
    [[nodiscard]] float floatValue() const;

    /// Sets the number and shows it rounded, unless the user is typing in this field.
    void setFloatValue(float number);

    /// Shows the number with all its digits.
    void showAllDigits();

    /// Moves the focus here and selects everything.
    void selectText();

Q_SIGNALS:
    /// The user has changed the text.
    void edited();

private:
    /// A number that was set, and the text that the field had then.
    struct Known
    {
        float number;
        QString text;
    };

    void handleEdit();
    void finishTyping();
    void showAs(float number, const QString &text);

    std::optional<Known> _known;
    bool _isBeingEdited = false;
};
