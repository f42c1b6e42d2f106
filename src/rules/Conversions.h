#pragma once

/// Conversions between kitchen units, in single precision. Pure functions for any float; a result
/// that is too large becomes the largest float.
///
/// The factors for volume and weight have nine digits and are applied in double precision; only the
/// result is rounded. Each direction has its own factor, so a value converted there and back may
/// differ in its last place. Temperatures are computed in single precision throughout.
namespace Conversions
{
enum class Volume { Milliliters, FluidOunces, Cups, Tablespoons, Teaspoons };

/// Converts an amount of the unit to milliliters. Ounces, cups and spoons are US units.
[[nodiscard]] float millilitersFrom(Volume unit, float value);

/// Converts milliliters to an amount of the unit.
[[nodiscard]] float fromMilliliters(float milliliters, Volume unit);

[[nodiscard]] float ouncesFromGrams(float grams);
[[nodiscard]] float gramsFromOunces(float ounces);
[[nodiscard]] float fahrenheitFromCelsius(float celsius);
[[nodiscard]] float celsiusFromFahrenheit(float fahrenheit);
} // namespace Conversions
