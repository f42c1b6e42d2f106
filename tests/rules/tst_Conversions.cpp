#include "rules/Conversions.h"
#include "support/TestMain.h"

#include <QTest>

#include <limits>

using enum Conversions::Volume;
using Conversions::Volume;

Q_DECLARE_METATYPE(Volume)

namespace
{
using Conversion = float (*)(float);

/// Nine digits, which tell a float from its neighbours. QCOMPARE of floats is too tolerant.
QString exactly(float number)
{
    return QString::number(static_cast<double>(number), 'g', 9);
}
} // namespace

Q_DECLARE_METATYPE(Conversion)

class tst_Conversions final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void volumesBecomeMilliliters_data();
    void volumesBecomeMilliliters();
    void millilitersBecomeVolumes_data();
    void millilitersBecomeVolumes();
    void oneUnitThereAndBack_data();
    void oneUnitThereAndBack();
    void productsAreRoundedOnce_data();
    void productsAreRoundedOnce();
    void weightsAndTemperatures_data();
    void weightsAndTemperatures();
    void theLargestNumbersStayFinite_data();
    void theLargestNumbersStayFinite();
};

void tst_Conversions::volumesBecomeMilliliters_data()
{
    QTest::addColumn<Volume>("unit");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("milliliters");

    QTest::newRow("milliliters as they stand") << Milliliters << 12.3456789F << 12.3456789F;
    QTest::newRow("a fluid ounce") << FluidOunces << 1.0F << 29.5735296F;
    QTest::newRow("fluid ounces") << FluidOunces << 12.5F << 369.66913F;
    QTest::newRow("a cup") << Cups << 1.0F << 236.588237F;
    QTest::newRow("cups") << Cups << 12.5F << 2957.353F;
    QTest::newRow("a tablespoon") << Tablespoons << 1.0F << 14.7867648F;
    QTest::newRow("tablespoons") << Tablespoons << 12.5F << 184.83456F;
    QTest::newRow("a teaspoon") << Teaspoons << 1.0F << 4.92892159F;
    QTest::newRow("teaspoons") << Teaspoons << 12.5F << 61.61152F;
    QTest::newRow("a tenth") << Tablespoons << 0.1F << 1.4786766F;
    QTest::newRow("less than nothing") << Cups << -3.0F << -709.7647F;
    QTest::newRow("nothing") << Cups << 0.0F << 0.0F;
}

void tst_Conversions::volumesBecomeMilliliters()
{
    QFETCH(const Volume, unit);
    QFETCH(const float, value);
    QFETCH(const float, milliliters);
    QCOMPARE(exactly(Conversions::millilitersFrom(unit, value)), exactly(milliliters));
}

void tst_Conversions::millilitersBecomeVolumes_data()
{
    QTest::addColumn<float>("milliliters");
    QTest::addColumn<Volume>("unit");
    QTest::addColumn<float>("value");

    QTest::newRow("milliliters as they are") << 12.3456789F << Milliliters << 12.3456789F;
    QTest::newRow("1 in fluid ounces") << 1.0F << FluidOunces << 0.0338140227F;
    QTest::newRow("1 in cups") << 1.0F << Cups << 0.00422675284F;
    QTest::newRow("1 in tablespoons") << 1.0F << Tablespoons << 0.0676280454F;
    QTest::newRow("1 in teaspoons") << 1.0F << Teaspoons << 0.202884136F;
    QTest::newRow("250 in fluid ounces") << 250.0F << FluidOunces << 8.4535055F;
    QTest::newRow("250 in cups") << 250.0F << Cups << 1.0566882F;
    QTest::newRow("250 in tablespoons") << 250.0F << Tablespoons << 16.907011F;
    QTest::newRow("250 in teaspoons") << 250.0F << Teaspoons << 50.721035F;
    QTest::newRow("nothing") << 0.0F << Cups << 0.0F;
}

void tst_Conversions::millilitersBecomeVolumes()
{
    QFETCH(const float, milliliters);
    QFETCH(const Volume, unit);
    QFETCH(const float, value);
    QCOMPARE(exactly(Conversions::fromMilliliters(milliliters, unit)), exactly(value));
}

void tst_Conversions::oneUnitThereAndBack_data()
{
    QTest::addColumn<Volume>("unit");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("back");

    QTest::newRow("1 cup") << Cups << 1.0F << 1.0F;
    QTest::newRow("1 tablespoon") << Tablespoons << 1.0F << 1.0F;
    // The factors of the two directions are not exact inverses, which shows here.
    QTest::newRow("3.5 teaspoons") << Teaspoons << 3.5F << 3.50000024F;
    QTest::newRow("0.1 tablespoons") << Tablespoons << 0.1F << 0.100000009F;
    QTest::newRow("0.7 fluid ounces") << FluidOunces << 0.7F << 0.699999928F;
}

void tst_Conversions::oneUnitThereAndBack()
{
    QFETCH(const Volume, unit);
    QFETCH(const float, value);
    QFETCH(const float, back);
    const float milliliters = Conversions::millilitersFrom(unit, value);
    QCOMPARE(exactly(Conversions::fromMilliliters(milliliters, unit)), exactly(back));
}

void tst_Conversions::productsAreRoundedOnce_data()
{
    QTest::addColumn<Volume>("unit");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("from");

    QTest::newRow("fluid ounces") << FluidOunces << 29.5735296 << 0.0338140227;
    QTest::newRow("cups") << Cups << 236.588237 << 0.00422675284;
    QTest::newRow("tablespoons") << Tablespoons << 14.7867648 << 0.0676280454;
    QTest::newRow("teaspoons") << Teaspoons << 4.92892159 << 0.202884136;
}

void tst_Conversions::productsAreRoundedOnce()
{
    QFETCH(const Volume, unit);
    QFETCH(const double, to);
    QFETCH(const double, from);
    int differentInSinglePrecision = 0;
    for (int tenths = -1000; tenths <= 10000; ++tenths) {
        const float value = static_cast<float>(tenths) / 10.0F;
        const auto exact = static_cast<double>(value);
        QCOMPARE(exactly(Conversions::millilitersFrom(unit, value)),
                 exactly(static_cast<float>(exact * to)));
        QCOMPARE(exactly(Conversions::fromMilliliters(value, unit)),
                 exactly(static_cast<float>(exact * from)));
        if (Conversions::millilitersFrom(unit, value) != value * static_cast<float>(to))
            ++differentInSinglePrecision;
    }
    // Otherwise these values could not tell single from double precision.
    QVERIFY(differentInSinglePrecision > 0);
}

void tst_Conversions::weightsAndTemperatures_data()
{
    QTest::addColumn<Conversion>("conversion");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("result");

    const Conversion toOunces = Conversions::ouncesFromGrams;
    QTest::newRow("1 gram") << toOunces << 1.0F << 0.0352739619F;
    QTest::newRow("1000 grams") << toOunces << 1000.0F << 35.2739619F;
    QTest::newRow("a pound in grams") << toOunces << 453.59237F << 16.0F;
    QTest::newRow("no grams") << toOunces << 0.0F << 0.0F;
    const Conversion toGrams = Conversions::gramsFromOunces;
    QTest::newRow("1 ounce") << toGrams << 1.0F << 28.349524F;
    QTest::newRow("16 ounces") << toGrams << 16.0F << 453.59238F;
    QTest::newRow("the ounces of 1000 grams") << toGrams << 35.2739619F << 999.99994F;
    QTest::newRow("no ounces") << toGrams << 0.0F << 0.0F;
    const Conversion toFahrenheit = Conversions::fahrenheitFromCelsius;
    QTest::newRow("water boils") << toFahrenheit << 100.0F << 212.0F;
    QTest::newRow("water freezes") << toFahrenheit << 0.0F << 32.0F;
    QTest::newRow("where both are the same") << toFahrenheit << -40.0F << -40.0F;
    QTest::newRow("a summer's day") << toFahrenheit << 21.3F << 70.34F;
    QTest::newRow("in single precision") << toFahrenheit << -273.15F << -459.66998F;
    QTest::newRow("in single precision at every step") << toFahrenheit << -48.0F << -54.4F;
    const Conversion toCelsius = Conversions::celsiusFromFahrenheit;
    QTest::newRow("water boils in Fahrenheit") << toCelsius << 212.0F << 100.0F;
    QTest::newRow("no Fahrenheit") << toCelsius << 0.0F << -17.777779F;
    QTest::newRow("where both are the same again") << toCelsius << -40.0F << -40.0F;
    QTest::newRow("an oven") << toCelsius << 350.0F << 176.66667F;
    QTest::newRow("in single precision again") << toCelsius << 451.0F << 232.77777F;
}

void tst_Conversions::weightsAndTemperatures()
{
    QFETCH(const Conversion, conversion);
    QFETCH(const float, value);
    QFETCH(const float, result);
    QCOMPARE(exactly(conversion(value)), exactly(result));
}

void tst_Conversions::theLargestNumbersStayFinite_data()
{
    QTest::addColumn<float>("value");
    QTest::newRow("the largest") << std::numeric_limits<float>::max();
    QTest::newRow("the smallest") << std::numeric_limits<float>::lowest();
}

void tst_Conversions::theLargestNumbersStayFinite()
{
    QFETCH(const float, value);
    QCOMPARE(exactly(Conversions::millilitersFrom(Cups, value)), exactly(value));
    QCOMPARE(exactly(Conversions::gramsFromOunces(value)), exactly(value));
    QCOMPARE(exactly(Conversions::fahrenheitFromCelsius(value)), exactly(value));
    QCOMPARE(exactly(Conversions::celsiusFromFahrenheit(value)), exactly(value));
    QVERIFY(qIsFinite(Conversions::ouncesFromGrams(value)));
    QVERIFY(qIsFinite(Conversions::fromMilliliters(value, Cups)));
}

WUFFER_TEST(tst_Conversions, WithoutApplication)
#include "tst_Conversions.moc"
