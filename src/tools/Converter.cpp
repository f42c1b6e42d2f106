#include "tools/Converter.h"

#include "base/UserDefaults.h"
#include "rules/Conversions.h"
#include "tools/NumberField.h"
#include "ui_Converter.h"

#include <QLayout>
#include <QMainWindow>

#include <utility>

namespace
{
float stored(const SettingsKey<float> &key)
{
    return UserDefaults::standardUserDefaults().value(key);
}

void store(float value, const SettingsKey<float> &key)
{
    UserDefaults::standardUserDefaults().setValue(value, key);
}
} // namespace

Converter::Converter(QObject *parent) : QObject(parent), _ui(std::make_unique<Ui::Converter>()) {}

Converter::~Converter() = default;

QMainWindow *Converter::converterWindow() const
{
    return _converterWindow;
}

void Converter::setConverterWindow(QMainWindow *window)
{
    Q_ASSERT(window && !_converterWindow);
    _converterWindow = window;
    auto *contents = new QWidget(window);
    _ui->setupUi(contents);
    window->setCentralWidget(contents);
    window->layout()->setSizeConstraint(QLayout::SetFixedSize);
    for (const NumberField *field : contents->findChildren<NumberField *>())
        connect(field, &NumberField::edited, this, [this, field] { controlTextDidChange(*field); });
}

void Converter::awakeFromNib()
{
    _ui->_fField->setFloatValue(stored(Keys::kFahrenheitValue));
    convertTemperature(*_ui->_fField);
    _ui->_fField->showAllDigits();
    _ui->_fField->selectText();

    _ui->_gramsField->setFloatValue(stored(Keys::kGramsValue));
    convertWeight(*_ui->_gramsField);
    _ui->_gramsField->showAllDigits();

    _ui->_millilitersField->setFloatValue(stored(Keys::kMilliliterValue));
    convertVolume(*_ui->_millilitersField);
    _ui->_millilitersField->showAllDigits();
    _ui->_millilitersField->selectText();
}

void Converter::controlTextDidChange(const NumberField &field)
{
    using Operation = void (Converter::*)(const NumberField &);
    const std::array<std::pair<const NumberField *, Operation>, 9> operations{{
        {_ui->_cField, &Converter::convertTemperature},
        {_ui->_fField, &Converter::convertTemperature},
        {_ui->_gramsField, &Converter::convertWeight},
        {_ui->_ouncesField, &Converter::convertWeight},
        {_ui->_millilitersField, &Converter::convertVolume},
        {_ui->_fluidOuncesField, &Converter::convertVolume},
        {_ui->_cupsField, &Converter::convertVolume},
        {_ui->_tablespoonsField, &Converter::convertVolume},
        {_ui->_teaspoonsField, &Converter::convertVolume},
    }};
    for (const auto &[own, operation] : operations) {
        if (own == &field)
            (this->*operation)(field);
    }
}

void Converter::convertVolume(const NumberField &source)
{
    float milliliters = 0.0F;
    for (const auto &[field, unit] : volumeFields()) {
        if (field == &source)
            milliliters = Conversions::millilitersFrom(unit, source.floatValue());
    }
    for (const auto &[field, unit] : volumeFields())
        field->setFloatValue(Conversions::fromMilliliters(milliliters, unit));
    store(milliliters, Keys::kMilliliterValue);
}

void Converter::convertWeight(const NumberField &source)
{
    float grams = _ui->_gramsField->floatValue();
    const float ounces = _ui->_ouncesField->floatValue();
    if (&source == _ui->_gramsField) {
        _ui->_ouncesField->setFloatValue(Conversions::ouncesFromGrams(grams));
    } else if (&source == _ui->_ouncesField) {
        grams = Conversions::gramsFromOunces(ounces);
        _ui->_gramsField->setFloatValue(grams);
    }
    store(grams, Keys::kGramsValue);
}

void Converter::convertTemperature(const NumberField &source)
{
    const float celsius = _ui->_cField->floatValue();
    float fahrenheit = _ui->_fField->floatValue();
    if (&source == _ui->_cField) {
        fahrenheit = Conversions::fahrenheitFromCelsius(celsius);
        _ui->_fField->setFloatValue(fahrenheit);
    } else if (&source == _ui->_fField) {
        _ui->_cField->setFloatValue(Conversions::celsiusFromFahrenheit(fahrenheit));
    }
    store(fahrenheit, Keys::kFahrenheitValue);
}

std::array<Converter::VolumeField, 5> Converter::volumeFields() const
{
    using enum Conversions::Volume;
    return {{{_ui->_millilitersField, Milliliters},
             {_ui->_fluidOuncesField, FluidOunces},
             {_ui->_cupsField, Cups},
             {_ui->_tablespoonsField, Tablespoons},
             {_ui->_teaspoonsField, Teaspoons}}};
}
