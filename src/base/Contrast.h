#pragma once

#include <array>

/// A colour of the screen. Layers below the widgets compute with it in place of a QColor.
struct Rgb final
{
    /// Red, green and blue, from 0 to 255.
    std::array<int, 3> parts{};

    /// The value of a QColor; its transparency is left out.
    template<class Color> [[nodiscard]] static Rgb of(const Color &color)
    {
        const auto rgb = color.toRgb();
        return {{rgb.red(), rgb.green(), rgb.blue()}};
    }

    [[nodiscard]] friend bool operator==(const Rgb &, const Rgb &) = default;
};

/// How well a text can be read on its ground, as the accessibility guidelines for the web (WCAG)
/// compute it.
namespace Contrast
{
inline constexpr Rgb kBlack{{0, 0, 0}};
inline constexpr Rgb kWhite{{255, 255, 255}};

/// The least contrast of a text of any size.
inline constexpr double kText = 4.5;
/// The least contrast of a large text: from 18 points on, or bold from 14 points on.
inline constexpr double kLargeText = 3.0;

/// The relative luminance, from 0 (black) to 1 (white).
[[nodiscard]] double luminance(Rgb color);

/// The contrast ratio, from 1 (no difference) to 21.
[[nodiscard]] double ratio(Rgb one, Rgb other);

/// The first colour with a share of the second in it, from 0 to 1.
[[nodiscard]] Rgb mixed(Rgb color, Rgb other, double share);

/// The colour itself if it has enough contrast to the ground; or else the nearest one of the same
/// hue that has, with as little black or white in it as possible. The least contrast must be one
/// that black or white has on any ground, such as `kText`.
[[nodiscard]] Rgb readable(Rgb color, Rgb ground, double least = kText);
} // namespace Contrast
