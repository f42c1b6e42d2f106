#pragma once

#include <QAccessible>

#include <functional>

class QWidget;

/// The text of a control that has no text field, such as the chosen entry of a combo box.
///
/// Screen readers of Linux learn from Qt 6.4 neither the value of a combo box nor the new name of a
/// button. They read a text aloud that is inserted and selected, as one that is pasted or
/// completed. So the text is always selected as a whole.
class SpokenText final : public QAccessibleTextInterface
{
public:
    /// The accessible interface of the control returns this text as its text interface.
    SpokenText(const QWidget &control, std::function<QString()> text);

    /// Has screen readers read the text of the control aloud, if it has the focus.
    static void changed(QWidget &control);

    [[nodiscard]] QString text(int startOffset, int endOffset) const override;
    [[nodiscard]] int characterCount() const override;
    void selection(int selectionIndex, int *startOffset, int *endOffset) const override;
    [[nodiscard]] int selectionCount() const override;
    [[nodiscard]] int cursorPosition() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint &point) const override;
    [[nodiscard]] QString attributes(int offset, int *startOffset, int *endOffset) const override;

    // The user cannot edit the text.
    void addSelection(int /*startOffset*/, int /*endOffset*/) override {}
    void removeSelection(int /*selectionIndex*/) override {}
    void setSelection(int /*selectionIndex*/, int /*startOffset*/, int /*endOffset*/) override {}
    void setCursorPosition(int /*position*/) override {}
    void scrollToSubstring(int /*startIndex*/, int /*endIndex*/) override {}

private:
    const QWidget &_control;
    const std::function<QString()> _text;
};
