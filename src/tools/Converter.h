#pragma once

#include <QObject>
#include <QPointer>

#include <array>
#include <memory>

class NumberField;
class QMainWindow;

namespace Conversions
{
enum class Volume;
}

namespace Ui
{
class Converter;
}

/// Converts between units in three groups: temperature, weight and volume. Typing in a field
/// recomputes the others of its group and stores the group's value in its base unit, Fahrenheit,
/// grams or milliliters, so that nothing is lost however the window goes.
///
/// It fills a window that it is given, and leaves showing it to others. Main thread.
class Converter final : public QObject
{
    Q_OBJECT

public:
    explicit Converter(QObject *parent = nullptr);
    ~Converter() override;

    [[nodiscard]] QMainWindow *converterWindow() const;
    /// Puts the fields into the window, which becomes as large as they are. Once.
    void setConverterWindow(QMainWindow *window);

    /// Fills the fields from the settings; the focus is then in the milliliters. The window must
    /// have been set.
    void awakeFromNib();

    /// Converts from the field that somebody types in. Other fields than its own are ignored.
    void controlTextDidChange(const NumberField &field);

    // A source that is not of the group changes no field, except that the volumes become 0.

    /// Writes all volumes, that of the source too: its value there and back.
    void convertVolume(const NumberField &source);
    /// Writes the other weight.
    void convertWeight(const NumberField &source);
    /// Writes the other temperature.
    void convertTemperature(const NumberField &source);

private:
    struct VolumeField
    {
        NumberField *field;
        Conversions::Volume unit;
    };

    [[nodiscard]] std::array<VolumeField, 5> volumeFields() const;

    std::unique_ptr<Ui::Converter> _ui;
    QPointer<QMainWindow> _converterWindow;
};
