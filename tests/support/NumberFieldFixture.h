#pragma once

#include "tools/NumberField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

/// A field whose number is replaced at each edit, as by a conversion there and back: by a number
/// that is slightly too large, or by another one.
struct NumberFieldFixture
{
    explicit NumberFieldFixture(float factor = 1.0F) : _factor(factor)
    {
        QLocale::setDefault(QLocale::c());
        field.setFloatValue(0.0F);
        field.show();
        field.selectText();
        QObject::connect(&field, &NumberField::edited, &field, [this] {
            typed.append(field.floatValue());
            field.setFloatValue(field.floatValue() * _factor);
        });
    }

    ~NumberFieldFixture() { QLocale::setDefault(QLocale::system()); }
    Q_DISABLE_COPY_MOVE(NumberFieldFixture)

    void type(const char *keys) { QTest::keyClicks(&field, QString::fromLatin1(keys)); }
    void press(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(&field, key, with); }
    void paste(const char *text)
    {
        QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
        press(Qt::Key_V, Qt::ControlModifier);
    }

    /// The text with a bar at the cursor.
    [[nodiscard]] QString shown() const
    {
        return field.text().insert(field.cursorPosition(), QLatin1Char('|'));
    }

    NumberField field;
    /// The value of the field after each edit.
    QList<float> typed;

private:
    float _factor;
};

/// The next float after 1. A factor of this turns 3 into 3.0000005.
inline constexpr float kALittleMore = 1.00000013F;
