#pragma once

#include "rules/Conversions.h"
#include "rules/FigureText.h"
#include "support/Find.h"
#include "support/TestServices.h"
#include "tools/Converter.h"
#include "tools/NumberField.h"

#include <QMainWindow>

#include <array>
#include <vector>

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

    /// The texts of the milliliters, fluid ounces, cups, tablespoons and teaspoons.
    [[nodiscard]] QString volumes() const { return each(kVolumes, &ConverterWindow::text); }
    /// The texts of the grams and ounces.
    [[nodiscard]] QString weights() const { return each(kWeights, &ConverterWindow::text); }
    /// The texts of Celsius and Fahrenheit.
    [[nodiscard]] QString temperatures() const
    {
        return each(kTemperatures, &ConverterWindow::text);
    }

    /// The numbers behind these texts, with all their digits.
    [[nodiscard]] QString exactVolumes() const { return each(kVolumes, &ConverterWindow::exact); }
    [[nodiscard]] QString exactWeights() const { return each(kWeights, &ConverterWindow::exact); }
    [[nodiscard]] QString exactTemperatures() const
    {
        return each(kTemperatures, &ConverterWindow::exact);
    }

    Converter converter;

private:
    using Names = std::vector<const char *>;

    [[nodiscard]] QString exact(const char *name) const
    {
        return FigureText::write(value(name), QLocale::c());
    }
    [[nodiscard]] QString each(const Names &names,
                               QString (ConverterWindow::*get)(const char *) const) const
    {
        QStringList all;
        for (const char *name : names)
            all.append((this->*get)(name));
        return all.join(QLatin1Char(' '));
    }

    inline static const Names kVolumes{"_millilitersField", "_fluidOuncesField", "_cupsField",
                                       "_tablespoonsField", "_teaspoonsField"};
    inline static const Names kWeights{"_gramsField", "_ouncesField"};
    inline static const Names kTemperatures{"_cField", "_fField"};
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
