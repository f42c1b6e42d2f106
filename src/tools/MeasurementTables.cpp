#include "tools/MeasurementTables.h"

#include <QtGlobal>

#include <array>

// Sources. All figures are rounded from these values, most of which are exact by definition:
//
// - NIST Handbook 44, Appendix C: a US gallon is 231 cubic inches, which are 3.785411784 liters; it
//   has 4 quarts, 8 pints, 16 cups, 128 fluid ounces, 256 tablespoons or 768 teaspoons. An inch is
//   2.54 centimeters. An avoirdupois pound is 453.59237 grams and has 16 ounces.
// - The Units of Measurement Regulations 1995 of the United Kingdom: a gallon is 4.54609 liters; it
//   has 4 quarts, 8 pints or 160 fluid ounces.
// - Metric spoons and cups have their usual sizes in cookery books: 5, 15 and 250 milliliters; in
//   Australia a tablespoon is 20 milliliters, in Japan a cup is 200.
// - A stick of butter is a quarter of a pound; its wrapper is marked with 8 tablespoons.
// - Gas mark 1 is 275 °F, and each further mark 25 °F more; ½ and ¼ are 25 and 50 °F less.

namespace
{
constexpr std::array kUsVolumes{
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL"),
};

constexpr std::array kOtherVolumes{
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 metric teaspoon|0.17 fl oz|5 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 metric tablespoon|0.51 fl oz|15 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 Australian tablespoon|0.68 fl oz|20 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 Japanese cup|6.76 fl oz|200 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 metric cup|8.45 fl oz|250 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 liter|33.81 fl oz|1000 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 UK fluid ounce|0.96 fl oz|28.41 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 UK pint|19.22 fl oz|568.26 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 UK quart|38.43 fl oz|1136.52 mL"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 UK gallon|153.72 fl oz|4546.09 mL"),
};

constexpr std::array kWeights{
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 ounce|1 oz|0.0625 lb|28.35 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "2 ounces|2 oz|0.125 lb|56.70 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "¼ pound|4 oz|0.25 lb|113.40 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "½ pound|8 oz|0.5 lb|226.80 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "¾ pound|12 oz|0.75 lb|340.19 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 pound|16 oz|1 lb|453.59 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "2 pounds|32 oz|2 lb|907.18 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "50 grams|1.76 oz|0.110 lb|50 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "100 grams|3.53 oz|0.220 lb|100 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "250 grams|8.82 oz|0.551 lb|250 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "500 grams|17.64 oz|1.102 lb|500 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 kilogram|35.27 oz|2.205 lb|1000 g"),
};

constexpr std::array kButter{
    QT_TRANSLATE_NOOP("MeasurementsPanel", "⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "½ stick|4 tbsp|¼ cup|2 oz|56.70 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "1 stick|8 tbsp|½ cup|4 oz|113.40 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "2 sticks|16 tbsp|1 cup|8 oz|226.80 g"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "4 sticks|32 tbsp|2 cups|16 oz|453.59 g"),
};

constexpr std::array kOvenTemperatures{
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Very cool|Gas ¼|225 °F|107 °C|110 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Very cool|Gas ½|250 °F|121 °C|120 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Cool|Gas 1|275 °F|135 °C|140 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Cool|Gas 2|300 °F|149 °C|150 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Warm|Gas 3|325 °F|163 °C|160 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Moderate|Gas 4|350 °F|177 °C|180 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Fairly hot|Gas 5|375 °F|191 °C|190 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Fairly hot|Gas 6|400 °F|204 °C|200 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Hot|Gas 7|425 °F|218 °C|220 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Very hot|Gas 8|450 °F|232 °C|230 °C"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Very hot|Gas 9|475 °F|246 °C|250 °C"),
};

constexpr std::array kConversions{
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Teaspoons to milliliters|× 4.929"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Tablespoons to milliliters|× 14.79"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Fluid ounces to milliliters|× 29.57"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Cups to milliliters|× 236.6"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Milliliters to fluid ounces|× 0.03381"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Quarts to liters|× 0.9464"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Liters to quarts|× 1.057"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Ounces to grams|× 28.35"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Grams to ounces|× 0.03527"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Pounds to kilograms|× 0.4536"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Kilograms to pounds|× 2.205"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Inches to centimeters|× 2.54"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Centimeters to inches|× 0.3937"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Celsius to Fahrenheit|× 1.8, then + 32"),
    QT_TRANSLATE_NOOP("MeasurementsPanel", "Fahrenheit to Celsius|− 32, then ÷ 1.8"),
};

constexpr std::array kTables{
    MeasurementTable{QT_TRANSLATE_NOOP("MeasurementsPanel", "Volume, US measures"),
                     QT_TRANSLATE_NOOP("MeasurementsPanel",
                                       "Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters"),
                     kUsVolumes},
    MeasurementTable{QT_TRANSLATE_NOOP("MeasurementsPanel", "Volume, other measures"),
                     QT_TRANSLATE_NOOP("MeasurementsPanel", "Measure|US fluid ounces|Milliliters"),
                     kOtherVolumes},
    MeasurementTable{QT_TRANSLATE_NOOP("MeasurementsPanel", "Weight"),
                     QT_TRANSLATE_NOOP("MeasurementsPanel", "Weight|Ounces|Pounds|Grams"),
                     kWeights},
    MeasurementTable{QT_TRANSLATE_NOOP("MeasurementsPanel", "Butter, US sticks"),
                     QT_TRANSLATE_NOOP("MeasurementsPanel", "Butter|Tablespoons|Cups|Ounces|Grams"),
                     kButter},
    MeasurementTable{
        QT_TRANSLATE_NOOP("MeasurementsPanel", "Oven temperatures"),
        QT_TRANSLATE_NOOP("MeasurementsPanel", "Heat|Gas mark|Fahrenheit|Celsius|On the dial"),
        kOvenTemperatures},
    MeasurementTable{QT_TRANSLATE_NOOP("MeasurementsPanel", "Common conversions"),
                     QT_TRANSLATE_NOOP("MeasurementsPanel", "Conversion|Calculation"),
                     kConversions},
};
} // namespace

std::span<const MeasurementTable> measurementTables()
{
    return kTables;
}
