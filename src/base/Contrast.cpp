#include "base/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace
{
/// The linear light of each value of a colour's part, by the formula of sRGB (IEC 61966-2-1).
/// Computed once, because texts are drawn many times a second.
const std::array<double, 256> &linearLight()
{
    static const auto table = [] {
        std::array<double, 256> light{};
        for (std::size_t i = 0; i < light.size(); ++i) {
            const double value = static_cast<double>(i) / 255.0;
            light.at(i) = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return light;
    }();
    return table;
}
} // namespace

double Contrast::luminance(Rgb color)
{
    constexpr std::array weights{0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i)
        sum += weights.at(i) * linearLight().at(static_cast<std::size_t>(color.parts.at(i)));
    return sum;
}

double Contrast::ratio(Rgb one, Rgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

Rgb Contrast::mixed(Rgb color, Rgb other, double share)
{
    Rgb mixture;
    for (std::size_t i = 0; i < mixture.parts.size(); ++i) {
        mixture.parts.at(i) =
            static_cast<int>(std::lround(std::lerp(color.parts.at(i), other.parts.at(i), share)));
    }
    return mixture;
}

Rgb Contrast::readable(Rgb color, Rgb ground, double least)
{
    constexpr int steps = 255;
    for (int step = 0; step < steps; ++step) {
        for (const Rgb &end : {kWhite, kBlack}) {
            const Rgb candidate = mixed(color, end, double(step) / steps);
            if (ratio(candidate, ground) >= least)
                return candidate;
        }
    }
    return ratio(kWhite, ground) > ratio(kBlack, ground) ? kWhite : kBlack;
}
