#pragma once

/// Conversions between kitchen units, in single precision. Pure functions; any float will do, and
/// what is too large for a float becomes the largest there is.
///
/// The factors of volume and weight have nine digits and are applied in double precision; only
/// the result is rounded. Those of the two directions are separate constants, so there and back
/// may end one step of precision beside where it began. Temperatures are in single precision
/// throughout.
namespace Conversions
{
enum class Volume { Milliliters, FluidOunces, Cups, Tablespoons, Teaspoons };

/// The milliliters in so much of a unit. Ounces, cups and spoons are those of the US.
[[nodiscard]] float millilitersFrom(Volume unit, float value);

/// How much of a unit so many milliliters are.
[[nodiscard]] float fromMilliliters(float milliliters, Volume unit);

[[nodiscard]] float ouncesFromGrams(float grams);
[[nodiscard]] float gramsFromOunces(float ounces);
[[nodiscard]] float fahrenheitFromCelsius(float celsius);
[[nodiscard]] float celsiusFromFahrenheit(float fahrenheit);
} // namespace Conversions
