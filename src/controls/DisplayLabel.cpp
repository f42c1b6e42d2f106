#include "controls/DisplayLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace
{
/// Presents the label to assistive programs as static text.
class AccessibleDisplayLabel final : public QAccessibleWidget
{
public:
    explicit AccessibleDisplayLabel(QWidget *label) :
        QAccessibleWidget(label, QAccessible::StaticText)
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

/// How many characters the texts have in common at their beginning.
qsizetype commonLength(QStringView text, QStringView other)
{
    return std::ranges::mismatch(text, other).in1 - text.begin();
}

/// What the text needs, its letters that reach beyond their place included.
QSizeF neededRoom(const QFontMetricsF &metrics, const QString &text)
{
    const double advance = metrics.horizontalAdvance(text);
    const QRectF ink = metrics.boundingRect(text);
    const double overhang = std::max({0.0, -ink.left(), ink.right() - advance});
    return {advance + 2 * overhang, metrics.height()};
}

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    if (className == QLatin1String("DisplayLabel"))
        return new AccessibleDisplayLabel(static_cast<QWidget *>(object));
    return nullptr;
}
} // namespace

DisplayLabel::DisplayLabel(QWidget *parent) : QWidget(parent)
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    // The label fills what it paints, so nothing behind it has to be painted.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void DisplayLabel::setText(const QString &text)
{
    if (text == _text)
        return;
    const bool emptinessChanged = text.isEmpty() != _text.isEmpty();
    const QRect changed = changedPart(text);
    _text = text;
    if (emptinessChanged && _reservedCharacters == 0)
        updateGeometry();
    // Not update(): a deferred repaint costs another pass of the event loop, which is three system
    // calls at every change of the milliseconds.
    repaint(changed);
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

void DisplayLabel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    painter.setPen(_textColor);

    if (const std::optional<QPointF> origin = plainOrigin(_text)) {
        painter.drawGlyphRun(*origin, glyphs().run(_text));
        return;
    }
    // The painter is scaled and not the font: smaller fonts are not smaller in proportion.
    const double scale = fittingScale(neededRoom(QFontMetricsF(font()), _text), size());
    if (scale <= 0)
        return;
    painter.scale(scale, scale);
    painter.drawText(QRectF(QPointF(), QSizeF(size()) / scale),
                     static_cast<int>(_alignment) | Qt::TextSingleLine | Qt::TextDontClip, _text);
}

const GlyphLine &DisplayLabel::glyphs() const
{
    if (!_glyphs)
        _glyphs.emplace(font());
    return *_glyphs;
}

std::optional<QPointF> DisplayLabel::plainOrigin(QStringView text) const
{
    if (!glyphs().canSet(text))
        return std::nullopt;
    const QSizeF textSize(glyphs().width(text), glyphs().height());
    if (fittingScale(textSize, size()) < 1.0)
        return std::nullopt;
    const QRect place =
        QStyle::alignedRect(layoutDirection(), _alignment, textSize.toSize(), rect());
    return QPointF(place.x(), place.y() + glyphs().ascent());
}

QRect DisplayLabel::changedPart(QStringView newText) const
{
    const std::optional<QPointF> origin = plainOrigin(_text);
    // What begins and ends where the old text does differs from it in its last characters only.
    if (!origin || plainOrigin(newText) != origin || newText.size() != _text.size() ||
        glyphs().width(newText) != glyphs().width(_text))
        return rect();
    const qsizetype kept = commonLength(newText, _text);
    const QRectF ink = glyphs().inkFrom(kept, _text) | glyphs().inkFrom(kept, newText);
    // Smoothed strokes stand out of their outlines a little.
    constexpr int overhang = 2;
    return ink.translated(*origin)
        .toAlignedRect()
        .adjusted(-overhang, -overhang, overhang, overhang)
        .intersected(rect());
}

void DisplayLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        _glyphs.reset();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}
