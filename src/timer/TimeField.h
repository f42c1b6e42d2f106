#pragma once

#include <QLineEdit>

/// One of the fields into which a time is typed: a number, perhaps with a sign and a fraction, and
/// no other characters.
///
/// It changes its number by itself with the arrow keys, the page keys and the wheel. What concerns
/// the other fields, too, it only reports: colons, letters of units, and texts that are pasted or
/// dropped. Text that the program writes may be anything. Every change by the user is reported as
/// textEdited(), of whatever kind it is.
class TimeField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit TimeField(QWidget *parent = nullptr);

    /// Writes the text as if the user had typed it; it can be undone.
    void edit(const QString &text);

    /// Adds so many to the number, but never goes below 0 or beyond 32 bits, and selects it, so
    /// that typing replaces it. The fraction goes.
    void step(int count);

Q_SIGNALS:
    void colonTyped();
    /// A letter was typed; it is not in the field.
    void letterTyped(QChar letter);
    /// A text was pasted into the field or dropped onto it; it is not in the field.
    void textOffered(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    /// Carries out what no field of text does with the key; whether it has.
    [[nodiscard]] bool takes(const QKeyEvent &event);
    void refuse(const QString &typed);
    [[nodiscard]] bool hasRoomFor(const QString &typed) const;
    void offerClipboard();
    static void accept(QDropEvent &drag);

    /// What the wheel has turned beyond the last whole step, in eighths of a degree.
    int _turned = 0;
};
