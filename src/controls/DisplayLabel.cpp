#include "controls/DisplayLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace
{
/// Shows the label to assistive programs as the static text that it looks like.
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

/// Whether the texts are surely equally wide in a fixed-pitch font. Measuring a text costs as much
/// as drawing it, and most new texts only have other digits in the places of the old ones.
bool isAsWideAs(QStringView text, QStringView other)
{
    const auto isPlain = [](QChar character) { return character.unicode() < 0x80; };
    return text.size() == other.size() && std::ranges::all_of(text, isPlain) &&
           std::ranges::all_of(other, isPlain);
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
    // The whole of the label is painted at each change, so nothing behind it has to be.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void DisplayLabel::setText(const QString &text)
{
    if (text == _text)
        return;
    const bool emptinessChanged = text.isEmpty() != _text.isEmpty();
    if (_scale != 1.0 || !isAsWideAs(text, _text))
        _scale.reset();
    _text = text;
    if (emptinessChanged && _reservedCharacters == 0)
        updateGeometry();
    update();
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

void DisplayLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(_textColor);

    // The painter is scaled and not the font: smaller fonts are not smaller in proportion.
    const double factor = scale();
    if (factor <= 0)
        return;
    painter.scale(factor, factor);
    painter.drawText(QRectF(QPointF(), QSizeF(size()) / factor),
                     static_cast<int>(_alignment) | Qt::TextSingleLine | Qt::TextDontClip, _text);
}

double DisplayLabel::scale()
{
    if (!_scale)
        _scale = fittingScale(neededRoom(QFontMetricsF(font()), _text), size());
    return *_scale;
}

void DisplayLabel::resizeEvent(QResizeEvent *event)
{
    _scale.reset();
    QWidget::resizeEvent(event);
}

void DisplayLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        _scale.reset();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}
