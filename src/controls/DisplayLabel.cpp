#include "controls/DisplayLabel.h"

#include "controls/AccessibleFactory.h"
#include "controls/PanelColors.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QGlyphRun>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace
{
/// Presents the label to assistive programs as static text.
class AccessibleDisplayLabel final : public QAccessibleWidget
{
public:
    explicit AccessibleDisplayLabel(DisplayLabel &label) :
        QAccessibleWidget(&label, QAccessible::StaticText)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return static_cast<const DisplayLabel *>(widget())->text();
        if (kind == QAccessible::Description)
            return widget()->accessibleName();
        return QAccessibleWidget::text(kind);
    }
};

bool isAscii(const QString &text)
{
    return std::ranges::all_of(
        text, [](QChar character) { return character >= u' ' && character <= u'~'; });
}

/// The text from the origin of its baseline on, its characters one after the other.
struct PlainLine
{
    QGlyphRun glyphs;
    double width = 0;
};

/// Nothing when the text has to be shaped: it is not ASCII, or the font lacks some of it.
std::optional<PlainLine> plainLine(const QString &text, const QRawFont &font)
{
    if (!isAscii(text))
        return std::nullopt;
    const QList<quint32> glyphs = font.glyphIndexesForString(text);
    if (glyphs.contains(0U))
        return std::nullopt;
    PlainLine line;
    QList<QPointF> positions = font.advancesForGlyphIndexes(glyphs);
    for (QPointF &position : positions)
        line.width += std::exchange(position.rx(), line.width);
    line.glyphs.setRawFont(font);
    line.glyphs.setGlyphIndexes(glyphs);
    line.glyphs.setPositions(positions);
    return line;
}

/// The text without the blanks at its end, which would move it from its place.
QString withoutBlanksAtEnd(QString text)
{
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

/// What the text needs, its letters that reach beyond their place included.
QSizeF neededRoom(const QFontMetricsF &metrics, const QString &text)
{
    const double advance = metrics.horizontalAdvance(text);
    const QRectF ink = metrics.boundingRect(text);
    const double overhang = std::max({0.0, -ink.left(), ink.right() - advance});
    return {advance + 2 * overhang, metrics.height()};
}
} // namespace

DisplayLabel::DisplayLabel(QWidget *parent) : QWidget(parent)
{
    AccessibleFactory::install<DisplayLabel, AccessibleDisplayLabel>();
    // The label fills what it paints, so nothing behind it has to be painted.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void DisplayLabel::setText(const QString &text)
{
    if (text == _text)
        return;
    const bool emptinessChanged = text.isEmpty() != _text.isEmpty();
    _text = text;
    if (emptinessChanged && _reservedCharacters == 0)
        updateGeometry();
    // Not update(): a deferred repaint costs another pass of the event loop, which is three system
    // calls at every change of the milliseconds.
    repaint();
    if (_announced && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void DisplayLabel::setTextColor(const QColor &color)
{
    if (color == _textColor)
        return;
    _textColor = color;
    _ink.reset();
    update();
}

void DisplayLabel::setReservedCharacters(int count)
{
    _reservedCharacters = std::max(0, count);
    updateGeometry();
}

void DisplayLabel::setReservedPointSize(double points)
{
    _reservedPointSize = points;
    updateGeometry();
}

void DisplayLabel::setAlignment(Qt::Alignment alignment)
{
    _alignment = alignment;
    update();
}

qreal DisplayLabel::fittingScale(QSizeF text, QSizeF room)
{
    if (text.isEmpty())
        return 1.0;
    return std::min({1.0, room.width() / text.width(), room.height() / text.height()});
}

QSize DisplayLabel::sizeHint() const
{
    if (_reservedCharacters == 0 && _text.isEmpty())
        return {0, 0};
    QFont roomyFont = font();
    roomyFont.setPointSizeF(std::max(font().pointSizeF(), _reservedPointSize));
    const QFontMetrics metrics(roomyFont);
    return {metrics.horizontalAdvance(QLatin1Char('0')) * _reservedCharacters, metrics.height()};
}

QSize DisplayLabel::minimumSizeHint() const
{
    return {0, _reservedPointSize > 0 ? 0 : sizeHint().height()};
}

void DisplayLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (!_ink)
        _ink = PanelColors::inkFor(_textColor, palette());
    painter.setPen(*_ink);
    if (!paintPlain(painter))
        paintShaped(painter);
}

bool DisplayLabel::paintPlain(QPainter &painter)
{
    if (!_rawFont)
        _rawFont = QRawFont::fromFont(font());
    const std::optional<PlainLine> line = plainLine(withoutBlanksAtEnd(_text), *_rawFont);
    if (!line)
        return false;
    const QFontMetricsF metrics(font());
    const QSizeF textSize(line->width, metrics.height());
    if (fittingScale(textSize, size()) < 1.0)
        return false;
    const QRect place =
        QStyle::alignedRect(layoutDirection(), _alignment, textSize.toSize(), rect());
    painter.drawGlyphRun(QPointF(place.x(), place.y() + metrics.ascent()), line->glyphs);
    return true;
}

void DisplayLabel::paintShaped(QPainter &painter) const
{
    // The painter is scaled and not the font: smaller fonts are not smaller in proportion.
    const QString text = withoutBlanksAtEnd(_text);
    const double scale = fittingScale(neededRoom(QFontMetricsF(font()), text), size());
    if (scale <= 0)
        return;
    painter.scale(scale, scale);
    painter.drawText(QRectF(QPointF(), QSizeF(size()) / scale),
                     static_cast<int>(_alignment) | Qt::TextSingleLine | Qt::TextDontClip, text);
}

void DisplayLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        _rawFont.reset();
        updateGeometry();
    }
    if (event->type() == QEvent::PaletteChange)
        _ink.reset();
    QWidget::changeEvent(event);
}
