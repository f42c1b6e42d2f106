#pragma once

#include <span>

/// One table of the measurements panel in English, to be translated as a text of that panel. The
/// cells of its header and of each row stand between bars.
struct MeasurementTable
{
    const char *title;
    const char *header;
    std::span<const char *const> rows;
};

/// The tables in the order in which they are shown.
[[nodiscard]] std::span<const MeasurementTable> measurementTables();
