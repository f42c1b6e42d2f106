#pragma once

#include "rules/Conversions.h"
#include "support/Find.h"
#include "support/TestServices.h"
#include "tools/Converter.h"
#include "tools/NumberField.h"

#include <QMainWindow>

#include <array>

/// The converter in its window, shown.
struct ConverterWindow : QMainWindow
{
    ConverterWindow()
    {
        converter.setConverterWindow(this);
        converter.awakeFromNib();
        show();
    }

    [[nodiscard]] NumberField &field(const char *name) const
    {
        return child<NumberField>(*this, name);
    }
    void type(const char *name, const QString &keys) const
    {
        field(name).selectText();
        QTest::keyClicks(&field(name), keys);
    }
    void type(const char *name, const char *keys) const { type(name, QString::fromUtf8(keys)); }
    [[nodiscard]] QString text(const char *name) const { return field(name).text(); }
    [[nodiscard]] float value(const char *name) const { return field(name).floatValue(); }

    /// Milliliters, fluid ounces, cups, tablespoons and teaspoons.
    [[nodiscard]] QString volumes() const
    {
        const QStringList all{text("_millilitersField"), text("_fluidOuncesField"),
                              text("_cupsField"), text("_tablespoonsField"),
                              text("_teaspoonsField")};
        return all.join(QLatin1Char(' '));
    }
    /// Grams and ounces.
    [[nodiscard]] QString weights() const
    {
        return text("_gramsField") + QLatin1Char(' ') + text("_ouncesField");
    }
    /// Celsius and Fahrenheit.
    [[nodiscard]] QString temperatures() const
    {
        return text("_cField") + QLatin1Char(' ') + text("_fField");
    }

    Converter converter;
};

/// The converter's window with services of its own.
struct ConverterFixture : TestServices
{
    [[nodiscard]] float stored(const char *key) const
    {
        return defaults.floatForKey(QString::fromLatin1(key));
    }

    ConverterWindow window;
};

struct VolumeField
{
    const char *name;
    Conversions::Volume unit;
};

inline constexpr std::array kVolumeFields{
    VolumeField{"_millilitersField", Conversions::Volume::Milliliters},
    VolumeField{"_fluidOuncesField", Conversions::Volume::FluidOunces},
    VolumeField{"_cupsField", Conversions::Volume::Cups},
    VolumeField{"_tablespoonsField", Conversions::Volume::Tablespoons},
    VolumeField{"_teaspoonsField", Conversions::Volume::Teaspoons},
};

inline constexpr std::array kOtherFields{"_gramsField", "_ouncesField", "_cField", "_fField"};
