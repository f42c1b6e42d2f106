#pragma once

#include <span>

/// One table of the measurements panel, in English; translated in the context of that panel. Bars
/// separate the cells of the header and of each row.
struct MeasurementTable
{
    const char *title;
    const char *header;
    std::span<const char *const> rows;
};

/// The tables in the order in which they are shown.
[[nodiscard]] std::span<const MeasurementTable> measurementTables();
