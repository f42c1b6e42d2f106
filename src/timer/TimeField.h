#pragma once

#include <QLineEdit>

/// One of the three number fields of a timer. The user can type a number into it, with an optional
/// sign and fraction, and nothing else; the program may write any text.
///
/// The arrow keys, the page keys and the wheel change the number. Input that concerns the other
/// fields too is only reported: colons, letters of units, and texts that are pasted or dropped.
/// Every change by the user, of any kind, emits textEdited().
class TimeField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit TimeField(QWidget *parent = nullptr);

    /// Writes the text as if the user had typed it; the user can undo it.
    void edit(const QString &text);

    /// Adds the count to the number and drops its fraction. The result is at least 0 and fits into
    /// 32 bits. Selects the number, so that typing replaces it.
    void step(int count);

Q_SIGNALS:
    void colonTyped();
    /// The user has typed a letter, which is not inserted.
    void letterTyped(QChar letter);
    /// The user has pasted or dropped a text, which is not inserted.
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
    /// Handles the keys that this field treats differently from other text fields; true if it has.
    [[nodiscard]] bool handleKey(const QKeyEvent &event);
    void reportRefused(const QString &typed);
    [[nodiscard]] bool staysNumberWith(const QString &typed) const;
    void offerClipboard();
    static void accept(QDropEvent &drag);

    /// How far the wheel has turned since the last whole step, in eighths of a degree.
    int _turned = 0;
};
