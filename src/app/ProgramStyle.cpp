#include "app/ProgramStyle.h"

#include "controls/ReadableColor.h"
#include "platform/AnimationSetting.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace
{
/// How much darker, in percent, Fusion draws an outline than the window or the highlight.
constexpr int kOutlineDarker = 140;
constexpr int kFocusDarker = 125;

/// Whether outlines that are a darker shade of the window cannot be seen well.
bool outlinesVanish()
{
    constexpr double highContrast = 20;
    const QPalette theme = QApplication::palette();
    const Rgb text = Rgb::of(theme.color(QPalette::WindowText));
    return isDark(theme) ||
           Contrast::ratio(text, Rgb::of(theme.color(QPalette::Window))) > highContrast;
}

/// The colour, or the nearest one that is seen on both grounds.
/// It has the contrast of a text: Fusion draws pages and buttons a little lighter than the window,
/// and smooths outlines.
QColor seenOn(const QColor &ground, const QColor &other, const QColor &color)
{
    return readable(readable(color, ground), other);
}

/// A copy of the option with another palette.
template<class Option> Option recolored(const Option &option, const QPalette &palette)
{
    Option copy = option;
    copy.palette = palette;
    return copy;
}

/// The same for an option of which Fusion needs no more than what all options have. It may be part
/// of a larger one whose type it still bears.
QStyleOption plain(const QStyleOption &option, const QPalette &palette)
{
    QStyleOption copy = recolored(option, palette);
    copy.type = QStyleOption::SO_Default;
    return copy;
}

void drawRing(const QRect &place, const QColor &color, QPainter &painter)
{
    constexpr double half = 0.5;
    constexpr double corner = 1.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(color);
    painter.drawRoundedRect(QRectF(place).adjusted(half, half, -half, -half), corner, corner);
    painter.restore();
}

bool showsFocus(const QStyleOption &option)
{
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

/// Draws the ring around the focus, which Fusion draws very faintly.
void drawFocusRing(const QStyleOption &option, QPainter &painter)
{
    const auto *ring = qstyleoption_cast<const QStyleOptionFocusRect *>(&option);
    const bool knowsGround = ring && ring->backgroundColor.isValid();
    const QColor ground =
        knowsGround ? ring->backgroundColor : option.palette.color(QPalette::Window);
    drawRing(option.rect, readable(option.palette.color(QPalette::Highlight), ground), painter);
}

/// Fusion draws the default button as if it always had the focus, so the focus gets a ring in it.
void drawFocusInDefaultButton(const QStyleOptionButton &button, QPainter &painter)
{
    constexpr int inside = 3;
    if (showsFocus(button) && button.features.testFlag(QStyleOptionButton::DefaultButton))
        drawRing(button.rect.adjusted(inside, inside, -inside, -inside),
                 button.palette.color(QPalette::ButtonText), painter);
}
} // namespace

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returned) const
{
    if (hint == SH_Widget_Animation_Duration && !AnimationSetting::isOn())
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    if (!isFusion())
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto draw = [&](const auto &recoloredOption) {
        QProxyStyle::drawPrimitive(element, &recoloredOption, painter, widget);
    };
    switch (element) {
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange))
            drawFocusRing(*option, *painter);
        return;
    case PE_IndicatorCheckBox:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option))
            return draw(recolored(*button, outlining(option->palette)));
        break;
    case PE_PanelButtonCommand:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            draw(recolored(*button, outlining(option->palette)));
            return drawFocusInDefaultButton(*button, *painter);
        }
        break;
    case PE_FrameTabWidget:
        if (const auto *tabs = qstyleoption_cast<const QStyleOptionTabWidgetFrame *>(option))
            return draw(recolored(*tabs, outlining(option->palette)));
        break;
    case PE_Frame:
    case PE_FrameLineEdit:
        draw(plain(*option, outlining(option->palette)));
        if (element == PE_Frame && showsFocus(*option))
            drawFocusRing(*option, *painter);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    const auto draw = [&](const auto &recoloredOption) {
        QProxyStyle::drawComplexControl(control, &recoloredOption, painter, widget);
    };
    if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option))
        return draw(recolored(*box, outlining(option->palette)));
    if (const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(option))
        return draw(recolored(*box, outlining(option->palette)));
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

bool ProgramStyle::isFusion() const
{
    return baseStyle()->name() == QLatin1String("fusion");
}

QPalette ProgramStyle::outlining(const QPalette &palette) const
{
    constexpr qsizetype mostPalettes = 32;
    if (!isFusion() || !outlinesVanish())
        return palette;
    if (const auto known = _outlining.constFind(palette.cacheKey()); known != _outlining.cend())
        return *known;
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const QColor outline = seenOn(window, base, window.darker(kOutlineDarker));
    const QColor highlight = palette.color(QPalette::Highlight);
    const QColor focus = seenOn(window, base, highlight.darker(kFocusDarker));
    QPalette result = palette;
    result.setColor(QPalette::Window, outline.lighter(kOutlineDarker));
    result.setColor(QPalette::Highlight, focus.lighter(kFocusDarker));
    if (_outlining.size() >= mostPalettes)
        _outlining.clear();
    return *_outlining.insert(palette.cacheKey(), result);
}
