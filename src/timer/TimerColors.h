#pragma once

#include <QColor>

/// The colours of the display's texts.
namespace TimerColors
{
/// The last seconds and the alarm.
inline QColor red()
{
    return QColor::fromRgbF(0.9F, 0.0F, 0.0F);
}
} // namespace TimerColors
