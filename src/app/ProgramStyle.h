#pragma once

#include <QHash>
#include <QProxyStyle>

/// The style of the desktop, or Fusion, without animations where the user has turned them off.
///
/// Where it is Fusion, the ring around the focus is visible in every theme. Fusion makes outlines
/// by darkening the colour of the window, so nothing of them is seen in a black one. In dark themes
/// and those of high contrast the outlines of boxes, buttons and fields get a colour that is seen;
/// in other themes they stay as they are.
class ProgramStyle final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;

private:
    [[nodiscard]] bool isFusion() const;
    /// The palette from which Fusion makes outlines that are seen.
    [[nodiscard]] QPalette outlining(const QPalette &palette) const;

    /// The results of `outlining()`, by the key of the palette. Fusion keeps pictures of controls,
    /// and finds them by their palette.
    mutable QHash<qint64, QPalette> _outlining;
};
