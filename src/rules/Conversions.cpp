#include "rules/Conversions.h"

#include "base/SinglePrecision.h"

#include <QtGlobal>

#include <array>

namespace
{
struct Factors
{
    Conversions::Volume unit;
    double toMilliliters;
    double fromMilliliters;
};

using enum Conversions::Volume;

// In the order of the enumeration.
constexpr std::array kVolumes{
    Factors{Milliliters, 1.0, 1.0},
    Factors{FluidOunces, 29.5735296, 0.0338140227},
    Factors{Cups, 236.588237, 0.00422675284},
    Factors{Tablespoons, 14.7867648, 0.0676280454},
    Factors{Teaspoons, 4.92892159, 0.202884136},
};

constexpr double kOuncesPerGram = 0.0352739619;

const Factors &factorsOf(Conversions::Volume unit)
{
    const Factors &factors = kVolumes.at(static_cast<std::size_t>(unit));
    Q_ASSERT(factors.unit == unit);
    return factors;
}

float product(float value, double factor)
{
    return toSinglePrecision(static_cast<double>(value) * factor);
}

/// Limits a result that has become infinite in single precision.
float finite(float value)
{
    return toSinglePrecision(static_cast<double>(value));
}
} // namespace

float Conversions::millilitersFrom(Volume unit, float value)
{
    return product(value, factorsOf(unit).toMilliliters);
}

float Conversions::fromMilliliters(float milliliters, Volume unit)
{
    return product(milliliters, factorsOf(unit).fromMilliliters);
}

float Conversions::ouncesFromGrams(float grams)
{
    return product(grams, kOuncesPerGram);
}

float Conversions::gramsFromOunces(float ounces)
{
    return toSinglePrecision(static_cast<double>(ounces) / kOuncesPerGram);
}

float Conversions::fahrenheitFromCelsius(float celsius)
{
    return finite(celsius * 9.0F / 5.0F + 32.0F);
}

float Conversions::celsiusFromFahrenheit(float fahrenheit)
{
    return finite((fahrenheit - 32.0F) * 5.0F / 9.0F);
}
