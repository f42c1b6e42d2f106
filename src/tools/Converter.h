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
/// recomputes the others of its group and stores the group's value at once, in its base unit:
/// Fahrenheit, grams or milliliters.
///
/// It fills the window that it is given but does not show it. Main thread.
class Converter final : public QObject
{
    Q_OBJECT

public:
    explicit Converter(QObject *parent = nullptr);
    ~Converter() override;

    [[nodiscard]] QMainWindow *converterWindow() const;
    /// Puts the fields into the window and fixes its size to fit them. Call it once.
    void setConverterWindow(QMainWindow *window);

    /// Fills the fields from the settings and moves the focus to the milliliters. The window must
    /// have been set.
    void awakeFromNib();

    /// Converts from the field that the user types in. A field of another window is ignored.
    void controlTextDidChange(const NumberField &field);

    // Given a field of another group as source, convertVolume() sets the volumes to 0, and the
    // other two operations change no field.

    /// Writes all volumes, the source's included: converted to milliliters and back.
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
