#pragma once

#include <QColor>
#include <QRawFont>
#include <QWidget>

#include <optional>

/// One line of text on the display, in its own font and colour.
///
/// It may change many times a second, so a new text costs one repaint of the label and never a
/// new layout: the size that it asks for depends on its font and on the room it reserves, not on
/// its text. A text that is wider than the label is drawn smaller, never cut off.
class DisplayLabel final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int reservedCharacters READ reservedCharacters WRITE setReservedCharacters)
    Q_PROPERTY(double reservedPointSize READ reservedPointSize WRITE setReservedPointSize)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(bool announced READ isAnnounced WRITE setAnnounced)

public:
    explicit DisplayLabel(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const { return _text; }
    void setText(const QString &text);

    /// The colour of the text, whatever the theme. It is drawn so that it can be read on the panel.
    [[nodiscard]] QColor textColor() const { return _textColor; }
    void setTextColor(const QColor &color);

    /// How many digits to reserve room for; at least 0. With 0, an empty label takes no room.
    [[nodiscard]] int reservedCharacters() const { return _reservedCharacters; }
    void setReservedCharacters(int count);

    /// The font size in points to reserve room for, so that a smaller font for a longer text does
    /// not change the layout; 0 for the size of the current font.
    [[nodiscard]] double reservedPointSize() const { return _reservedPointSize; }
    void setReservedPointSize(double points);

    /// The alignment of the text in the label; centred by default.
    [[nodiscard]] Qt::Alignment alignment() const { return _alignment; }
    void setAlignment(Qt::Alignment alignment);

    /// Whether assistive programs are notified of every new text; on by default. Off for a text
    /// that changes too fast to be read aloud.
    [[nodiscard]] bool isAnnounced() const { return _announced; }
    void setAnnounced(bool announced) { _announced = announced; }

    /// The factor by which a text of this size is drawn smaller to fit into the room; at most 1.
    [[nodiscard]] static qreal fittingScale(QSizeF text, QSizeF room);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Paints the text without shaping it, which would cost a quarter more CPU at every change of
    /// the milliseconds. False when the text is not ASCII, or does not fit.
    [[nodiscard]] bool paintPlain(QPainter &painter);
    void paintShaped(QPainter &painter) const;

    QString _text;
    /// Made when it is first needed, for the font of the moment.
    std::optional<QRawFont> _rawFont;
    QColor _textColor = Qt::black;
    /// The colour in which the text is drawn; found when it is first needed.
    std::optional<QColor> _ink;
    Qt::Alignment _alignment = Qt::AlignCenter;
    int _reservedCharacters = 0;
    double _reservedPointSize = 0;
    bool _announced = true;
};
