#pragma once

#include "base/Contrast.h"

#include <QColor>

class QPalette;

/// The colour itself if a text in it can be read on the ground, or else the nearest one of the same
/// hue that can. See `Contrast::readable`.
[[nodiscard]] QColor readable(const QColor &color, const QColor &ground,
                              double least = Contrast::kText);

/// The first colour with a share of the second in it, from 0 to 1.
[[nodiscard]] QColor mixed(const QColor &color, const QColor &other, double share);

/// Whether the fields of this theme have light texts on a dark ground.
[[nodiscard]] bool isDark(const QPalette &theme);
